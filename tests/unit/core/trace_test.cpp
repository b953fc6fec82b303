#include "core/trace.h"

#include "support/allocation_counter.h"
#include "support/library_test.h"

namespace calvix::test::trace_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

constexpr std::uint32_t kComplete = 0;
constexpr std::uint32_t kTruncated = 0x8007007A;
constexpr std::uint32_t kBadCapacity = 0x80070057;

} // namespace

class TraceTest : public LibraryTest
{
};

// --- Formatting -------------------------------------------------------------------------------------------------

TEST(FormatTraceTest, SaysWhetherTheTextFitted)
{
    const struct
    {
        std::size_t capacity;
        std::uint32_t result;
        const char* text;
    } cases[] = {{7, kComplete, "HomeNe"}, // one character more than the text
                 {6, kTruncated, "HomeN"},
                 {2, kTruncated, "H"},
                 {1, kTruncated, ""}};
    for (const auto& each : cases)
    {
        SCOPED_TRACE(each.capacity);
        char buffer[8] = {'#', '#', '#', '#', '#', '#', '#', '#'};
        EXPECT_EQ(each.result, FormatTrace(buffer, each.capacity, "%sNe", "Home"));
        EXPECT_STREQ(each.text, buffer);
        EXPECT_EQ('#', buffer[each.capacity]) << "nothing is written past the capacity";

        wchar_t wide[8] = {'#', '#', '#', '#', '#', '#', '#', '#'};
        EXPECT_EQ(each.result, FormatTraceW(wide, each.capacity, L"%lsNe", L"Home"));
        EXPECT_EQ(std::wstring(each.text, each.text + std::strlen(each.text)), wide);
        EXPECT_EQ(L'#', wide[each.capacity]) << "nothing is written past the capacity";
    }
}

// One beyond the largest empties the text, none at all leaves it.
TEST(FormatTraceTest, RefusesCapacitiesThatAreNone)
{
    for (const auto& [capacity, left] : {std::pair(0u, 'g'), std::pair(0x80000000u, '\0')})
    {
        char buffer[] = "gone";
        EXPECT_EQ(kBadCapacity, FormatTrace(buffer, capacity, "%d", 1));
        EXPECT_EQ(left, buffer[0]);
        wchar_t wide[] = L"gone";
        EXPECT_EQ(kBadCapacity, FormatTraceW(wide, capacity, L"%d", 1));
        EXPECT_EQ(left, static_cast<char>(wide[0]));
    }
}

TEST(FormatTraceTest, TakesTheLargestCapacity)
{
    char buffer[] = "gone";
    EXPECT_EQ(kComplete, FormatTrace(buffer, 0x7FFFFFFF, "%d", 1));
    EXPECT_STREQ("1", buffer);
    wchar_t wide[] = L"gone";
    EXPECT_EQ(kComplete, FormatTraceW(wide, 0x7FFFFFFF, L"%d", 1));
    EXPECT_STREQ(L"1", wide);
}

// The C locale has no form for the character: one runtime reports a failure, the other stops before it.
TEST(FormatTraceTest, EmptiesTheTextWhenTheRuntimeFails)
{
#if defined(_WIN32)
    const char* const formatted = "ab";
#else
    const char* const formatted = "";
#endif
    char buffer[16] = "gone";
    FormatTrace(buffer, sizeof(buffer), "ab%ls", L"\u6771");
    EXPECT_STREQ(formatted, buffer);
}

TEST(FormatTraceTest, FormatsWideTextOfAnyLength)
{
    const std::wstring name(5000, L'\u6771');
    std::vector<wchar_t> room(6001, L'#');
    EXPECT_EQ(kComplete, FormatTraceW(room.data(), 6000, L"[%ls]", name.c_str()));
    EXPECT_EQ(L"[" + name + L"]", room.data());
    EXPECT_EQ(kTruncated, FormatTraceW(room.data(), 4, L"[%ls]", name.c_str()));
    EXPECT_EQ(L"[\u6771\u6771", std::wstring(room.data()));
    const std::wstring longest(1'000'000, L'\u6771');
    EXPECT_EQ(kTruncated, FormatTraceW(room.data(), 4, L"[%ls]", longest.c_str()));
    EXPECT_EQ(L"[\u6771\u6771", std::wstring(room.data()));
}

// More than a million characters are not formatted.
TEST(FormatTraceTest, WideTextThatCannotBeFormattedIsReportedAsCut)
{
    wchar_t wide[] = L"gone";
    EXPECT_EQ(kTruncated, FormatTraceW(wide, 5, L"%2000000d", 1));
    EXPECT_STREQ(L"", wide);
    char narrow[] = "gone";
    EXPECT_EQ(kTruncated, FormatTrace(narrow, 5, "%2000000d", 1));
}

TEST(FormatTraceTest, CutsWideTextToNothingWithoutMemory)
{
    wchar_t room[] = L"gone";
    const AllocationFailure failure(1);
    EXPECT_EQ(kTruncated, FormatTraceW(room, 5, L"%d", 1));
    EXPECT_EQ(1u, failure.Refused());
    EXPECT_EQ(L'\0', room[0]);
}

/// Taken before any test can have set it.
const unsigned char kTracingAtTheStart = g_bTraceOn;

TEST(TraceStateTest, AProcessBeginsWithTracingOff)
{
    EXPECT_EQ(0, kTracingAtTheStart);
}

TEST(TraceStateTest, TheSharedBufferHolds256Characters)
{
    EXPECT_EQ(256u, sizeof g_szTraceBuf);
    EXPECT_EQ(1u, sizeof g_bTraceOn);
}

// --- Emitting ---------------------------------------------------------------------------------------------------

TEST_F(TraceTest, EmitsTheLineAndThenALineBreak)
{
    EmitTrace("a line");
    EXPECT_THAT(computer().DebuggerLines(), ElementsAre("a line", "\n"));
    EXPECT_THAT(timeline(), ElementsAre("OutputDebugStringA(text=\"a line\")", "OutputDebugStringA(text=\"\\x0A\")"));
}

TEST_F(TraceTest, EmitsForEveryValueOfTheSwitchButZero)
{
    for (const int value : {1, 2, 255})
    {
        g_bTraceOn = static_cast<unsigned char>(value);
        computer().ClearDebuggerLines();
        EmitTrace("a line");
        EXPECT_THAT(traced(), ElementsAre("a line")) << value;
    }
    g_bTraceOn = 0;
    computer().ClearDebuggerLines();
    EmitTrace("a line");
    EXPECT_THAT(computer().DebuggerLines(), IsEmpty());
}

TEST_F(TraceTest, AFixedMessageIsCutLikeALine)
{
    LocalTrace<9> trace;
    trace.Message("No valid WLAN adapter");
    EXPECT_THAT(traced(), ElementsAre("No valid"));
    computer().ClearDebuggerLines();
    SharedTrace shared;
    shared.Message("100% %s %n");
    EXPECT_EQ("100% %s %n", sharedTrace()) << "a message is no format";
    EXPECT_THAT(traced(), ElementsAre("100% %s %n"));
}

} // namespace calvix::test::trace_test
