#include "text_contract.h"

#include <array>
#include <cstring>
#include <cwchar>

namespace calvix::test::text_decoding_contract_test
{

namespace
{

class TextDecodingContract : public TextContract
{
protected:
    /// The last error that converting one letter with these flags leaves, 0 if it succeeds.
    DWORD ErrorOfFlags(UINT codePage, DWORD flags)
    {
        ErrorOf([&] { return Text().MultiByteToWideChar(codePage, 0, nullptr, 0, nullptr, 0); });
        return Text().MultiByteToWideChar(codePage, flags, "a", 1, nullptr, 0) == 1 ? ERROR_SUCCESS : LastError();
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, TextDecodingContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(TextDecodingContract, EachCodePageHasItsCharacters)
{
    const struct
    {
        UINT codePage;
        std::string bytes;
        std::wstring text;
    } cases[] = {{kWestern, "Caf\xE9 \x80 \x9F", L"Caf\u00E9 \u20AC \u0178"},
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
                 {CP_UTF8, "a\xC3\xA9\xE2\x82\xAC", L"a\u00E9\u20AC"}};
    for (const auto& each : cases)
    {
        EXPECT_EQ(Decode(each.codePage, each.bytes), each.text) << each.codePage;
        EXPECT_EQ(Decode(each.codePage, each.bytes, MB_ERR_INVALID_CHARS), each.text) << each.codePage;
    }
}

TEST_P(TextDecodingContract, TheActiveCodePagesContainAscii)
{
    std::string ascii;
    for (char character = 1; character < 127; ++character)
        ascii += character;
    const std::wstring wide(ascii.begin(), ascii.end());
    constexpr UINT kThreadCodePage = 3;
    for (const UINT codePage : {UINT{CP_ACP}, UINT{CP_OEMCP}, kThreadCodePage, kWestern, UINT{CP_UTF8}})
        EXPECT_EQ(Decode(codePage, ascii), wide) << codePage;
}

TEST_P(TextDecodingContract, CharactersBeyondTheBasicPlane)
{
    EXPECT_EQ(Decode(CP_UTF8, "\xF0\x9F\x9B\x84"), L"\U0001F6C4");
    EXPECT_EQ(Decode(CP_UTF8, "\xF4\x8F\xBF\xBF"), L"\U0010FFFF");
}

TEST_P(TextDecodingContract, NoCharacterIsSpecial)
{
    const std::string bytes("a\0b\xEF\xBB\xBF\r\n", 8);
    EXPECT_EQ(Decode(CP_UTF8, bytes), std::wstring(L"a\0b\uFEFF\r\n", 6)) << "terminators and byte order marks stay";
}

TEST_P(TextDecodingContract, ANegativeLengthMeansAsFarAsTheTerminator)
{
    for (const UINT codePage : {kWestern, kJapanese, UINT{CP_UTF8}})
    {
        std::array<wchar_t, 5> room{9, 9, 9, 9, 9};
        EXPECT_EQ(Text().MultiByteToWideChar(codePage, 0, "ab\0c", -1, room.data(), 5), 3);
        EXPECT_EQ(std::wmemcmp(room.data(), L"ab\0\x9\x9", 5), 0) << codePage;
        EXPECT_EQ(Text().MultiByteToWideChar(codePage, 0, "", -1, room.data(), 5), 1);
        EXPECT_EQ(room[0], L'\0');
    }
}

TEST_P(TextDecodingContract, AGivenLengthAddsNoTerminator)
{
    std::array<wchar_t, 4> room{9, 9, 9, 9};
    EXPECT_EQ(Text().MultiByteToWideChar(kWestern, 0, "abc", 2, room.data(), 4), 2);
    EXPECT_EQ(std::wmemcmp(room.data(), L"ab\x9\x9", 4), 0);
}

TEST_P(TextDecodingContract, WithoutRoomTheSizeIsAnswered)
{
    LeaveUnlikelyError();
    EXPECT_EQ(Text().MultiByteToWideChar(CP_UTF8, 0, "\xE6\x9D\xB1!", -1, nullptr, 0), 3);
    EXPECT_EQ(Text().MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, "\xE6\x9D\xB1!", 4, nullptr, 0), 2);
    EXPECT_EQ(Text().MultiByteToWideChar(kJapanese, 0, "\x93\x8C!", -1, nullptr, 0), 3);
    EXPECT_EQ(Text().MultiByteToWideChar(kWestern, 0, "abc", 3, nullptr, 0), 3);
    wchar_t untouched = L'#';
    EXPECT_EQ(Text().MultiByteToWideChar(kWestern, 0, "abc", 3, &untouched, 0), 3);
    EXPECT_EQ(untouched, L'#');
    EXPECT_EQ(LastError(), kUnlikelyError);
}

TEST_P(TextDecodingContract, RoomForExactlyAllIsEnough)
{
    std::array<wchar_t, 3> room{};
    EXPECT_EQ(Text().MultiByteToWideChar(CP_UTF8, 0, "\xE6\x9D\xB1!", -1, room.data(), 3), 3);
    EXPECT_STREQ(room.data(), L"\u6771!");
}

TEST_P(TextDecodingContract, WithTooLittleRoomWhatFitsIsThere)
{
    for (const UINT codePage : {kWestern, kJapanese, UINT{CP_UTF8}})
    {
        std::array<wchar_t, 3> room{9, 9, 9};
        EXPECT_EQ(ErrorOf([&] { return Text().MultiByteToWideChar(codePage, 0, "abc", -1, room.data(), 2); }),
                  Error(ERROR_INSUFFICIENT_BUFFER));
        EXPECT_EQ(std::wmemcmp(room.data(), L"ab\x9", 3), 0) << codePage << ": no terminator";
    }
}

TEST_P(TextDecodingContract, NoCharacterIsCutInTwo)
{
    if (IsWine())
        GTEST_SKIP() << "Wine hands out half a pair, and calls that a success";
    const std::wstring whole = L"a\U0001F6C4";
    std::array<wchar_t, 4> room{9, 9, 9, 9};
    const int tooSmall = static_cast<int>(whole.size()) - 1;
    EXPECT_EQ(
        ErrorOf([&] { return Text().MultiByteToWideChar(CP_UTF8, 0, "a\xF0\x9F\x9B\x84", 5, room.data(), tooSmall); }),
        Error(ERROR_INSUFFICIENT_BUFFER));
    EXPECT_EQ(std::wmemcmp(room.data(), L"a\x9\x9\x9", 4), 0);
}

TEST_P(TextDecodingContract, ArgumentsThatMeanNothingAreRefused)
{
    std::array<wchar_t, 4> room{};
    const auto errorOf = [&](UINT codePage, const char* source, int length, wchar_t* destination, int size)
    { return ErrorOf([&] { return Text().MultiByteToWideChar(codePage, 0, source, length, destination, size); }); };
    for (const UINT codePage : {UINT{CP_ACP}, kWestern, UINT{CP_UTF8}})
    {
        EXPECT_EQ(errorOf(codePage, nullptr, -1, room.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(errorOf(codePage, nullptr, 0, room.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(errorOf(codePage, "a", 0, room.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(errorOf(codePage, "a", 1, nullptr, 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(errorOf(codePage, "a", 1, room.data(), -1), Error(ERROR_INVALID_PARAMETER));
    }
    EXPECT_EQ(errorOf(12345, "a", 1, room.data(), 4), Error(ERROR_INVALID_PARAMETER)) << "an unknown code page";
}

TEST_P(TextDecodingContract, SourceAndDestinationMustNotBeOne)
{
    if (IsWine())
        GTEST_SKIP() << "Wine does not compare the two";
    std::array<wchar_t, 4> room{L'a', L'b'};
    const auto* source = reinterpret_cast<const char*>(room.data());
    EXPECT_EQ(ErrorOf([&] { return Text().MultiByteToWideChar(kWestern, 0, source, 2, room.data(), 4); }),
              Error(ERROR_INVALID_PARAMETER));
}

TEST_P(TextDecodingContract, UnknownFlagsAreRefused)
{
    for (const UINT codePage : {UINT{CP_ACP}, kWestern, kJapanese, UINT{CP_UTF8}})
        for (const DWORD flags : {Error(0x100), Error(0x80000000), Error(MB_ERR_INVALID_CHARS | 0x10)})
            EXPECT_EQ(ErrorOfFlags(codePage, flags), Error(ERROR_INVALID_FLAGS)) << codePage << ' ' << flags;
}

TEST_P(TextDecodingContract, ArgumentsAreLookedAtBeforeFlags)
{
    EXPECT_EQ(ErrorOf([&] { return Text().MultiByteToWideChar(CP_UTF8, 0x100, nullptr, 0, nullptr, 0); }),
              Error(ERROR_INVALID_PARAMETER));
}

TEST_P(TextDecodingContract, Utf8TakesTheStrictFlagOnly)
{
    EXPECT_EQ(Decode(CP_UTF8, "a", MB_ERR_INVALID_CHARS), L"a");
    if (IsWine())
        GTEST_SKIP() << "Wine overlooks the other code pages' flags";
    for (const DWORD flags : {Error(MB_PRECOMPOSED), Error(MB_COMPOSITE), Error(MB_USEGLYPHCHARS),
                              Error(MB_PRECOMPOSED | MB_ERR_INVALID_CHARS)})
        EXPECT_EQ(ErrorOfFlags(CP_UTF8, flags), Error(ERROR_INVALID_FLAGS)) << flags;
}

TEST_P(TextDecodingContract, OtherCodePagesTakeTheirs)
{
    for (const UINT codePage : {UINT{CP_ACP}, kWestern, kJapanese})
    {
        EXPECT_EQ(Decode(codePage, "a", MB_PRECOMPOSED | MB_ERR_INVALID_CHARS), L"a");
        EXPECT_EQ(Decode(codePage, "a", MB_USEGLYPHCHARS), L"a");
        // Wine takes both at once, which mean the opposite.
        const DWORD precomposedAndComposite = ErrorOfFlags(codePage, MB_PRECOMPOSED | MB_COMPOSITE);
        EXPECT_EQ(precomposedAndComposite, OrOnWine(Error(ERROR_INVALID_FLAGS), Error(ERROR_SUCCESS))) << codePage;
    }
}

TEST_P(TextDecodingContract, CharactersCanBeTakenApart)
{
    if (IsSimulation())
        GTEST_SKIP() << "composing and decomposing is not furnished in the simulated computer; nobody here asks for it";
    EXPECT_EQ(Decode(kWestern, "\xE9", MB_COMPOSITE), L"e\u0301");
}

TEST_P(TextDecodingContract, IllFormedUtf8IsReplacedPartByPart)
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
        EXPECT_EQ(ErrorOfDecoding(CP_UTF8, each.bytes, MB_ERR_INVALID_CHARS), Error(ERROR_NO_UNICODE_TRANSLATION));
        EXPECT_EQ(
            Text().MultiByteToWideChar(CP_UTF8, 0, each.bytes.data(), static_cast<int>(each.bytes.size()), nullptr, 0),
            static_cast<int>(each.text.size()))
            << "the size knows it too";
    }
}

/// How many replacements such a sequence makes, the record does not say. The simulation makes one of each byte, as the
/// Unicode Standard recommends; Wine takes the lead byte and the one that must not follow it for one part.
TEST_P(TextDecodingContract, SequencesThatBeginImpossiblyAreReplacedToo)
{
    for (const char* bytes : {"\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80", "\xF4\x90\x80\x80"})
    {
        const std::wstring text = Decode(CP_UTF8, bytes);
        const std::size_t length = std::strlen(bytes);
        if (GetParam() != Provider::windows)
            EXPECT_EQ(text.size(), OrOnWine(length, length - 1)) << testing::PrintToString(bytes);
        EXPECT_EQ(text, std::wstring(text.size(), L'\uFFFD')) << testing::PrintToString(bytes);
        EXPECT_EQ(ErrorOfDecoding(CP_UTF8, bytes, MB_ERR_INVALID_CHARS), Error(ERROR_NO_UNICODE_TRANSLATION));
    }
}

TEST_P(TextDecodingContract, IllFormedTextOfOtherCodePagesIsRefusedToo)
{
    for (const auto& [codePage, bytes] : {std::pair<UINT, std::string>{kJapanese, "a\x81"},
                                          {kJapanese, "\x81 "},
                                          {kChinese, "a\xFF"},
                                          {kChinese, "\xD0"}})
    {
        EXPECT_EQ(ErrorOfDecoding(codePage, bytes, MB_ERR_INVALID_CHARS), Error(ERROR_NO_UNICODE_TRANSLATION))
            << codePage << ' ' << testing::PrintToString(bytes);
        EXPECT_FALSE(Decode(codePage, bytes).empty()) << "but replaced without the flag";
    }
}

} // namespace

} // namespace calvix::test::text_decoding_contract_test
