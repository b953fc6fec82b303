#include "core/copies.h"

#include "support/allocation_counter.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"

#include <cstring>

namespace calvix::test::strict_copy_test
{

TEST(StrictCopyTest, CopiesWhatFits)
{
    char destination[5] = {'#', '#', '#', '#', '#'};
    StrictCopy(destination, 4, "abcd", 4, "Method");
    EXPECT_EQ("abcd#", std::string(destination, sizeof destination));
    StrictCopy(destination, 4, "xy", 2, "Method");
    EXPECT_EQ("xycd#", std::string(destination, sizeof destination));
}

TEST(StrictCopyTest, NothingToCopyIsNotAnError)
{
    char destination[] = "kept";
    StrictCopy(destination, 4, nullptr, 0, "Method");
    StrictCopy(nullptr, 0, nullptr, 0, "Method");
    EXPECT_STREQ("kept", destination);
}

TEST(StrictCopyTest, NeverCutsAndNeverWritesOnAnError)
{
    char destination[] = "kept";
    ExpectFatal([&] { StrictCopy(destination, 4, "abcde", 5, "Method"); }, "Method");
    ExpectFatal([&] { StrictCopy(destination, 4, nullptr, 1, "Method"); }, "null source");
    ExpectFatal([&] { StrictCopy(nullptr, 4, "abcd", 4, "Method"); }, "null destination");
    EXPECT_STREQ("kept", destination);
}

TEST(StrictCopyTest, TextNeedsRoomForItsTerminator)
{
    char destination[6] = "#####";
    StrictCopyText(destination, 5, "Home", "Method");
    EXPECT_STREQ("Home", destination);
    ExpectFatal([&] { StrictCopyText(destination, 4, "Cafe", "Method"); }, "too small");
    ExpectFatal([&] { StrictCopyText(destination, 0, "", "Method"); }, "too small");
    ExpectFatal([&] { StrictCopyText(destination, -1, "", "Method"); }, "too small");
    ExpectFatal([&] { StrictCopyText(destination, 5, nullptr, "Method"); }, "null source");
    ExpectFatal([&] { StrictCopyText(nullptr, 5, "Home", "Method"); }, "null destination");
    EXPECT_STREQ("Home", destination);
    StrictCopyText(destination, 1, "", "Method");
    EXPECT_STREQ("", destination);
}

TEST(StrictCopyTest, TheMessageNeedsNoMemory)
{
    struct Reported
    {
    };
    static char seen[64];
    const StrictCopyHandler before = SetStrictCopyHandler(
        [](const char* message)
        {
            std::strncpy(seen, message, sizeof(seen) - 1);
            throw Reported{};
        });
    {
        const AllocationFailure failure(1);
        EXPECT_THROW(FatalCallerError("GetBSSID", "null source"), Reported);
    }
    SetStrictCopyHandler(before);
    EXPECT_STREQ("calvix: fatal caller error in GetBSSID: null source\n", seen);
}

TEST(StrictCopyTest, TheHandlerBeforeComesBack)
{
    const auto first = [](const char*) {};
    const auto second = [](const char*) {};
    const StrictCopyHandler original = SetStrictCopyHandler(first);
    const StrictCopyHandler afterFirst = SetStrictCopyHandler(second);
    const StrictCopyHandler afterSecond = SetStrictCopyHandler(nullptr);
    EXPECT_EQ(static_cast<StrictCopyHandler>(first), afterFirst);
    EXPECT_EQ(static_cast<StrictCopyHandler>(second), afterSecond);
    EXPECT_EQ(original, SetStrictCopyHandler(original)) << "null brings the default back";
}

class StrictCopyDeathTest : public LibraryTest
{
};

TEST_F(StrictCopyDeathTest, EndsTheProcessVisibly)
{
    EXPECT_DEATH(StrictCopy(nullptr, 0, "a", 1, "Method"), "calvix: fatal caller error in Method: null destination");
}

TEST_F(StrictCopyDeathTest, EndsTheProcessWhenAHandlerReturns)
{
    EXPECT_DEATH(
        {
            SetStrictCopyHandler([](const char* message) { std::fprintf(stderr, "handled %s", message); });
            FatalCallerError("Method", "a mistake");
        },
        "handled calvix: fatal caller error in Method: a mistake");
}

} // namespace calvix::test::strict_copy_test
