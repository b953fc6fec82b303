#include "simulation/clock.h"
#include "simulation/host_time.h"

#include "platform/records/error_numbers.h"

#include <gtest/gtest.h>

namespace calvix::simulation::clock_test
{

namespace
{

using std::chrono::milliseconds;

FILETIME FileTimeOf(std::uint64_t units)
{
    FILETIME time{};
    time.dwLowDateTime = static_cast<std::uint32_t>(units);
    time.dwHighDateTime = static_cast<std::uint32_t>(units >> 32);
    return time;
}

struct Moment
{
    std::uint64_t units;
    WORD year, month, dayOfWeek, day, hour, minute, second, milliseconds;
};

class ClockDates : public ::testing::TestWithParam<Moment>
{
};

TEST_P(ClockDates, BecomeCalendarTime)
{
    LastErrorCell lastError;
    EventQueue queue;
    SimulatedClock clock(lastError, queue);
    const FILETIME fileTime = FileTimeOf(GetParam().units);
    SYSTEMTIME time{};
    ASSERT_TRUE(clock.FileTimeToSystemTime(&fileTime, &time));
    EXPECT_EQ(time.wYear, GetParam().year);
    EXPECT_EQ(time.wMonth, GetParam().month);
    EXPECT_EQ(time.wDayOfWeek, GetParam().dayOfWeek);
    EXPECT_EQ(time.wDay, GetParam().day);
    EXPECT_EQ(time.wHour, GetParam().hour);
    EXPECT_EQ(time.wMinute, GetParam().minute);
    EXPECT_EQ(time.wSecond, GetParam().second);
    EXPECT_EQ(time.wMilliseconds, GetParam().milliseconds);
}

INSTANTIATE_TEST_SUITE_P(Clock,
                         ClockDates,
                         ::testing::Values(Moment{0, 1601, 1, 1, 1, 0, 0, 0, 0},
                                           Moment{116444736000000000, 1970, 1, 4, 1, 0, 0, 0, 0},
                                           Moment{125962559999999999, 2000, 2, 1, 28, 23, 59, 59, 999},
                                           Moment{125962560000000000, 2000, 2, 2, 29, 0, 0, 0, 0},
                                           Moment{133801200001230000, 2024, 12, 2, 31, 12, 0, 0, 123},
                                           Moment{0x7fffffffffffffff, 30828, 9, 4, 14, 2, 48, 5, 477}));

TEST(Clock, RefusesTimesWithoutACalendarForm)
{
    LastErrorCell lastError;
    EventQueue queue;
    SimulatedClock clock(lastError, queue);
    const FILETIME tooLate = FileTimeOf(0x8000000000000000);
    SYSTEMTIME time{};
    EXPECT_FALSE(clock.FileTimeToSystemTime(&tooLate, &time));
    EXPECT_EQ(lastError, ERROR_INVALID_PARAMETER);
}

TEST(Clock, SleepingLetsTimePass)
{
    LastErrorCell lastError;
    EventQueue queue;
    SimulatedClock clock(lastError, queue);
    clock.Sleep(1500);
    EXPECT_EQ(queue.Now(), milliseconds(1500));
}

TEST(HostTime, BeginsInJanuary2026)
{
    LastErrorCell lastError;
    EventQueue queue;
    SimulatedClock clock(lastError, queue);
    const FILETIME fileTime = FileTimeOf(HostTime(milliseconds(61'007)));
    SYSTEMTIME time{};
    ASSERT_TRUE(clock.FileTimeToSystemTime(&fileTime, &time));
    EXPECT_EQ(time.wYear, 2026);
    EXPECT_EQ(time.wMonth, 1);
    EXPECT_EQ(time.wDay, 1);
    EXPECT_EQ(time.wMinute, 1);
    EXPECT_EQ(time.wSecond, 1);
    EXPECT_EQ(time.wMilliseconds, 7);
}

} // namespace

} // namespace calvix::simulation::clock_test
