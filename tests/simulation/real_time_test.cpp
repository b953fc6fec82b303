#include "simulation/real_time.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <stdexcept>
#include <thread>

namespace calvix::simulation::real_time_test
{

namespace
{

using std::chrono::microseconds;
using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

constexpr unsigned int kFastest = 100'000;

// An hour of simulated time takes 36 ms; the limit is against hangs.
bool ComesTrue(const std::function<bool()>& condition)
{
    for (const Clock::time_point end = Clock::now() + std::chrono::minutes(10); Clock::now() < end;)
    {
        if (condition())
            return true;
        std::this_thread::yield();
    }
    return false;
}

TEST(RealTime, SpeedsAreWholeNumbers)
{
    EXPECT_EQ(ReadSpeed("", "SPEED"), 1u);
    EXPECT_EQ(ReadSpeed("1", "SPEED"), 1u);
    EXPECT_EQ(ReadSpeed("100000", "SPEED"), kFastest);
    for (const char* const text : {"0", "100001", "-1", "1.5", "10x", " 10", "99999999999", "fast"})
        EXPECT_THROW(ReadSpeed(text, "SPEED"), std::runtime_error) << text;
}

TEST(RealTime, AWrongSpeedIsNamed)
{
    try
    {
        ReadSpeed("0", "CALVIX_SPEED");
        FAIL() << "0 was taken";
    }
    catch (const std::runtime_error& problem)
    {
        EXPECT_STREQ(problem.what(), "CALVIX_SPEED: \"0\" is not a whole number from 1 to 100000");
    }
}

TEST(RealTime, PassesAtTheGivenSpeed)
{
    Computer computer{Scenario()};
    const Clock::time_point before = Clock::now();
    RealTime time(computer, kFastest);
    const Clock::time_point created = Clock::now();
    EXPECT_EQ(computer.Now(), milliseconds(0));
    ASSERT_TRUE(ComesTrue([&] { return Clock::now() - created > microseconds(500); }));
    const Clock::time_point asked = Clock::now();
    time.CatchUp();
    const auto passed = computer.Now();
    EXPECT_GE(passed, (asked - created) * kFastest - milliseconds(1 + kFastest / 1000));
    EXPECT_LE(passed, (Clock::now() - before) * kFastest);
}

TEST(RealTime, KeepsGoingByItself)
{
    Computer computer{Scenario()};
    RealTime time(computer, kFastest);
    time.KeepGoing();
    EXPECT_TRUE(ComesTrue([&] { return computer.Now() > std::chrono::hours(1); }));
}

TEST(RealTime, TheThreadEndsWithTheObject)
{
    Computer computer{Scenario()};
    {
        RealTime time(computer, kFastest);
        time.KeepGoing();
        ASSERT_TRUE(ComesTrue([&] { return computer.Now() > milliseconds(0); }));
    }
    const milliseconds then = computer.Now();
    for (int look = 0; look < 1000; ++look)
    {
        std::this_thread::yield();
        ASSERT_EQ(computer.Now(), then);
    }
}

} // namespace

} // namespace calvix::simulation::real_time_test
