#include "simulation/text.h"

#include "platform/records/error_numbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace calvix::simulation::text_test
{

namespace
{

class TextTest : public testing::Test
{
protected:
    /// The wide form of `bytes` without its terminator; failures are empty and leave m_lastError.
    std::wstring Decode(UINT codePage, const std::string& bytes, DWORD flags = 0)
    {
        m_lastError = 0;
        std::vector<wchar_t> room(256, L'#');
        const int size =
            m_text.MultiByteToWideChar(codePage, flags, bytes.data(), static_cast<int>(bytes.size()), room.data(), 256);
        return {room.data(), static_cast<std::size_t>(size)};
    }

    std::string Encode(UINT codePage,
                       const std::wstring& text,
                       DWORD flags = 0,
                       const char* defaultCharacter = nullptr,
                       BOOL* used = nullptr)
    {
        m_lastError = 0;
        std::vector<char> room(256, '#');
        const int size = m_text.WideCharToMultiByte(codePage, flags, text.data(), static_cast<int>(text.size()),
                                                    room.data(), 256, defaultCharacter, used);
        return {room.data(), static_cast<std::size_t>(size)};
    }

    LastErrorCell m_lastError;
    std::uint32_t m_codePage = 1252;
    SimulatedText m_text{m_lastError, m_codePage};
};

TEST_F(TextTest, CodePageZeroIsTheActiveOne)
{
    EXPECT_EQ(Decode(CP_ACP, "\x80\xE9"), L"\u20AC\u00E9");
    m_codePage = 932;
    EXPECT_EQ(Decode(CP_ACP, "\x93\x8C"), L"\u6771");
    m_codePage = 936;
    EXPECT_EQ(Decode(CP_ACP, "\xB6\xAB\x80"), L"\u4E1C\u20AC");
    m_codePage = CP_UTF8;
    EXPECT_EQ(Decode(CP_ACP, "\xE6\x9D\xB1"), L"\u6771");
}

TEST_F(TextTest, NarrowCodePagesGoBothWays)
{
    const struct
    {
        UINT codePage;
        std::string bytes;
        std::wstring text;
    } cases[] = {{1252, "Caf\xE9 \x80 \x81\x9F", L"Caf\u00E9 \u20AC \u0081\u0178"},
                 {932, "\\~\x81\x60\x87\x40\xB1", L"\\~\uFF5E\u2460\uFF71"},
                 {936, "\xD0\xC5\xBA\xC5 \x80", L"\u4FE1\u53F7 \u20AC"},
                 {1250, "\x8C\xB9", L"\u015A\u0105"},
                 {1251, "\xC7\xE0\xEB", L"\u0417\u0430\u043B"},
                 {850, "\x82", L"\u00E9"},
                 {949, "\xB0\xA1", L"\uAC00"},
                 {950, "\xA4\xA4", L"\u4E2D"},
                 {CP_UTF8, "a\xC3\xA9\xE2\x82\xAC", L"a\u00E9\u20AC"}};
    for (const auto& each : cases)
    {
        EXPECT_EQ(Decode(each.codePage, each.bytes, MB_ERR_INVALID_CHARS), each.text) << each.codePage;
        EXPECT_EQ(Encode(each.codePage, each.text), each.bytes) << each.codePage;
    }
}

TEST_F(TextTest, UnknownCodePagesAreRefused)
{
    EXPECT_EQ(Decode(12345, "a"), L"");
    EXPECT_EQ(m_lastError, ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Encode(12345, L"a"), "");
    EXPECT_EQ(m_lastError, ERROR_INVALID_PARAMETER);
}

TEST_F(TextTest, BadArgumentsAreRefused)
{
    const auto expectRefused = [this](int result)
    {
        EXPECT_EQ(result, 0);
        EXPECT_EQ(m_lastError, ERROR_INVALID_PARAMETER);
        m_lastError = 0;
    };
    wchar_t wide[4] = {};
    char narrow[4] = {};
    expectRefused(m_text.MultiByteToWideChar(0, 0, nullptr, -1, wide, 4));
    expectRefused(m_text.MultiByteToWideChar(0, 0, "a", 0, wide, 4));
    expectRefused(m_text.MultiByteToWideChar(0, 0, "a", 1, nullptr, 4));
    expectRefused(m_text.MultiByteToWideChar(0, 0, "a", 1, wide, -1));
    expectRefused(m_text.WideCharToMultiByte(0, 0, nullptr, -1, narrow, 4, nullptr, nullptr));
    expectRefused(m_text.WideCharToMultiByte(0, 0, L"a", 0, narrow, 4, nullptr, nullptr));
    expectRefused(m_text.WideCharToMultiByte(0, 0, L"a", 1, nullptr, 4, nullptr, nullptr));
    expectRefused(m_text.WideCharToMultiByte(0, 0, L"a", 1, narrow, -1, nullptr, nullptr));
}

TEST_F(TextTest, LengthMinusOneIncludesTheTerminator)
{
    wchar_t wide[8] = {9, 9, 9, 9, 9, 9, 9, 9};
    EXPECT_EQ(m_text.MultiByteToWideChar(CP_UTF8, 0, "\xC3\xA9", -1, wide, 8), 2);
    EXPECT_EQ(wide[0], L'\u00E9');
    EXPECT_EQ(wide[1], L'\0');
    char narrow[8] = "#######";
    EXPECT_EQ(m_text.WideCharToMultiByte(CP_ACP, 0, L"ab", -1, narrow, 8, nullptr, nullptr), 3);
    EXPECT_STREQ(narrow, "ab");
    EXPECT_EQ(m_text.WideCharToMultiByte(CP_ACP, 0, L"", -1, narrow, 8, nullptr, nullptr), 1);
}

TEST_F(TextTest, WithoutRoomTheSizeIsAnswered)
{
    EXPECT_EQ(m_text.MultiByteToWideChar(CP_UTF8, 0, "\xE6\x9D\xB1!", -1, nullptr, 0), 3);
    EXPECT_EQ(m_text.WideCharToMultiByte(CP_UTF8, 0, L"\u6771!", -1, nullptr, 0, nullptr, nullptr), 5);
    EXPECT_EQ(m_text.WideCharToMultiByte(932, 0, L"\u6771!", 2, nullptr, 0, nullptr, nullptr), 3);
    EXPECT_EQ(m_lastError, 0u);
}

TEST_F(TextTest, TooLittleRoomIsAFailure)
{
    wchar_t wide[2] = {};
    EXPECT_EQ(m_text.MultiByteToWideChar(CP_ACP, 0, "ab", -1, wide, 2), 0);
    EXPECT_EQ(m_lastError, ERROR_INSUFFICIENT_BUFFER);
    m_lastError = 0;
    char narrow[2] = {};
    EXPECT_EQ(m_text.WideCharToMultiByte(CP_ACP, 0, L"ab", -1, narrow, 2, nullptr, nullptr), 0);
    EXPECT_EQ(m_lastError, ERROR_INSUFFICIENT_BUFFER);
    EXPECT_EQ(m_text.MultiByteToWideChar(CP_ACP, 0, "ab", 2, wide, 2), 2);
}

TEST_F(TextTest, Utf8TakesNoFlagButTheStrictOne)
{
    for (const DWORD flags :
         std::vector<DWORD>{MB_PRECOMPOSED, MB_PRECOMPOSED | MB_ERR_INVALID_CHARS, MB_COMPOSITE, MB_USEGLYPHCHARS})
    {
        EXPECT_EQ(Decode(CP_UTF8, "a", flags), L"");
        EXPECT_EQ(m_lastError, ERROR_INVALID_FLAGS) << flags;
    }
    EXPECT_EQ(Decode(CP_UTF8, "a", MB_ERR_INVALID_CHARS), L"a");
    EXPECT_EQ(Encode(CP_UTF8, L"a", WC_ERR_INVALID_CHARS), "a");
    EXPECT_EQ(Encode(CP_UTF8, L"a", WC_NO_BEST_FIT_CHARS), "");
    EXPECT_EQ(m_lastError, ERROR_INVALID_FLAGS);
}

TEST_F(TextTest, NarrowCodePagesTakeTheirOwnFlags)
{
    EXPECT_EQ(Decode(CP_ACP, "a", MB_PRECOMPOSED | MB_ERR_INVALID_CHARS), L"a");
    EXPECT_EQ(Decode(CP_ACP, "a", MB_PRECOMPOSED | MB_COMPOSITE), L"");
    EXPECT_EQ(m_lastError, ERROR_INVALID_FLAGS);
    EXPECT_EQ(Decode(CP_ACP, "a", 0x100), L"");
    EXPECT_EQ(m_lastError, ERROR_INVALID_FLAGS);
    EXPECT_EQ(Encode(CP_ACP, L"a", WC_NO_BEST_FIT_CHARS), "a");
    for (const DWORD flags :
         std::vector<DWORD>{MB_PRECOMPOSED | MB_ERR_INVALID_CHARS, MB_PRECOMPOSED, WC_ERR_INVALID_CHARS})
    {
        EXPECT_EQ(Encode(CP_ACP, L"a", flags), "");
        EXPECT_EQ(m_lastError, ERROR_INVALID_FLAGS) << flags;
    }
}

TEST_F(TextTest, IllFormedUtf8IsReplacedOrRefused)
{
    const struct
    {
        std::string bytes;
        std::wstring text;
    } cases[] = {{"a\xFFz", L"a\uFFFDz"},
                 {"\xC3", L"\uFFFD"},
                 {"\xE6\x9D!", L"\uFFFD!"},
                 {"\xC0\x80", L"\uFFFD\uFFFD"},
                 {"\xED\xA0\x80", L"\uFFFD\uFFFD\uFFFD"},
                 {"\xF4\x90\x80\x80", L"\uFFFD\uFFFD\uFFFD\uFFFD"},
                 {"\x80", L"\uFFFD"}};
    for (const auto& each : cases)
    {
        EXPECT_EQ(Decode(CP_UTF8, each.bytes), each.text);
        EXPECT_EQ(Decode(CP_UTF8, each.bytes, MB_ERR_INVALID_CHARS), L"");
        EXPECT_EQ(m_lastError, ERROR_NO_UNICODE_TRANSLATION);
    }
}

TEST_F(TextTest, LoneSurrogatesAreReplacedOrRefused)
{
    const std::wstring lone(1, static_cast<wchar_t>(0xD800));
    EXPECT_EQ(Encode(CP_UTF8, lone + L"a"), "\xEF\xBF\xBD"
                                            "a");
    EXPECT_EQ(Encode(CP_UTF8, lone, WC_ERR_INVALID_CHARS), "");
    EXPECT_EQ(m_lastError, ERROR_NO_UNICODE_TRANSLATION);
}

TEST_F(TextTest, CharactersBeyondTheBasicPlane)
{
    const std::wstring suitcase = L"\U0001F6C4";
    EXPECT_EQ(Decode(CP_UTF8, "\xF0\x9F\x9B\x84"), suitcase);
    EXPECT_EQ(Encode(CP_UTF8, suitcase), "\xF0\x9F\x9B\x84");
    EXPECT_EQ(Encode(1252, suitcase), "??");
}

TEST_F(TextTest, Utf8HasNoDefaultCharacter)
{
    BOOL used = FALSE;
    EXPECT_EQ(Encode(CP_UTF8, L"a", 0, "?"), "");
    EXPECT_EQ(m_lastError, ERROR_INVALID_PARAMETER);
    EXPECT_EQ(Encode(CP_UTF8, L"a", 0, nullptr, &used), "");
    EXPECT_EQ(m_lastError, ERROR_INVALID_PARAMETER);
    m_codePage = CP_UTF8;
    EXPECT_EQ(Encode(CP_ACP, L"a", 0, "", &used), "");
    EXPECT_EQ(m_lastError, ERROR_INVALID_PARAMETER);
}

TEST_F(TextTest, CharactersWithoutEquivalentBecomeTheDefaultCharacter)
{
    BOOL used = 7;
    EXPECT_EQ(Encode(1252, L"a\u6771z", 0, nullptr, &used), "a?z");
    EXPECT_TRUE(used);
    EXPECT_EQ(Encode(1252, L"a\u6771z", 0, "_", &used), "a_z");
    EXPECT_TRUE(used);
    EXPECT_EQ(Encode(1252, L"az", 0, "_", &used), "az");
    EXPECT_FALSE(used);
    EXPECT_EQ(Encode(936, L"\u4FE1\u0E01", 0, nullptr, &used), "\xD0\xC5?");
    EXPECT_TRUE(used);
}

TEST_F(TextTest, AnEmptyDefaultEndsTheText)
{
    BOOL used = FALSE;
    EXPECT_EQ(Encode(1252, L"a\u6771z", 0, "", &used), std::string("a\0z", 3));
    EXPECT_TRUE(used);
}

TEST_F(TextTest, SimilarCharactersAreTakenOnlyWhereTheConverterKnowsThem)
{
    EXPECT_EQ(Encode(1252, L"\u0101", WC_NO_BEST_FIT_CHARS), "?");
#ifdef _WIN32
    EXPECT_EQ(Encode(1252, L"\u0101"), "a");
#else
    EXPECT_EQ(Encode(1252, L"\u0101"), "?");
#endif
}

TEST_F(TextTest, IllFormedNarrowTextIsReplacedOrRefused)
{
    EXPECT_EQ(Decode(932, "a\x81", MB_ERR_INVALID_CHARS), L"");
    EXPECT_EQ(m_lastError, ERROR_NO_UNICODE_TRANSLATION);
    EXPECT_EQ(Decode(936, "a\xFF", MB_ERR_INVALID_CHARS), L"");
    EXPECT_EQ(m_lastError, ERROR_NO_UNICODE_TRANSLATION);
    EXPECT_EQ(Decode(932, "a\x81").substr(0, 1), L"a");
}

TEST_F(TextTest, LongTextsAreConvertedWhole)
{
    std::wstring text;
    std::string bytes;
    for (int count = 0; count < 80; ++count)
    {
        text += L"\u6771a";
        bytes += "\x93\x8C"
                 "a";
    }
    EXPECT_EQ(Encode(932, text), bytes);
    EXPECT_EQ(Decode(932, bytes), text);
    text[101] = L'\u0E01';
    EXPECT_EQ(Encode(932, text).size(), bytes.size());
}

TEST_F(TextTest, GuidsHaveTheirRegistryForm)
{
    const GUID guid{0x5CA1AB1E, 0x00FF, 0x4abc, {0x80, 0x00, 0x01, 0x23, 0x45, 0x67, 0x89, 0xab}};
    wchar_t text[64] = {};
    EXPECT_EQ(m_text.StringFromGUID2(guid, text, 64), 39);
    EXPECT_STREQ(text, L"{5CA1AB1E-00FF-4ABC-8000-0123456789AB}");
    EXPECT_EQ(m_text.StringFromGUID2(guid, text, 39), 39);
    EXPECT_EQ(m_text.StringFromGUID2(guid, text, 38), 0);
}

} // namespace

} // namespace calvix::simulation::text_test
