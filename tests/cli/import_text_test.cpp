#include "import/capture_values.h"
#include "import_samples.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_text_test
{

TEST(CaptureText, FieldsEndAtTheFirstColonAndAreTrimmed)
{
    const std::vector<CaptureField> fields = ReadFields("\r\n  SSID 1 :  a: b  \t\r\n\n bare words \nEmpty:");
    ASSERT_EQ(fields.size(), 3u);
    EXPECT_EQ(fields[0].name, "SSID 1");
    EXPECT_EQ(fields[0].value, "a: b");
    EXPECT_EQ(fields[0].line, 2u);
    EXPECT_EQ(fields[1].name, "bare words");
    EXPECT_FALSE(fields[1].hasColon);
    EXPECT_EQ(fields[1].line, 4u);
    EXPECT_EQ(fields[2].name, "Empty");
    EXPECT_EQ(fields[2].value, "");
    EXPECT_TRUE(fields[2].hasColon);
    EXPECT_EQ(fields[2].line, 5u);
}

struct EncodedText
{
    const char* what;
    std::string bytes;
    std::string text;
};

TEST(CaptureText, IsReadInEveryEncodingOfTheTools)
{
    using namespace std::string_literals;
    const EncodedText cases[] = {
        {"plain", "a\r\n", "a\r\n"},
        {"empty", "", ""},
        {"UTF-8", "S\xC3\xBC\xC3\x9F", "S\xC3\xBC\xC3\x9F"},
        {"UTF-8 with a mark", "\xEF\xBB\xBFS", "S"},
        {"UTF-8 of four bytes", "\xF0\x9F\x93\xB6", "\xF0\x9F\x93\xB6"},
        {"UTF-16, little end first", "\xFF\xFES\0\xFC\0\n\0"s, "S\xC3\xBC\n"},
        {"UTF-16, big end first", "\xFE\xFF\0S\0\xFC"s, "S\xC3\xBC"},
        {"UTF-16 of three UTF-8 bytes", "\xFF\xFE\xAC\x20"s, "\xE2\x82\xAC"},
        {"UTF-16 with a surrogate pair", "\xFF\xFE\x3D\xD8\xF6\xDC"s, "\xF0\x9F\x93\xB6"},
    };
    for (const EncodedText& each : cases)
        EXPECT_EQ(ToUtf8(each.bytes), each.text) << each.what;
}

struct IllFormedText
{
    const char* what;
    std::string bytes;
    std::size_t line;
};

TEST(CaptureText, SaysInWhichLineTheEncodingBreaks)
{
    using namespace std::string_literals;
    const IllFormedText cases[] = {
        {"a lone byte of another code page", "one\ntwo\nCaf\xE9 \n", 3},
        {"a follower without a lead", "\x80", 1},
        {"an overlong form of two bytes", "\n\xC0\xAF", 2},
        {"an overlong form of three bytes", "\xE0\x80\xAF", 1},
        {"an overlong form of four bytes", "\xF0\x80\x80\xAF", 1},
        {"a surrogate", "\xED\xA0\x80", 1},
        {"a point beyond the last", "\xF4\x90\x80\x80", 1},
        {"a lead that no text has", "\xF8\x88\x80\x80\x80", 1},
        {"a text cut within a character", "a\nb\xE2\x82", 2},
        {"half a surrogate pair", "\xFF\xFE\n\0\x3D\xD8"s, 2},
        {"the other half", "\xFF\xFE\xF6\xDC"s, 1},
        {"UTF-16 cut within a character", "\xFF\xFE\n\0\n\0a"s, 3},
    };
    for (const IllFormedText& each : cases)
    {
        const std::string complaint = Complaint([&] { ReadingFrom("file", [&] { return ToUtf8(each.bytes); }); });
        EXPECT_EQ(complaint.find("file:" + std::to_string(each.line) + ": this is not UTF-"), 0u)
            << each.what << ": " << complaint;
    }
}

struct Channel
{
    const char* band;
    int number;
    std::uint32_t frequencyKhz; ///< 0: no such channel
};

TEST(ChannelFrequency, OfEveryBand)
{
    const Channel cases[] = {
        {"2.4", 0, 0},      {"2.4", 1, 2412000}, {"2.4", 6, 2437000}, {"2.4", 13, 2472000}, {"2.4", 14, 2484000},
        {"2.4", 15, 0},     {"5", 31, 0},        {"5", 32, 5160000},  {"5", 36, 5180000},   {"5", 44, 5220000},
        {"5", 64, 5320000}, {"5", 100, 5500000}, {"5", 165, 5825000}, {"5", 177, 5885000},  {"5", 178, 0},
        {"6", 0, 0},        {"6", 1, 5955000},   {"6", 2, 5935000},   {"6", 37, 6135000},   {"6", 233, 7115000},
        {"6", 234, 0},      {"60", 1, 0},        {"", 0, 0},          {"", 1, 2412000},     {"", 14, 2484000},
        {"", 15, 0},        {"", 31, 0},         {"", 32, 5160000},   {"", 177, 5885000},   {"", 178, 0},
        {"", -1, 0},
    };
    for (const Channel& each : cases)
        EXPECT_EQ(CapturedFrequency(each.band, each.number).value_or(0), each.frequencyKhz)
            << each.band << " GHz, channel " << each.number;
}

} // namespace calvix::host::test::import_text_test
