#include "simulation/real_time.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace calvix::simulation::real_time_test
{

namespace
{

using std::chrono::milliseconds;

constexpr unsigned int kFastest = 100'000;

TEST(RealTime, SpeedsAreWholeNumbers)
{
    EXPECT_EQ(ReadSpeed("", "SPEED"), 1u);
    EXPECT_EQ(ReadSpeed("1", "SPEED"), 1u);
    EXPECT_EQ(ReadSpeed("100000", "SPEED"), kFastest);
    for (const char* const text : {"0", "100001", "-1", "1.5", "10x", " 10", "99999999999", "fast"})
    {
        EXPECT_THROW(ReadSpeed(text, "SPEED"), std::runtime_error) << text;
    }
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
        EXPECT_STREQ(problem.what(), "CALVIX_SPEED: \"0\" is no whole number from 1 to 100000");
    }
}

TEST(RealTime, NothingMovesUntilSomebodyCatchesUp)
{
    Computer computer{Scenario()};
    RealTime time(computer, kFastest);
    EXPECT_EQ(computer.Now(), milliseconds(0));
    while (computer.Now() == milliseconds(0))
    {
        time.CatchUp();
    }
    const milliseconds then = computer.Now();
    while (computer.Now() == then)
    {
        time.CatchUp();
    }
    EXPECT_GT(computer.Now(), then);
}

TEST(RealTime, OneHourAtFullSpeedTakesLessThanTheTestMay)
{
    Computer computer{Scenario()};
    RealTime time(computer, kFastest);
    time.KeepGoing();
    while (computer.Now() < std::chrono::hours(1))
    {
        std::this_thread::yield();
    }
    EXPECT_GE(computer.Now(), std::chrono::hours(1));
}

TEST(RealTime, TheThreadEndsWithTheObject)
{
    Computer computer{Scenario()};
    {
        RealTime time(computer, kFastest);
        time.KeepGoing();
        while (computer.Now() == milliseconds(0))
        {
            std::this_thread::yield();
        }
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
