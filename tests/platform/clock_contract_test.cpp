#include "provider.h"

#include <chrono>
#include <cstdint>

namespace calvix::test::clock_contract_test
{

namespace
{

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

/// In units of 100 nanoseconds.
constexpr std::uint64_t kMillisecond = 10'000;
constexpr std::uint64_t kSecond = 1'000 * kMillisecond;
constexpr std::uint64_t kDay = 86'400 * kSecond;
constexpr std::uint64_t kLatest = 0x7FFFFFFFFFFFFFFF;

constexpr sys_days kFirstDay{year_month_day{std::chrono::year{1601}, std::chrono::month{1}, std::chrono::day{1}}};

constexpr FILETIME FileTime(std::uint64_t units)
{
    return {static_cast<DWORD>(units & 0xFFFFFFFF), static_cast<DWORD>(units >> 32)};
}

class ClockContract : public PlatformContract
{
protected:
    SYSTEMTIME Convert(std::uint64_t units)
    {
        const FILETIME fileTime = FileTime(units);
        SYSTEMTIME time{};
        EXPECT_TRUE(System().clock().FileTimeToSystemTime(&fileTime, &time)) << units;
        return time;
    }

    DWORD ErrorOfConverting(std::uint64_t units)
    {
        const FILETIME fileTime = FileTime(units);
        SYSTEMTIME time{};
        const DWORD error = ErrorOf([&] { return System().clock().FileTimeToSystemTime(&fileTime, &time); });
        EXPECT_EQ(time.wYear, 0) << "nothing is written";
        return error;
    }

    void ExpectDate(std::uint64_t units, int year, int month, int day, int dayOfWeek)
    {
        const SYSTEMTIME time = Convert(units);
        EXPECT_EQ(time.wYear, year);
        EXPECT_EQ(time.wMonth, month);
        EXPECT_EQ(time.wDay, day);
        EXPECT_EQ(time.wDayOfWeek, dayOfWeek);
    }

    void ExpectTimeOfDay(std::uint64_t units, int hour, int minute, int second, int milliseconds)
    {
        const SYSTEMTIME time = Convert(units);
        EXPECT_EQ(time.wHour, hour);
        EXPECT_EQ(time.wMinute, minute);
        EXPECT_EQ(time.wSecond, second);
        EXPECT_EQ(time.wMilliseconds, milliseconds);
    }
};

INSTANTIATE_TEST_SUITE_P(Platform, ClockContract, testing::ValuesIn(Providers()), ProviderName);

TEST_P(ClockContract, TimeBeginsOnAMonday)
{
    ExpectDate(0, 1601, 1, 1, 1);
    ExpectTimeOfDay(0, 0, 0, 0, 0);
}

TEST_P(ClockContract, TimeEndsWhereItsSignWouldChange)
{
    ExpectDate(kLatest, 30828, 9, 14, 4);
    ExpectTimeOfDay(kLatest, 2, 48, 5, 477);
    EXPECT_EQ(ErrorOfConverting(kLatest + 1), Error(ERROR_INVALID_PARAMETER));
    EXPECT_EQ(ErrorOfConverting(~std::uint64_t{0}), Error(ERROR_INVALID_PARAMETER));
}

TEST_P(ClockContract, ADayHasItsUsualParts)
{
    ExpectTimeOfDay(kDay - 1, 23, 59, 59, 999);
    ExpectTimeOfDay(kDay, 0, 0, 0, 0);
    ExpectTimeOfDay(13 * 3'600 * kSecond + 14 * 60 * kSecond + 15 * kSecond + 16 * kMillisecond, 13, 14, 15, 16);
}

TEST_P(ClockContract, PartsOfAMillisecondAreCutOff)
{
    ExpectTimeOfDay(kMillisecond - 1, 0, 0, 0, 0);
    ExpectTimeOfDay(2 * kMillisecond - 1, 0, 0, 0, 1);
}

TEST_P(ClockContract, BothHalvesCount)
{
    ExpectDate(0x019DB1DED53E8000, 1970, 1, 1, 4);
    ExpectTimeOfDay(0x00000000FFFFFFFF, 0, 7, 9, 496);
    ExpectTimeOfDay(0x0000000100000000, 0, 7, 9, 496);
}

/// The first, the last and the leap days of years, the irregular centuries among them, and every 89th day between.
TEST_P(ClockContract, DatesAreThoseOfTheCalendar)
{
    constexpr int kDays = 10'675'000;
    for (int day = 0; day < kDays; day += 89)
    {
        const sys_days date = kFirstDay + days{day};
        const year_month_day expected{date};
        const SYSTEMTIME time = Convert(static_cast<std::uint64_t>(day) * kDay);
        ASSERT_EQ(time.wYear, static_cast<int>(expected.year())) << day;
        ASSERT_EQ(time.wMonth, static_cast<unsigned>(expected.month())) << day;
        ASSERT_EQ(time.wDay, static_cast<unsigned>(expected.day())) << day;
        ASSERT_EQ(time.wDayOfWeek, std::chrono::weekday{date}.c_encoding()) << day;
    }
}

TEST_P(ClockContract, YearsTurnWhereTheCalendarSays)
{
    for (const int year : {1602, 1605, 1700, 1701, 1900, 2000, 2001, 2024, 2025, 2100, 2400, 9999, 10'000, 30'000})
    {
        const year_month_day newYear{std::chrono::year{year}, std::chrono::month{1}, std::chrono::day{1}};
        const auto day = static_cast<std::uint64_t>((sys_days{newYear} - kFirstDay).count());
        ExpectDate(day * kDay, year, 1, 1, static_cast<int>(std::chrono::weekday{sys_days{newYear}}.c_encoding()));
        ExpectDate(day * kDay - 1, year - 1, 12, 31,
                   static_cast<int>(std::chrono::weekday{sys_days{newYear} - days{1}}.c_encoding()));
        const bool leap = newYear.year().is_leap();
        const SYSTEMTIME afterFebruary28 = Convert((day + 59) * kDay);
        EXPECT_EQ(afterFebruary28.wMonth, leap ? 2 : 3) << year;
        EXPECT_EQ(afterFebruary28.wDay, leap ? 29 : 1) << year;
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
