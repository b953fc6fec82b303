#include "provider.h"

#include <array>
#include <cstring>
#include <span>
#include <string>
#include <vector>

namespace calvix::test::text_contract_test
{

namespace
{

constexpr UINT kWestern = 1252;
constexpr UINT kJapanese = 932;
constexpr UINT kChinese = 936;

/// The conversions between narrow and wide text, and the text of a GUID.
class TextContract : public PlatformContract
{
protected:
    platform::Text& Text() { return System().text(); }

    int ToWide(UINT codePage, const char* bytes, int length, std::span<wchar_t> room, DWORD flags = 0)
    {
        return Text().MultiByteToWideChar(codePage, flags, bytes, length, room.data(), static_cast<int>(room.size()));
    }

    int ToNarrow(UINT codePage,
                 const wchar_t* text,
                 int length,
                 std::span<char> room,
                 DWORD flags = 0,
                 const char* defaultCharacter = nullptr,
                 BOOL* usedDefault = nullptr)
    {
        return Text().WideCharToMultiByte(codePage, flags, text, length, room.data(), static_cast<int>(room.size()),
                                          defaultCharacter, usedDefault);
    }

    /// The wide form of `bytes`, whose length is given, so that it needs no terminator; empty when that fails.
    std::wstring Decode(UINT codePage, const std::string& bytes, DWORD flags = 0)
    {
        std::vector<wchar_t> room(kRoom);
        const int size = ToWide(codePage, bytes.data(), static_cast<int>(bytes.size()), room, flags);
        return {room.data(), static_cast<std::size_t>(size)};
    }

    std::string Encode(UINT codePage,
                       const std::wstring& text,
                       DWORD flags = 0,
                       const char* defaultCharacter = nullptr,
                       BOOL* usedDefault = nullptr)
    {
        std::vector<char> room(kRoom);
        const int size =
            ToNarrow(codePage, text.data(), static_cast<int>(text.size()), room, flags, defaultCharacter, usedDefault);
        return {room.data(), static_cast<std::size_t>(size)};
    }

    DWORD ErrorOfDecodingStrictly(UINT codePage, const std::string& bytes)
    {
        return ErrorOf([&] { return !Decode(codePage, bytes, MB_ERR_INVALID_CHARS).empty(); });
    }

    /// The last error that converting one letter with these flags leaves, 0 if it succeeds.
    DWORD ErrorOfDecodingFlags(UINT codePage, DWORD flags)
    {
        LeaveInvalidParameter();
        return ToWide(codePage, "a", 1, {}, flags) == 1 ? ERROR_SUCCESS : LastError();
    }

    DWORD ErrorOfEncodingFlags(UINT codePage, DWORD flags)
    {
        LeaveInvalidParameter();
        return ToNarrow(codePage, L"a", 1, {}, flags) == 1 ? ERROR_SUCCESS : LastError();
    }

private:
    static constexpr int kRoom = 512;

