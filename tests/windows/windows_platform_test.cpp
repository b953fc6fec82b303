#include "platform/platform.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>

namespace
{

namespace platform = calvix::platform;

TEST(WindowsPlatform, IsTheDefault)
{
    EXPECT_EQ(platform::processes().GetCurrentProcess(), ::GetCurrentProcess());
    EXPECT_EQ(&platform::CurrentPlatform(), &platform::DefaultPlatform());
}

TEST(WindowsPlatform, IsOneObjectForAllThreads)
{
    std::array<platform::Platform*, 8> seen{};
    std::array<std::thread, seen.size()> threads;
    for (std::size_t i = 0; i < threads.size(); ++i)
        threads[i] = std::thread([&seen, i] { seen[i] = &platform::DefaultPlatform(); });
    for (std::thread& thread : threads)
        thread.join();
    for (const platform::Platform* one : seen)
        EXPECT_EQ(one, &platform::DefaultPlatform());
}

TEST(WindowsPlatform, StepsAsideForAReplacement)
{
    platform::Platform replacement = platform::DefaultPlatform();
    EXPECT_EQ(platform::ReplacePlatform(&replacement), nullptr);
    EXPECT_EQ(&platform::text(), &replacement.text());
    EXPECT_EQ(platform::ReplacePlatform(nullptr), &replacement);
    EXPECT_NE(&platform::text(), &replacement.text());
    EXPECT_EQ(&platform::text(), &platform::DefaultPlatform().text());
}

} // namespace
