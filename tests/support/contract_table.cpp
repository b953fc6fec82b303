#include "support/contract_table.h"

#include "core/trace.h"

#include <algorithm>
#include <cstdint>
#include <set>

namespace calvix::test
{

namespace
{

std::string Filled(std::string text, unsigned error)
{
    if (const std::size_t place = text.find("%u"); place != std::string::npos)
        return text.replace(place, 2, std::to_string(error));
    if (const std::size_t place = text.find("%d"); place != std::string::npos)
        return text.replace(place, 2, std::to_string(static_cast<std::int32_t>(error)));
    return text;
}

std::vector<std::string> ExpectedLines(const FailureRow& row)
{
    std::vector<std::string> lines;
    for (const std::string& text : row.traced)
        lines.push_back(Filled(text, row.error));
    return lines;
}

/// The last line that was formatted into a buffer: releases are traced as fixed texts, past it.
const std::string* LastFormatted(const std::vector<std::string>& lines)
{
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        if (!line->starts_with("WlanFreeMemory("))
            return &*line;
    return nullptr;
}

void CheckSharedBuffer(const LibraryTest& test, const FailureRow& row)
{
    const std::vector<std::string> lines = ExpectedLines(row);
    const std::string* const formatted = LastFormatted(lines);
    if (row.buffer == TraceBuffer::local || formatted == nullptr)
    {
        EXPECT_TRUE(test.sharedTraceUntouched()) << "the shared trace buffer holds \"" << test.sharedTrace() << '"';
        return;
    }
    EXPECT_EQ(formatted->substr(0, kSharedTraceCapacity - 1), test.sharedTrace()) << "in the shared trace buffer";
}

void Arrange(LibraryTest& test, const FailureRow& row, bool tracing)
{
    if (row.prepare)
        row.prepare(test);
    if (row.failingOperation == "WlanOpenHandle")
        test.ForgetClient();
    test.SetTracing(tracing);
    test.ClearCalls();
    if (!row.failingOperation.empty())
        test.FailOn(row.failingOperation, row.error, row.fromCall);
}

std::string LastBeforeReleases(const std::vector<std::string>& calls)
{
    static const std::set<std::string> releases = {"WlanFreeMemory", "LocalFree", "CloseHandle"};
    const auto last = std::find_if(calls.rbegin(), calls.rend(),
                                   [](const std::string& operation) { return !releases.contains(operation); });
    return last != calls.rend() ? *last : std::string();
}

/// The service's own error numbers have the highest of their 32 bits set.
constexpr unsigned kHighError = 0x80342002;

/// The same failure with such a number, which a method that passes errors out gives in 32 bits.
FailureRow WithHighError(FailureRow row)
{
    if (row.expected == row.error)
        row.expected = kHighError;
    row.error = kHighError;
    return row;
}

void RunOnce(LibraryTest& test, const FailureRow& row, bool tracing)
{
    SCOPED_TRACE(tracing ? "tracing on" : "tracing off");
    SCOPED_TRACE("error " + std::to_string(row.error));
    Arrange(test, row, tracing);
    const long long result = row.call(test.manager());
    if (row.error == kHighError)
        EXPECT_EQ(static_cast<std::uint32_t>(row.expected), static_cast<std::uint32_t>(result));
    else
        EXPECT_EQ(row.expected, result);
    if (!row.failingOperation.empty())
    {
        EXPECT_GE(test.InjectedFailures(), 1u)
            << "call " << row.fromCall << " of " << row.failingOperation << " was never made, so nothing failed";
    }
    if (!row.last.empty())
        EXPECT_EQ(row.last, LastBeforeReleases(test.calls())) << "nothing comes after the failure";
    EXPECT_EQ(tracing ? ExpectedLines(row) : std::vector<std::string>(), test.traced());
    CheckSharedBuffer(test, row);
    test.ExpectNothingHeld();
}

} // namespace

void CheckFailure(LibraryTest& test, const FailureRow& row)
{
    const std::string cause =
        row.failingOperation.empty()
            ? "in its scenario"
            : "when " + row.failingOperation + " fails with " + std::to_string(row.error) +
                  (row.fromCall > 1 ? " from call " + std::to_string(row.fromCall) : std::string());
    SCOPED_TRACE(row.method + " " + cause);
    const simulation::Scenario scenario = test.scenario();
    for (const bool tracing : {true, false})
    {
        test.UseScenario(scenario);
        RunOnce(test, row, tracing);
    }
    if (!row.failingOperation.empty() && (row.error == kSomeError || row.expected == row.error))
    {
        test.UseScenario(scenario);
        RunOnce(test, WithHighError(row), true);
    }
    test.UseScenario(scenario);
}

} // namespace calvix::test