    /// An error that no flag leaves.
    void LeaveInvalidParameter()
    {
        EXPECT_EQ(ErrorOf([&] { return ToWide(kWestern, nullptr, 0, {}); }), Error(ERROR_INVALID_PARAMETER));
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, TextContract, testing::ValuesIn(Providers()), ProviderName);

// Both directions.

TEST_P(TextContract, EachCodePageHasItsCharacters)
{
    const struct
    {
        UINT codePage;
        std::string bytes;
        std::wstring text;
    } cases[] = {
        {kWestern, "Caf\xE9 \x80 \x9F", L"Caf\u00E9 \u20AC \u0178"},
        {kWestern, "\x81\x8D\x8F\x90\x9D", L"\u0081\u008D\u008F\u0090\u009D"},
        {kJapanese, "\\~\x93\x8C\x8B\x9E \xB1", L"\\~\u6771\u4EAC \uFF71"},
        {kJapanese, "\x81\x60\x87\x40", L"\uFF5E\u2460"},
        {kChinese, "\xD0\xC5\xBA\xC5 \x80", L"\u4FE1\u53F7 \u20AC"},
        {437, "\x82\xE1", L"\u00E9\u00DF"},
        {850, "\x82\xD5", L"\u00E9\u0131"},
        {949, "\xB0\xA1", L"\uAC00"},
        {950, "\xA4\xA4", L"\u4E2D"},
        {1250, "\x8C\xB9", L"\u015A\u0105"},
        {1251, "\xC7\xE0\xEB", L"\u0417\u0430\u043B"},
        {CP_UTF8, "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9B\x84\xF4\x8F\xBF\xBF", L"a\u00E9\u20AC\U0001F6C4\U0010FFFF"},
        // terminators and byte order marks stay
        {CP_UTF8, std::string("a\0b\xEF\xBB\xBF\r\n", 8), std::wstring(L"a\0b\uFEFF\r\n", 6)}};
    for (const auto& each : cases)
    {
        SCOPED_TRACE(each.codePage);
        EXPECT_EQ(Decode(each.codePage, each.bytes), each.text);
        EXPECT_EQ(Decode(each.codePage, each.bytes, MB_ERR_INVALID_CHARS), each.text);
        EXPECT_EQ(Encode(each.codePage, each.text), each.bytes);
        if (each.codePage == CP_UTF8)
            continue;
        BOOL used = 7;
        EXPECT_EQ(Encode(each.codePage, each.text, 0, nullptr, &used), each.bytes);
        EXPECT_EQ(used, FALSE);
        EXPECT_EQ(Encode(each.codePage, each.text, WC_NO_BEST_FIT_CHARS), each.bytes);
    }
}

TEST_P(TextContract, LongTextsAreConvertedWhole)
{
    std::wstring text;
    std::string bytes;
    for (int count = 0; count < 80; ++count)
    {
        text += L"\u6771a";
        bytes += "\x93\x8C"
                 "a";
    }
    EXPECT_EQ(Encode(kJapanese, text), bytes);
    EXPECT_EQ(Decode(kJapanese, bytes), text);
    text[101] = L'\u0E01';
    EXPECT_EQ(Encode(kJapanese, text), bytes.replace(152, 1, "?"));
}

TEST_P(TextContract, ANegativeLengthMeansAsFarAsTheTerminator)
{
    for (const UINT codePage : {kWestern, kJapanese, UINT{CP_UTF8}})
    {
        SCOPED_TRACE(codePage);
        std::array<wchar_t, 5> wide{9, 9, 9, 9, 9};
        EXPECT_EQ(ToWide(codePage, "ab\0c", -1, wide), 3);
        EXPECT_EQ(wide, (std::array<wchar_t, 5>{L'a', L'b', L'\0', 9, 9}));
        EXPECT_EQ(ToWide(codePage, "", -1, wide), 1);
        EXPECT_EQ(wide[0], L'\0');
        std::array<char, 5> narrow{9, 9, 9, 9, 9};
        EXPECT_EQ(ToNarrow(codePage, L"ab\0c", -1, narrow), 3);
        EXPECT_EQ(narrow, (std::array<char, 5>{'a', 'b', '\0', 9, 9}));
        EXPECT_EQ(ToNarrow(codePage, L"", -1, narrow), 1);
        EXPECT_EQ(narrow[0], '\0');
    }
}

TEST_P(TextContract, AGivenLengthAddsNoTerminator)
{
    std::array<wchar_t, 4> wide{9, 9, 9, 9};
    EXPECT_EQ(ToWide(kWestern, "abc", 2, wide), 2);
    EXPECT_EQ(wide, (std::array<wchar_t, 4>{L'a', L'b', 9, 9}));
    std::array<char, 4> narrow{9, 9, 9, 9};
    EXPECT_EQ(ToNarrow(kWestern, L"abc", 2, narrow), 2);
    EXPECT_EQ(narrow, (std::array<char, 4>{'a', 'b', 9, 9}));
}

TEST_P(TextContract, WithoutRoomTheSizeIsAnswered)
{
    LeaveUnlikelyError();
    EXPECT_EQ(ToWide(CP_UTF8, "\xE6\x9D\xB1!", -1, {}), 3);
    EXPECT_EQ(ToWide(CP_UTF8, "\xE6\x9D\xB1!", 4, {}, MB_ERR_INVALID_CHARS), 2);
    EXPECT_EQ(ToWide(kJapanese, "\x93\x8C!", -1, {}), 3);
    EXPECT_EQ(ToWide(kWestern, "abc", 3, {}), 3);
    wchar_t wide = L'#';
    EXPECT_EQ(ToWide(kWestern, "abc", 3, {&wide, 0}), 3);
    EXPECT_EQ(wide, L'#') << "untouched";
    EXPECT_EQ(ToNarrow(CP_UTF8, L"\u6771!", -1, {}), 5);
    EXPECT_EQ(ToNarrow(kJapanese, L"\u6771!", 2, {}), 3);
    EXPECT_EQ(ToNarrow(kWestern, L"\u6771!", 2, {}), 2);
    char narrow = '#';
    EXPECT_EQ(ToNarrow(kWestern, L"abc", 3, {&narrow, 0}), 3);
    EXPECT_EQ(narrow, '#') << "untouched";
    EXPECT_EQ(LastError(), kUnlikelyError);
}

TEST_P(TextContract, RoomForExactlyAllIsEnough)
{
    std::array<wchar_t, 3> wide{};
    EXPECT_EQ(ToWide(CP_UTF8, "\xE6\x9D\xB1!", -1, wide), 3);
    EXPECT_STREQ(wide.data(), L"\u6771!");
    std::array<char, 5> narrow{};
    EXPECT_EQ(ToNarrow(CP_UTF8, L"\u6771!", -1, narrow), 5);
    EXPECT_STREQ(narrow.data(), "\xE6\x9D\xB1!");
}

TEST_P(TextContract, WithTooLittleRoomWhatFitsIsThereWithoutATerminator)
{
    for (const UINT codePage : {kWestern, kJapanese, UINT{CP_UTF8}})
    {
        SCOPED_TRACE(codePage);
        std::array<wchar_t, 2> wide{9, 9};
        EXPECT_EQ(ErrorOf([&] { return ToWide(codePage, "abc", -1, wide); }), Error(ERROR_INSUFFICIENT_BUFFER));
        EXPECT_EQ(wide, (std::array{L'a', L'b'}));
        std::array<char, 2> narrow{9, 9};
        EXPECT_EQ(ErrorOf([&] { return ToNarrow(codePage, L"abc", -1, narrow); }), Error(ERROR_INSUFFICIENT_BUFFER));
        EXPECT_EQ(narrow, (std::array{'a', 'b'}));
    }
}

TEST_P(TextContract, ArgumentsThatMeanNothingAreRefused)
{
    std::array<wchar_t, 4> wide{};
    const auto decode = [&](UINT codePage, const char* source, int length, wchar_t* destination, int size)
    { return ErrorOf([&] { return Text().MultiByteToWideChar(codePage, 0, source, length, destination, size); }); };
    std::array<char, 4> narrow{};
    const auto encode = [&](UINT codePage, const wchar_t* source, int length, char* destination, int size)
    {
        return ErrorOf(
            [&]
            { return Text().WideCharToMultiByte(codePage, 0, source, length, destination, size, nullptr, nullptr); });
    };
    for (const UINT codePage : {UINT{CP_ACP}, kWestern, UINT{CP_UTF8}})
    {
        SCOPED_TRACE(codePage);
        EXPECT_EQ(decode(codePage, nullptr, -1, wide.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(decode(codePage, nullptr, 0, wide.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(decode(codePage, "a", 0, wide.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(decode(codePage, "a", 1, nullptr, 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(decode(codePage, "a", 1, wide.data(), -1), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(encode(codePage, nullptr, -1, narrow.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(encode(codePage, nullptr, 0, narrow.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(encode(codePage, L"a", 0, narrow.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(encode(codePage, L"a", 1, nullptr, 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(encode(codePage, L"a", 1, narrow.data(), -1), Error(ERROR_INVALID_PARAMETER));
    }
    constexpr UINT kUnknown = 12345;
    EXPECT_EQ(decode(kUnknown, "a", 1, wide.data(), 4), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(encode(kUnknown, L"a", 1, narrow.data(), 4), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(TextContract, SourceAndDestinationMustNotBeOne)
{
    if (IsWine())
        GTEST_SKIP() << "Wine does not compare the two";
    std::array<wchar_t, 4> room{L'a', L'b'};
    auto* const bytes = reinterpret_cast<char*>(room.data());
    EXPECT_EQ(ErrorOf([&] { return ToWide(kWestern, bytes, 2, room); }), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(ErrorOf([&] { return ToNarrow(kWestern, room.data(), 2, {bytes, 8}); }), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(TextContract, UnknownFlagsAreRefused)
{
    for (const UINT codePage : {UINT{CP_ACP}, kWestern, kJapanese, UINT{CP_UTF8}})
    {
        SCOPED_TRACE(codePage);
        for (const DWORD flags : {Error(0x100), Error(0x80000000), Error(MB_ERR_INVALID_CHARS | 0x10)})
            EXPECT_EQ(ErrorOfDecodingFlags(codePage, flags), Error(ERROR_INVALID_FLAGS)) << flags;
        for (const DWORD flags : {Error(0x4000), Error(0x80000000), Error(MB_PRECOMPOSED)})
            EXPECT_EQ(ErrorOfEncodingFlags(codePage, flags), Error(ERROR_INVALID_FLAGS)) << flags;
    }
}

// From narrow to wide text.

TEST_P(TextContract, TheActiveCodePagesContainAscii)
{
    std::string ascii;
    for (char character = 1; character < 127; ++character)
        ascii += character;
    const std::wstring wide(ascii.begin(), ascii.end());
    constexpr UINT kThreadCodePage = 3;
    for (const UINT codePage : {UINT{CP_ACP}, UINT{CP_OEMCP}, kThreadCodePage, kWestern, UINT{CP_UTF8}})
        EXPECT_EQ(Decode(codePage, ascii), wide) << codePage;
}

TEST_P(TextContract, NoWideCharacterIsCutInTwo)
{
    if (IsWine())
        GTEST_SKIP() << "Wine hands out half a pair, and calls that a success";
    const std::wstring whole = L"a\U0001F6C4";
    std::array<wchar_t, 3> room{9, 9, 9};
    const std::span tooSmall(room.data(), whole.size() - 1);
    EXPECT_EQ(ErrorOf([&] { return ToWide(CP_UTF8, "a\xF0\x9F\x9B\x84", 5, tooSmall); }),
              Error(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(room, (std::array<wchar_t, 3>{L'a', 9, 9}));
}

TEST_P(TextContract, ArgumentsAreLookedAtBeforeFlags)
{
    EXPECT_EQ(ErrorOf([&] { return ToWide(CP_UTF8, nullptr, 0, {}, 0x100); }), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(TextContract, DecodingUtf8TakesTheStrictFlagOnly)
{
    EXPECT_EQ(Decode(CP_UTF8, "a", MB_ERR_INVALID_CHARS), L"a");
    if (IsWine())
        GTEST_SKIP() << "Wine overlooks the other code pages' flags";
    for (const DWORD flags : {Error(MB_PRECOMPOSED), Error(MB_COMPOSITE), Error(MB_USEGLYPHCHARS),
                              Error(MB_PRECOMPOSED | MB_ERR_INVALID_CHARS)})
        EXPECT_EQ(ErrorOfDecodingFlags(CP_UTF8, flags), Error(ERROR_INVALID_FLAGS)) << flags;
}

TEST_P(TextContract, DecodingOtherCodePagesTakesTheirFlags)
{
    for (const UINT codePage : {UINT{CP_ACP}, kWestern, kJapanese})
    {
        EXPECT_EQ(Decode(codePage, "a", MB_PRECOMPOSED | MB_ERR_INVALID_CHARS), L"a");
        EXPECT_EQ(Decode(codePage, "a", MB_USEGLYPHCHARS), L"a");
        // Wine takes both at once, which mean the opposite.
        const DWORD precomposedAndComposite = ErrorOfDecodingFlags(codePage, MB_PRECOMPOSED | MB_COMPOSITE);
        EXPECT_EQ(precomposedAndComposite, OrOnWine(Error(ERROR_INVALID_FLAGS), Error(ERROR_SUCCESS))) << codePage;
    }
}

TEST_P(TextContract, CharactersCanBeTakenApart)
{
    if (IsSimulation())
        GTEST_SKIP() << "composing and decomposing is not furnished in the simulated computer; nobody here asks for it";
    EXPECT_EQ(Decode(kWestern, "\xE9", MB_COMPOSITE), L"e\u0301");
}

TEST_P(TextContract, IllFormedUtf8IsReplacedPartByPart)
{
    const struct
    {
        std::string bytes;
        std::wstring text;
    } cases[] = {{"a\xFFz", L"a\uFFFDz"},       {"\xC3", L"\uFFFD"},           {"\xE6\x9D!", L"\uFFFD!"},
                 {"\xC0\x80", L"\uFFFD\uFFFD"}, {"\xC1\xBF", L"\uFFFD\uFFFD"}, {"\xF0\x9F\x9B", L"\uFFFD"},
                 {"\xF0\x9F\x9B!", L"\uFFFD!"}, {"\xF5", L"\uFFFD"},           {"\xC3\xC3\xA9", L"\uFFFD\u00E9"},
                 {"\x80\xBF", L"\uFFFD\uFFFD"}};
    for (const auto& each : cases)
    {
        EXPECT_EQ(Decode(CP_UTF8, each.bytes), each.text) << testing::PrintToString(each.bytes);
        EXPECT_EQ(ErrorOfDecodingStrictly(CP_UTF8, each.bytes), Error(ERROR_NO_UNICODE_TRANSLATION));
        EXPECT_EQ(ToWide(CP_UTF8, each.bytes.data(), static_cast<int>(each.bytes.size()), {}),
                  static_cast<int>(each.text.size()))
            << "the size knows it too";
    }
}

/// How many replacements such a sequence makes, the record does not say. The simulation makes one of each byte, as the
/// Unicode Standard recommends; Wine takes the lead byte and the one that must not follow it for one part.
TEST_P(TextContract, SequencesThatBeginImpossiblyAreReplacedToo)
{
    for (const char* bytes : {"\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80", "\xF4\x90\x80\x80"})
    {
        const std::wstring text = Decode(CP_UTF8, bytes);
        const std::size_t length = std::strlen(bytes);
        if (GetParam() != Provider::windows)
            EXPECT_EQ(text.size(), OrOnWine(length, length - 1)) << testing::PrintToString(bytes);
        EXPECT_EQ(text, std::wstring(text.size(), L'\uFFFD')) << testing::PrintToString(bytes);
        EXPECT_EQ(ErrorOfDecodingStrictly(CP_UTF8, bytes), Error(ERROR_NO_UNICODE_TRANSLATION));
    }
}

TEST_P(TextContract, IllFormedTextOfOtherCodePagesIsRefusedToo)
{
    for (const auto& [codePage, bytes] : {std::pair<UINT, std::string>{kJapanese, "a\x81"},
                                          {kJapanese, "\x81 "},
                                          {kChinese, "a\xFF"},
                                          {kChinese, "\xD0"}})
    {
        EXPECT_EQ(ErrorOfDecodingStrictly(codePage, bytes), Error(ERROR_NO_UNICODE_TRANSLATION))
            << codePage << ' ' << testing::PrintToString(bytes);
        EXPECT_FALSE(Decode(codePage, bytes).empty()) << "but replaced without the flag";
    }
}

// From wide to narrow text.

TEST_P(TextContract, AskingForTheSizeReportsTheDefaultCharacter)
{
    BOOL used = FALSE;
    EXPECT_EQ(ToNarrow(kWestern, L"\u6771", 1, {}, 0, nullptr, &used), 1);
    EXPECT_EQ(used, TRUE);
    EXPECT_EQ(ToNarrow(kWestern, L"a", 1, {}, 0, nullptr, &used), 1);
    EXPECT_EQ(used, FALSE);
}

TEST_P(TextContract, NoNarrowCharacterIsCutInTwo)
{
    for (const auto& each : {std::pair<UINT, std::size_t>{kJapanese, 2}, {CP_UTF8, 3}})
    {
        SCOPED_TRACE(each.first);
        std::array<char, 4> room{9, 9, 9, 9};
        const std::span tooSmall(room.data(), each.second);
        EXPECT_EQ(ErrorOf([&] { return ToNarrow(each.first, L"a\u6771", 2, tooSmall); }),
                  Error(ERROR_INSUFFICIENT_BUFFER));
        EXPECT_EQ(room, (std::array<char, 4>{'a', 9, 9, 9}));
    }
}

TEST_P(TextContract, EncodingTakesTheFlagsOfTheCodePage)
{
    const DWORD refused = OrOnWine(Error(ERROR_INVALID_FLAGS), Error(ERROR_SUCCESS));
    EXPECT_EQ(ErrorOfEncodingFlags(CP_UTF8, WC_ERR_INVALID_CHARS), Error(ERROR_SUCCESS));
    EXPECT_EQ(ErrorOfEncodingFlags(CP_UTF8, WC_NO_BEST_FIT_CHARS), refused);
    EXPECT_EQ(ErrorOfEncodingFlags(CP_UTF8, WC_COMPOSITECHECK), refused);
    EXPECT_EQ(ErrorOfEncodingFlags(kWestern, WC_NO_BEST_FIT_CHARS), Error(ERROR_SUCCESS));
    EXPECT_EQ(ErrorOfEncodingFlags(kWestern, WC_ERR_INVALID_CHARS), refused);
}

TEST_P(TextContract, Utf8HasNoDefaultCharacter)
{
    if (IsWine())
        GTEST_SKIP() << "Wine overlooks that one is given or asked about";
    BOOL used = FALSE;
    for (const auto& each : {std::pair<const char*, BOOL*>{"?", nullptr}, {"", &used}, {nullptr, &used}})
        EXPECT_EQ(ErrorOf([&] { return ToNarrow(CP_UTF8, L"a", 1, {}, 0, each.first, each.second); }),
                  Error(ERROR_INVALID_PARAMETER));
}

TEST_P(TextContract, LoneSurrogatesAreReplacedOrRefused)
{
    const std::wstring high(1, static_cast<wchar_t>(0xD800));
    const std::wstring low(1, static_cast<wchar_t>(0xDFFF));
    for (const std::wstring& lone : {high, low})
    {
        EXPECT_EQ(Encode(CP_UTF8, L"a" + lone + L"z"), "a\xEF\xBF\xBDz");
        EXPECT_EQ(Encode(CP_UTF8, lone), "\xEF\xBF\xBD");
        EXPECT_EQ(ErrorOf([&] { return !Encode(CP_UTF8, L"a" + lone, WC_ERR_INVALID_CHARS).empty(); }),
                  Error(ERROR_NO_UNICODE_TRANSLATION));
    }
}

TEST_P(TextContract, WhatACodePageLacksBecomesTheDefaultCharacter)
{
    BOOL used = FALSE;
    EXPECT_EQ(Encode(kWestern, L"a\u6771z", 0, nullptr, &used), "a?z");
    EXPECT_EQ(used, TRUE);
    EXPECT_EQ(Encode(kWestern, L"a\u6771z", 0, "_", &used), "a_z");
    EXPECT_EQ(used, TRUE);
    EXPECT_EQ(Encode(kWestern, L"az", 0, "_", &used), "az");
    EXPECT_EQ(used, FALSE);
    EXPECT_EQ(Encode(kChinese, L"\u4FE1\u0E01", 0, nullptr, &used), "\xD0\xC5?");
    EXPECT_EQ(used, TRUE);
    EXPECT_EQ(Encode(kWestern, L"\u6771", 0, "_"), "_") << "even without a request for it";
}

/// Not every combination of the two is an own path on the platform, but all answer alike.
TEST_P(TextContract, ADefaultCharacterThatIsInTheTextAnywayIsNotUsed)
{
    BOOL used = TRUE;
    EXPECT_EQ(Encode(kWestern, L"a?z", 0, nullptr, &used), "a?z");
    EXPECT_EQ(used, FALSE);
    used = TRUE;
    EXPECT_EQ(Encode(kWestern, L"a_z", WC_NO_BEST_FIT_CHARS, "_", &used), "a_z");
    EXPECT_EQ(used, FALSE);
}

TEST_P(TextContract, AnEmptyDefaultIsItsTerminator)
{
    BOOL used = FALSE;
    EXPECT_EQ(Encode(kWestern, L"a\u6771z", 0, "", &used), std::string("a\0z", 3));
    EXPECT_EQ(used, TRUE);
}

TEST_P(TextContract, EachUnitOfAPairIsReplaced)
{
    EXPECT_EQ(Encode(kWestern, L"\U0001F6C4"), "??");
    EXPECT_EQ(Encode(kWestern, L"\U0001F6C4", 0, "_"), "__");
}

TEST_P(TextContract, SimilarCharactersAreTakenUnlessForbidden)
{
    BOOL used = FALSE;
    EXPECT_EQ(Encode(kWestern, L"\u0101", WC_NO_BEST_FIT_CHARS, nullptr, &used), "?");
    EXPECT_EQ(used, TRUE);
    EXPECT_EQ(Encode(kWestern, L"\uFF21\u2032", WC_NO_BEST_FIT_CHARS), "??");
#ifndef _WIN32
    GTEST_SKIP()
        << "the converter of the simulated computer is the C library's here, which knows no similar characters";
#endif
    EXPECT_EQ(Encode(kWestern, L"\u0101", 0, nullptr, &used), "a");
    EXPECT_EQ(used, FALSE);
    EXPECT_EQ(Encode(kWestern, L"\uFF21\u2032"), "A'");
}

// GUIDs.

constexpr GUID kGuid{0x5CA1AB1E, 0x00FF, 0x4abc, {0x80, 0x00, 0x01, 0x23, 0x45, 0x67, 0x89, 0xab}};

TEST_P(TextContract, AGuidIsInBracesAndUpperCase)
{
    std::array<wchar_t, 64> text{};
    EXPECT_EQ(Text().StringFromGUID2(kGuid, text.data(), 64), 39) << "with the terminator";
    EXPECT_STREQ(text.data(), L"{5CA1AB1E-00FF-4ABC-8000-0123456789AB}");
    EXPECT_EQ(Text().StringFromGUID2(GUID{}, text.data(), 64), 39);
    EXPECT_STREQ(text.data(), L"{00000000-0000-0000-0000-000000000000}");
}

TEST_P(TextContract, AGuidNeedsRoomForAll)
{
    std::array<wchar_t, 39> text{};
    EXPECT_EQ(Text().StringFromGUID2(kGuid, text.data(), 39), 39);
    text.fill(L'#');
    for (const int capacity : {0, 1, 38})
        EXPECT_EQ(Text().StringFromGUID2(kGuid, text.data(), capacity), 0);
    EXPECT_EQ(text.front(), L'#') << "nothing is written";
}

} // namespace

} // namespace calvix::test::text_contract_test
