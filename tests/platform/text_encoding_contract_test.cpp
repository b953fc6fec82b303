#include "text_contract.h"

#include <array>
#include <cstring>

namespace calvix::test::text_encoding_contract_test
{

namespace
{

class TextEncodingContract : public TextContract
{
protected:
    /// The last error that converting one letter with these flags leaves, 0 if it succeeds.
    DWORD ErrorOfFlags(UINT codePage, DWORD flags)
    {
        ErrorOf([&] { return Text().WideCharToMultiByte(codePage, 0, nullptr, 0, nullptr, 0, nullptr, nullptr); });
        const int size = Text().WideCharToMultiByte(codePage, flags, L"a", 1, nullptr, 0, nullptr, nullptr);
        return size == 1 ? ERROR_SUCCESS : LastError();
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, TextEncodingContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(TextEncodingContract, EachCodePageHasItsCharacters)
{
    const struct
    {
        UINT codePage;
        std::wstring text;
        std::string bytes;
    } cases[] = {{kWestern, L"Caf\u00E9 \u20AC \u0178", "Caf\xE9 \x80 \x9F"},
                 {kWestern, L"\u0081\u008D\u008F\u0090\u009D", "\x81\x8D\x8F\x90\x9D"},
                 {kJapanese, L"\\~\u6771\u4EAC \uFF71", "\\~\x93\x8C\x8B\x9E \xB1"},
                 {kJapanese, L"\uFF5E\u2460", "\x81\x60\x87\x40"},
                 {kChinese, L"\u4FE1\u53F7 \u20AC", "\xD0\xC5\xBA\xC5 \x80"},
                 {437, L"\u00E9\u00DF", "\x82\xE1"},
                 {850, L"\u00E9\u0131", "\x82\xD5"},
                 {949, L"\uAC00", "\xB0\xA1"},
                 {950, L"\u4E2D", "\xA4\xA4"},
                 {1250, L"\u015A\u0105", "\x8C\xB9"},
                 {1251, L"\u0417\u0430\u043B", "\xC7\xE0\xEB"}};
    for (const auto& each : cases)
    {
        BOOL used = 7;
        EXPECT_EQ(Encode(each.codePage, each.text, 0, nullptr, &used), each.bytes) << each.codePage;
        EXPECT_EQ(used, FALSE);
        EXPECT_EQ(Encode(each.codePage, each.text, WC_NO_BEST_FIT_CHARS), each.bytes) << each.codePage;
    }
    EXPECT_EQ(Encode(CP_UTF8, L"a\u00E9\u20AC\U0001F6C4\U0010FFFF"),
              "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9B\x84\xF4\x8F\xBF\xBF");
}

TEST_P(TextEncodingContract, ANegativeLengthMeansAsFarAsTheTerminator)
{
    for (const UINT codePage : {kWestern, kJapanese, UINT{CP_UTF8}})
    {
        std::array<char, 5> room{9, 9, 9, 9, 9};
        EXPECT_EQ(Text().WideCharToMultiByte(codePage, 0, L"ab\0c", -1, room.data(), 5, nullptr, nullptr), 3);
        EXPECT_EQ(std::memcmp(room.data(), "ab\0\x9\x9", 5), 0) << codePage;
        EXPECT_EQ(Text().WideCharToMultiByte(codePage, 0, L"", -1, room.data(), 5, nullptr, nullptr), 1);
        EXPECT_EQ(room[0], '\0');
    }
}

TEST_P(TextEncodingContract, AGivenLengthAddsNoTerminator)
{
    std::array<char, 4> room{9, 9, 9, 9};
    EXPECT_EQ(Text().WideCharToMultiByte(kWestern, 0, L"abc", 2, room.data(), 4, nullptr, nullptr), 2);
    EXPECT_EQ(std::memcmp(room.data(), "ab\x9\x9", 4), 0);
}

TEST_P(TextEncodingContract, WithoutRoomTheSizeIsAnswered)
{
    LeaveUnlikelyError();
    EXPECT_EQ(Text().WideCharToMultiByte(CP_UTF8, 0, L"\u6771!", -1, nullptr, 0, nullptr, nullptr), 5);
    EXPECT_EQ(Text().WideCharToMultiByte(kJapanese, 0, L"\u6771!", 2, nullptr, 0, nullptr, nullptr), 3);
    EXPECT_EQ(Text().WideCharToMultiByte(kWestern, 0, L"\u6771!", 2, nullptr, 0, nullptr, nullptr), 2);
    char untouched = '#';
    EXPECT_EQ(Text().WideCharToMultiByte(kWestern, 0, L"abc", 3, &untouched, 0, nullptr, nullptr), 3);
    EXPECT_EQ(untouched, '#');
    EXPECT_EQ(LastError(), kUnlikelyError);
}

TEST_P(TextEncodingContract, AskingForTheSizeReportsTheDefaultCharacter)
{
    BOOL used = FALSE;
    EXPECT_EQ(Text().WideCharToMultiByte(kWestern, 0, L"\u6771", 1, nullptr, 0, nullptr, &used), 1);
    EXPECT_EQ(used, TRUE);
    EXPECT_EQ(Text().WideCharToMultiByte(kWestern, 0, L"a", 1, nullptr, 0, nullptr, &used), 1);
    EXPECT_EQ(used, FALSE);
}

TEST_P(TextEncodingContract, RoomForExactlyAllIsEnough)
{
    std::array<char, 5> room{};
    EXPECT_EQ(Text().WideCharToMultiByte(CP_UTF8, 0, L"\u6771!", -1, room.data(), 5, nullptr, nullptr), 5);
    EXPECT_STREQ(room.data(), "\xE6\x9D\xB1!");
}

TEST_P(TextEncodingContract, WithTooLittleRoomWhatFitsIsThere)
{
    for (const UINT codePage : {kWestern, kJapanese, UINT{CP_UTF8}})
    {
        std::array<char, 3> room{9, 9, 9};
        EXPECT_EQ(
            ErrorOf([&]
                    { return Text().WideCharToMultiByte(codePage, 0, L"abc", -1, room.data(), 2, nullptr, nullptr); }),
            Error(ERROR_INSUFFICIENT_BUFFER));
        EXPECT_EQ(std::memcmp(room.data(), "ab\x9", 3), 0) << codePage << ": no terminator";
    }
}

TEST_P(TextEncodingContract, NoCharacterIsCutInTwo)
{
    for (const auto& [codePage, size] : {std::pair<UINT, int>{kJapanese, 2}, {CP_UTF8, 3}})
    {
        std::array<char, 4> room{9, 9, 9, 9};
        EXPECT_EQ(ErrorOf(
                      [&, codePage = codePage, size = size] {
                          return Text().WideCharToMultiByte(codePage, 0, L"a\u6771", 2, room.data(), size, nullptr,
                                                            nullptr);
                      }),
                  Error(ERROR_INSUFFICIENT_BUFFER));
        EXPECT_EQ(std::memcmp(room.data(), "a\x9\x9\x9", 4), 0) << codePage;
    }
}

TEST_P(TextEncodingContract, ArgumentsThatMeanNothingAreRefused)
{
    std::array<char, 4> room{};
    const auto errorOf = [&](UINT codePage, const wchar_t* source, int length, char* destination, int size)
    {
        return ErrorOf(
            [&]
            { return Text().WideCharToMultiByte(codePage, 0, source, length, destination, size, nullptr, nullptr); });
    };
    for (const UINT codePage : {UINT{CP_ACP}, kWestern, UINT{CP_UTF8}})
    {
        EXPECT_EQ(errorOf(codePage, nullptr, -1, room.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(errorOf(codePage, nullptr, 0, room.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(errorOf(codePage, L"a", 0, room.data(), 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(errorOf(codePage, L"a", 1, nullptr, 4), Error(ERROR_INVALID_PARAMETER));
        EXPECT_EQ(errorOf(codePage, L"a", 1, room.data(), -1), Error(ERROR_INVALID_PARAMETER));
    }
    EXPECT_EQ(errorOf(12345, L"a", 1, room.data(), 4), Error(ERROR_INVALID_PARAMETER)) << "an unknown code page";
}

TEST_P(TextEncodingContract, SourceAndDestinationMustNotBeOne)
{
    if (IsWine())
        GTEST_SKIP() << "Wine does not compare the two";
    std::array<wchar_t, 4> text{L'a', L'b'};
    auto* destination = reinterpret_cast<char*>(text.data());
    EXPECT_EQ(
        ErrorOf([&]
                { return Text().WideCharToMultiByte(kWestern, 0, text.data(), 2, destination, 8, nullptr, nullptr); }),
        Error(ERROR_INVALID_PARAMETER));
}

TEST_P(TextEncodingContract, UnknownFlagsAreRefused)
{
    for (const UINT codePage : {UINT{CP_ACP}, kWestern, kJapanese, UINT{CP_UTF8}})
        for (const DWORD flags : {Error(0x4000), Error(0x80000000), Error(MB_PRECOMPOSED)})
            EXPECT_EQ(ErrorOfFlags(codePage, flags), Error(ERROR_INVALID_FLAGS)) << codePage << ' ' << flags;
}

/// Each of the two kinds of code pages has a strictness of its own, and only its own. Wine overlooks the other's.
TEST_P(TextEncodingContract, EachCodePageTakesItsOwnFlags)
{
    const DWORD refused = OrOnWine(Error(ERROR_INVALID_FLAGS), Error(ERROR_SUCCESS));
    EXPECT_EQ(ErrorOfFlags(CP_UTF8, WC_ERR_INVALID_CHARS), Error(ERROR_SUCCESS));
    EXPECT_EQ(ErrorOfFlags(CP_UTF8, WC_NO_BEST_FIT_CHARS), refused);
    EXPECT_EQ(ErrorOfFlags(CP_UTF8, WC_COMPOSITECHECK), refused);
    EXPECT_EQ(ErrorOfFlags(kWestern, WC_NO_BEST_FIT_CHARS), Error(ERROR_SUCCESS));
    EXPECT_EQ(ErrorOfFlags(kWestern, WC_ERR_INVALID_CHARS), refused);
}

TEST_P(TextEncodingContract, Utf8HasNoDefaultCharacter)
{
    if (IsWine())
        GTEST_SKIP() << "Wine overlooks that one is given or asked about";
    BOOL used = FALSE;
    EXPECT_EQ(ErrorOfEncoding(CP_UTF8, L"a", 0, "?"), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(ErrorOfEncoding(CP_UTF8, L"a", 0, "", &used), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(ErrorOfEncoding(CP_UTF8, L"a", 0, nullptr, &used), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(TextEncodingContract, LoneSurrogatesAreReplacedOrRefused)
{
    const std::wstring high(1, static_cast<wchar_t>(0xD800));
    const std::wstring low(1, static_cast<wchar_t>(0xDFFF));
    for (const std::wstring& lone : {high, low})
    {
        EXPECT_EQ(Encode(CP_UTF8, L"a" + lone + L"z"), "a\xEF\xBF\xBDz");
        EXPECT_EQ(Encode(CP_UTF8, lone), "\xEF\xBF\xBD");
        EXPECT_EQ(ErrorOfEncoding(CP_UTF8, L"a" + lone, WC_ERR_INVALID_CHARS), Error(ERROR_NO_UNICODE_TRANSLATION));
    }
}

TEST_P(TextEncodingContract, WhatACodePageLacksBecomesTheDefaultCharacter)
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
TEST_P(TextEncodingContract, ADefaultCharacterThatIsInTheTextAnywayIsNotUsed)
{
    BOOL used = TRUE;
    EXPECT_EQ(Encode(kWestern, L"a?z", 0, nullptr, &used), "a?z");
    EXPECT_EQ(used, FALSE);
    used = TRUE;
    EXPECT_EQ(Encode(kWestern, L"a_z", WC_NO_BEST_FIT_CHARS, "_", &used), "a_z");
    EXPECT_EQ(used, FALSE);
}

TEST_P(TextEncodingContract, AnEmptyDefaultIsItsTerminator)
{
    BOOL used = FALSE;
    EXPECT_EQ(Encode(kWestern, L"a\u6771z", 0, "", &used), std::string("a\0z", 3));
    EXPECT_EQ(used, TRUE);
}

TEST_P(TextEncodingContract, EachUnitOfAPairIsReplaced)
{
    EXPECT_EQ(Encode(kWestern, L"\U0001F6C4"), "??");
    EXPECT_EQ(Encode(kWestern, L"\U0001F6C4", 0, "_"), "__");
}

TEST_P(TextEncodingContract, SimilarCharactersAreTakenUnlessForbidden)
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

} // namespace

} // namespace calvix::test::text_encoding_contract_test
