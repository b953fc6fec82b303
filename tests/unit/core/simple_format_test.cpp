#include "core/simple_format.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <string>

namespace calvix::test::simple_format_test
{

namespace
{

struct Formatted
{
    bool known;
    std::size_t length;
    std::string text;
};

Formatted Simply(std::size_t capacity, const char* format, ...)
{
    std::va_list values;
    va_start(values, format);
    std::string buffer(capacity, '#');
    Formatted formatted{};
    formatted.known = FormatSimply(buffer.data(), capacity, format, values, formatted.length);
    va_end(values);
    formatted.text = buffer.substr(0, buffer.find('\0'));
    return formatted;
}

/// What the C library makes of the same format and values, at capacities around the text's length.
template <typename... Values>
void ExpectTheRuntimesText(const char* format, Values... values)
{
    SCOPED_TRACE(format);
    char whole[512];
    const int length = std::snprintf(whole, sizeof(whole), format, values...);
    ASSERT_GE(length, 0);
    for (const std::size_t capacity :
         {std::size_t{1}, std::size_t{2}, static_cast<std::size_t>(length) / 2 + 1, static_cast<std::size_t>(length),
          static_cast<std::size_t>(length) + 1, static_cast<std::size_t>(length) + 2, sizeof(whole)})
    {
        if (capacity == 0)
            continue;
        SCOPED_TRACE(capacity);
        const Formatted simply = Simply(capacity, format, values...);
        EXPECT_TRUE(simply.known);
        EXPECT_EQ(static_cast<std::size_t>(length), simply.length);
        EXPECT_EQ(std::string(whole).substr(0, capacity - 1), simply.text);
    }
}

} // namespace

TEST(FormatSimplyTest, GivesTheCRuntimesTextOfNumbers)
{
    for (const unsigned number : {0u, 1u, 9u, 10u, 0xABCDEFu, 0x80000000u, UINT_MAX})
    {
        SCOPED_TRACE(number);
        ExpectTheRuntimesText("failed with error: %u", number);
        ExpectTheRuntimesText("%x|%X|%08X|%04X|%02X|%04u", number, number, number, number, number, number);
        ExpectTheRuntimesText("%d, %i.", static_cast<int>(number), static_cast<int>(number));
    }
    ExpectTheRuntimesText("%d %d", INT_MIN, INT_MAX);
    for (const long number : {0L, -1L, LONG_MIN, LONG_MAX})
        ExpectTheRuntimesText("%ld %lu %lx %08lX", number, static_cast<unsigned long>(number),
                              static_cast<unsigned long>(number), static_cast<unsigned long>(number));
}

TEST(FormatSimplyTest, GivesTheCRuntimesTextOfTexts)
{
    EXPECT_EQ("no conversion", Simply(64, "no conversion").text);
    EXPECT_EQ("no", Simply(3, "no conversion").text);
    EXPECT_EQ(13u, Simply(3, "no conversion").length);
    EXPECT_EQ("", Simply(1, "").text);
    ExpectTheRuntimesText("%s", "");
    ExpectTheRuntimesText("[%s][%s]", "one", "\xFF\x80 two");
    for (const int precision : {0, 1, 5, 6, 7, 40})
        ExpectTheRuntimesText("(%.*s)", precision, "Home N");
    ExpectTheRuntimesText("%s[%u]:\t %.*s 0x%x\n", "SSID", 3u, 4, "HomeNet", 0x1fu);
}

TEST(FormatSimplyTest, LeavesTheRestToTheCRuntime)
{
    EXPECT_FALSE(Simply(64, "%ls", L"wide").known);
    EXPECT_FALSE(Simply(64, "100%%").known);
    EXPECT_FALSE(Simply(64, "%5u", 1u).known);
    EXPECT_FALSE(Simply(64, "%-4u", 1u).known);
    EXPECT_FALSE(Simply(64, "%04d", 1).known);
    EXPECT_FALSE(Simply(64, "%012u", 1u).known);
    EXPECT_FALSE(Simply(64, "%llu", 1ULL).known);
    EXPECT_FALSE(Simply(64, "%c", 'c').known);
    EXPECT_FALSE(Simply(64, "%").known);
    EXPECT_FALSE(Simply(64, "%s", static_cast<const char*>(nullptr)).known);
    EXPECT_FALSE(Simply(64, "%.*s", -1, "all of it").known);
}

} // namespace calvix::test::simple_format_test
