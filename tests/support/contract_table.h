#pragma once

// The ways in which methods fail, one row a way:
//
//     CheckFailure(*this, {"Rescan()", [](auto& m) { return m.Rescan(); }, "WlanScan", -4,
//                          {"WlanScan failed with error: %u"}});
//     CheckFailure(*this, {.method = "Rescan()", .call = [](auto& m) { return m.Rescan(); }, .expected = -3,
//                          .traced = {"No valid WLAN adapter"},
//                          .prepare = [](auto& t) { t.UseScenario(NoAdapterScenario()); }});
//
// What methods have in common is in unit/failure_contracts.cpp.

#include "support/library_test.h"

#include <functional>
#include <string>
#include <vector>

namespace calvix::test
{

enum class TraceBuffer
{
    shared, ///< the process's
    local   ///< the method's own: the shared one stays as it was
};

/// An error like any other.
inline constexpr unsigned kSomeError = 5;

struct FailureRow
{
    std::string method; ///< names the row in messages
    std::function<long long(CWirelessManage&)> call;
    std::string failingOperation = {}; ///< empty: none is made to fail, the scenario does it
    long long expected = 0;
    /// All trace lines, in order, those of releases included; "%u" is the error, "%d" the signed error. Empty: nothing traced.
    std::vector<std::string> traced = {};
    TraceBuffer buffer = TraceBuffer::shared;
    unsigned error = kSomeError;
    unsigned fromCall = 1; ///< which call of the operation fails, and all after it
    std::string last = {}; ///< the operation after which the method calls nothing but releases; empty: not looked at
    std::function<void(LibraryTest&)> prepare = {};
};

/// Runs a row on a computer of its own, with tracing on and then off, and once more with an error number of more than 31
/// bits where the row has the usual one or gives it as the result. Checks result, trace lines, the shared trace buffer (which is written with
/// tracing off, too), that the failure was met, and that nothing is held afterwards. A failing WlanOpenHandle finds the
/// client handle closed.
void CheckFailure(LibraryTest& test, const FailureRow& row);

} // namespace calvix::test
