#pragma once

// The fixture of the tests that call the library on a simulated computer.
//
//     class ScanTest : public calvix::test::LibraryTest {};
//
//     TEST_F(ScanTest, AsksTheFirstAdapter)
//     {
//         EXPECT_EQ(0, manager().Rescan());
//         EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WlanScan", "WlanFreeMemory"));
//         EXPECT_EQ("{A0000001-0001-4001-8001-00000000000A}", call("WlanScan")["interface"]);
//     }
//
//     TEST_F(ScanTest, PassesTheErrorOut)
//     {
//         FailOn("WlanScan", 2150899714);
//         unsigned long error = 0;
//         EXPECT_EQ(-4, manager().Rescan(&kAdapterA, error));
//         EXPECT_THAT(traced(), ElementsAre("WlanScan failed with error: 2150899714"));
//         EXPECT_EQ("WlanScan failed with error: 2150899714", sharedTrace());
//     }
//
// Before a test the computer is fresh (RichScenario of support/test_scenarios.h, or the scenario given to the constructor or to
// UseScenario), the client handle is open, tracing is on, the shared trace buffer is marked and nothing is recorded yet.
// After it nothing may be held: no block of the service, no handle, no client, and no defect that was not announced.

#include "support/test_scenarios.h"
#include "testing/computer_internals.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace calvix::test
{

using calvix::testing::Call;

class LibraryTest : public ::testing::Test
{
public:
    LibraryTest() : LibraryTest(RichScenario()) {}
    explicit LibraryTest(const simulation::Scenario& scenario);

    /// Replaces the computer by a fresh one of this scenario, and the manager with it.
    void UseScenario(const simulation::Scenario& scenario);
    /// The same for the scenario in use.
    void Restart();
    const simulation::Scenario& scenario() const { return m_scenario; }

    CWirelessManage& manager() { return m_computer->Manager(); }
    simulation::Computer& computer() { return calvix::testing::ComputerInternals::Simulated(*m_computer); }
    void Advance(std::chrono::milliseconds duration) { computer().Advance(duration); }

    /// Closes the client handle, so that the next call opens it again.
    void ForgetClient();

    /// The operations that the library called, in order, since the test or the last ClearCalls began. Debugger output
    /// and GetLastError are left out of calls and callLines; timeline has them, too.
    std::vector<std::string> calls() const { return Texts(&Call::operation, false); }
    /// The same with arguments, e.g. "WlanScan(client=1, interface={...}, ssid=null, ieData=null, reserved=null)".
    std::vector<std::string> callLines() const { return Texts(&Call::line, false); }
    std::vector<std::string> timeline() const { return Texts(&Call::line, true); }
    /// The n-th call of an operation, from 1, to look at its arguments by name; fails the test when there is none.
    Call call(std::string_view operation, std::size_t number = 1) const;
    std::size_t callCount(std::string_view operation) const { return m_computer->CallCount(operation); }

    /// The trace lines since then, without their line breaks.
    std::vector<std::string> traced();
    /// What the shared trace buffer holds.
    std::string sharedTrace() const;
    bool sharedTraceUntouched() const;
    /// Fails the test when anything was traced, or is held.
    void ExpectSilence();

    /// Forgets calls and traces and marks the shared trace buffer anew.
    void ClearCalls();

    /// Makes calls of an operation fail: from the `from`-th one counted from now, `times` of them.
    void FailOn(const std::string& operation,
                DWORD error = 5,
                unsigned from = 1,
                unsigned times = calvix::testing::Computer::kAlways)
    {
        m_computer->Fail(operation, error, from, times);
    }
    /// Makes calls fail by choice; `decide` may do something to the computer at that moment instead.
    template <typename Decide>
    void FailWhen(Decide decide)
    {
        m_computer->FailWhen(std::move(decide));
    }
    unsigned InjectedFailures() const { return m_computer->FailedCalls(); }
    void ClearFailures() { m_computer->StopFailing(); }

    void SetTracing(bool on);

    /// Fails the test when a block or a handle is held, a defect was noticed that was not announced, or more clients
    /// are open than the manager's.
    void ExpectNothingHeld();
    /// Announces a defect whose line contains `part`; when none is noticed, the test fails.
    void ExpectDefect(std::string part);

protected:
    void TearDown() override;

private:
    void Begin();
    void End();
    void CheckAccounts(std::size_t clientsAllowed);

    std::vector<std::string> Texts(std::string Call::*text, bool all) const;
    TestComputer& inside() { return calvix::testing::ComputerInternals::Inside(*m_computer); }

    simulation::Scenario m_scenario;
    std::unique_ptr<calvix::testing::Computer> m_computer;
    std::vector<std::string> m_expectedDefects;
};

} // namespace calvix::test
