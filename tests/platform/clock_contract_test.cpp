#include "provider.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>

namespace calvix::test::clock_contract_test
{

namespace
{

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

/// In units of 100 nanoseconds.
constexpr std::uint64_t kMillisecond = 10'000;
constexpr std::uint64_t kDay = 86'400'000 * kMillisecond;
constexpr std::uint64_t kLatest = 0x7FFFFFFFFFFFFFFF;

constexpr sys_days kFirstDay = std::chrono::year{1601} / 1 / 1;

constexpr FILETIME FileTime(std::uint64_t units)
{
    return {static_cast<DWORD>(units & 0xFFFFFFFF), static_cast<DWORD>(units >> 32)};
}

std::string TextOf(const SYSTEMTIME& time)
{
    char text[64];
    std::snprintf(text, sizeof text, "%d-%02d-%02d weekday %d %02d:%02d:%02d.%03d", time.wYear, time.wMonth, time.wDay,
                  time.wDayOfWeek, time.wHour, time.wMinute, time.wSecond, time.wMilliseconds);
    return text;
}

/// The beginning of a day.
std::string TextOf(sys_days day)
{
    const year_month_day date{day};
    SYSTEMTIME time{};
    time.wYear = static_cast<WORD>(static_cast<int>(date.year()));
    time.wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
    time.wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
    time.wDayOfWeek = static_cast<WORD>(std::chrono::weekday{day}.c_encoding());
    return TextOf(time);
}

class ClockContract : public PlatformContract
{
protected:
    std::string Convert(std::uint64_t units)
    {
        const FILETIME fileTime = FileTime(units);
        SYSTEMTIME time{};
        EXPECT_TRUE(System().clock().FileTimeToSystemTime(&fileTime, &time)) << units;
        return TextOf(time);
    }

    DWORD ErrorOfConverting(std::uint64_t units)
    {
        const FILETIME fileTime = FileTime(units);
        SYSTEMTIME time{};
        const DWORD error = ErrorOf([&] { return System().clock().FileTimeToSystemTime(&fileTime, &time); });
        EXPECT_EQ(time.wYear, 0) << "nothing is written";
        return error;
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, ClockContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(ClockContract, TimesHaveTheirParts)
{
    const std::pair<std::uint64_t, const char*> cases[] = {
        {0, "1601-01-01 weekday 1 00:00:00.000"},
        {kMillisecond - 1, "1601-01-01 weekday 1 00:00:00.000"},
        {2 * kMillisecond - 1, "1601-01-01 weekday 1 00:00:00.001"},
        {0x00000000FFFFFFFF, "1601-01-01 weekday 1 00:07:09.496"},
        {0x0000000100000000, "1601-01-01 weekday 1 00:07:09.496"},
        {47'655'016 * kMillisecond, "1601-01-01 weekday 1 13:14:15.016"},
        {kDay - 1, "1601-01-01 weekday 1 23:59:59.999"},
        {kDay, "1601-01-02 weekday 2 00:00:00.000"},
        {0x019DB1DED53E8000, "1970-01-01 weekday 4 00:00:00.000"},
        {125'962'559'999'999'999, "2000-02-28 weekday 1 23:59:59.999"},
        {125'962'560'000'000'000, "2000-02-29 weekday 2 00:00:00.000"},
        {133'801'200'001'230'000, "2024-12-31 weekday 2 12:00:00.123"},
        {kLatest, "30828-09-14 weekday 4 02:48:05.477"}};
    for (const auto& [units, text] : cases)
        EXPECT_EQ(Convert(units), text) << units;
}

TEST_P(ClockContract, TimeEndsWhereItsSignWouldChange)
{
    EXPECT_EQ(ErrorOfConverting(kLatest + 1), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(ErrorOfConverting(~std::uint64_t{0}), Error(ERROR_INVALID_PARAMETER));
}

/// Every 89th day; and the turn of each year and of each February, which differ in the irregular centuries.
TEST_P(ClockContract, DatesAreThoseOfTheCalendar)
{
    constexpr int kDays = 10'675'000;
    for (int day = 0; day < kDays; day += 89)
        ASSERT_EQ(Convert(static_cast<std::uint64_t>(day) * kDay), TextOf(kFirstDay + days{day}));
    for (const int year : {1602, 1605, 1700, 1701, 1900, 2000, 2001, 2024, 2025, 2100, 2400, 9999, 10'000, 30'000})
    {
        const auto newYear = static_cast<int>((sys_days{std::chrono::year{year} / 1 / 1} - kFirstDay).count());
        for (const int day : {newYear - 1, newYear, newYear + 58, newYear + 59})
            EXPECT_EQ(Convert(static_cast<std::uint64_t>(day) * kDay), TextOf(kFirstDay + days{day}));
    }
}

TEST_P(ClockContract, ConvertingLeavesTheLastErrorAlone)
{
    LeaveUnlikelyError();
    Convert(0);
    EXPECT_EQ(LastError(), kUnlikelyError);
}

TEST_P(ClockContract, SleepingForNoTimeReturns)
{
    LeaveUnlikelyError();
    System().clock().Sleep(0);
    EXPECT_EQ(LastError(), kUnlikelyError);
}

} // namespace

} // namespace calvix::test::clock_contract_test
