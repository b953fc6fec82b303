#include "cli_test.h"

#include "testing/computer_internals.h"

#include <csignal>
#include <sstream>
#include <utility>

namespace calvix::test::power_commands_test
{
namespace
{

using simulation::Scenario;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// A computer that slept, whose power schemes cannot be listed.
Scenario Laptop()
{
    Scenario scenario;
    scenario.power.battery = true;
    scenario.power.upMilliseconds = 36'000'000;
    scenario.power.lastSleepTime = 10'000'000ull * 3725;
    scenario.power.lastWakeTime = 10'000'000ull * 36'000;
    scenario.power.enumerationError = 5;
    scenario.power.legacySchemes = {{7, "Seven", 1800, 90, 600, 0}};
    scenario.power.activeLegacyScheme = 7;
    return scenario;
}

class PowerCommands : public CliTest
{
protected:
    /// Runs a command that may change the computer, and keeps the computer.
    Outcome RunAndKeep(const Scenario& scenario, std::vector<std::string> arguments)
    {
        const std::string saved = PathFor("saved.json");
        arguments.insert(arguments.end(), {"--save", saved});
        const Outcome outcome = RunOn(scenario, arguments);
        after = simulation::LoadScenario(saved);
        return outcome;
    }

    Scenario after;
};

TEST_F(PowerCommands, WhatChangesTheComputerAsksFirst)
{
    const std::vector<std::vector<std::string>> commands = {
        {"power", "sleep"}, {"power", "keep-awake"}, {"power", "restore"}, {"power", "saver"}};
    for (const std::string input : {"", "no\n", "yes please\n", "\nyes\n"})
    {
        Answer(input);
        for (const auto& command : commands)
        {
            const Outcome outcome = RunAndKeep(Laptop(), command);
            EXPECT_EQ(kNotConfirmed, outcome.exitCode) << command.back() << input;
            EXPECT_EQ("", outcome.out) << command.back();
            EXPECT_THAT(outcome.err, HasSubstr("Go on? yes/no: ")) << command.back();
            EXPECT_THAT(outcome.err, HasSubstr("not confirmed: nothing was done.")) << command.back();
            EXPECT_EQ(Laptop(), after) << command.back();
        }
    }
}

TEST_F(PowerCommands, YesIsTakenInAnyCaseAndShort)
{
    for (const char* input : {"yes\n", "YES", " y \r\n", "Y\n"})
    {
        Answer(input);
        EXPECT_EQ(kSuccess, RunOn(Laptop(), {"power", "sleep"}).exitCode) << input;
    }
}

TEST_F(PowerCommands, YesBeforehandSkipsTheQuestion)
{
    for (const char* command : {"sleep", "keep-awake", "restore", "saver"})
    {
        const Outcome outcome = RunOn(Laptop(), {"power", command, "--yes"});
        EXPECT_EQ(kSuccess, outcome.exitCode) << command << outcome.err;
        EXPECT_EQ("", outcome.err) << command;
    }
}

TEST_F(PowerCommands, KeepAwakeWaitsAndPutsThePolicyBack)
{
    const Outcome outcome = RunAndKeep(Laptop(), {"power", "keep-awake", "--for", "5", "--yes"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    Scenario expected = Laptop();
    expected.power.upMilliseconds += 5000;
    EXPECT_EQ(expected, after);
}

TEST_F(PowerCommands, KeepAwakeTakesAMinuteOfASimulatedComputer)
{
    RunAndKeep(Laptop(), {"power", "keep-awake", "--yes"});
    EXPECT_EQ(Laptop().power.upMilliseconds + 60'000, after.power.upMilliseconds);
}

TEST_F(PowerCommands, SaverMakesAndActivatesACopy)
{
    const Outcome outcome = RunAndKeep(Laptop(), {"power", "saver", "--yes"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("Power scheme:    Super energy-saving\n"));
    ASSERT_EQ(4u, after.power.schemes.size());
    EXPECT_EQ(after.power.schemes[3].guid, after.power.activeScheme);
    EXPECT_EQ(1u, after.power.schemes[3].values[0].ac);
    EXPECT_EQ(2u, after.power.schemes[3].values[1].ac);
}

TEST_F(PowerCommands, PrivilegeStaysEnabled)
{
    Scenario scenario;
    scenario.privileges = {{"SeShutdownPrivilege", false}};
    EXPECT_EQ(kSuccess, RunAndKeep(scenario, {"power", "privilege", "SeShutdownPrivilege"}).exitCode);
    EXPECT_TRUE(after.privileges[0].enabled);
}

/// The program on a computer whose operations are made to fail one by one.
class RefusedPower : public CliTest
{
protected:
    void TearDown() override { EXPECT_TRUE(m_computer.Held().Nothing()); }

    calvix::testing::Computer m_computer{"{}"};
    simulation::Computer& m_simulated = calvix::testing::ComputerInternals::Simulated(m_computer);
};

TEST_F(RefusedPower, SaverWarnsBeforeItTriesAnyway)
{
    // The program's own look at the list succeeds, and the library's third one fails.
    m_computer.Fail("PowerEnumerate", 259, 4);
    const Outcome outcome = Run({"power", "saver", "--may-not-return", "--yes"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr("so GetPowerScheme does not return. Press Ctrl-C twice"));
    EXPECT_EQ(4u, m_computer.CallCount("PowerEnumerate"));
    EXPECT_EQ(4u, m_simulated.Snapshot().power.schemes.size());
}

TEST_F(RefusedPower, SaverLooksAtTheListOnceAndRefuses)
{
    EXPECT_EQ(kBadInput, Run({"power", "saver", "--yes"}).exitCode);
    EXPECT_EQ(1u, m_computer.CallCount("PowerEnumerate"));
    EXPECT_EQ(Scenario{}, m_simulated.Snapshot());
}

TEST_F(RefusedPower, NothingSleepsWithoutAToken)
{
    m_computer.Fail("OpenProcessToken", 5);
    EXPECT_EQ(kFailed, Run({"power", "sleep", "--yes"}).exitCode);
    EXPECT_EQ(0u, m_simulated.SuspendCount());
}

TEST_F(RefusedPower, TheRefusedStepIsNamed)
{
    struct RefusedStep
    {
        const char* command;
        const char* operation;
        const char* result;
    };
    for (const RefusedStep& step : {RefusedStep{"keep-awake", "GetActivePwrScheme", "SetPowerScheme returned -2."},
                                    {"keep-awake", "ReadPwrScheme", "SetPowerScheme returned -3."},
                                    {"keep-awake", "WritePwrScheme", "SetPowerScheme returned -4."},
                                    {"keep-awake", "SetActivePwrScheme", "SetPowerScheme returned -5."},
                                    {"restore", "WritePwrScheme", "ResetPowerScheme returned -3."},
                                    {"saver", "PowerGetActiveScheme", "GetPowerScheme returned -1."},
                                    {"saver", "PowerDuplicateScheme", "GetPowerScheme returned -2."},
                                    {"saver", "PowerWriteFriendlyName", "GetPowerScheme returned -3."},
                                    {"saver", "PowerWriteACValueIndex", "GetPowerScheme returned -4."},
                                    {"saver", "PowerSetActiveScheme", "GetPowerScheme returned -5."}})
    {
        SCOPED_TRACE(step.operation);
        m_computer.StopFailing();
        m_computer.Fail("PowerEnumerate", 259);
        m_computer.Fail(step.operation, 31);
        const Outcome outcome = Run({"power", step.command, "--yes"});
        EXPECT_EQ(kFailed, outcome.exitCode);
        EXPECT_THAT(outcome.err, HasSubstr(std::string("the system refused ") + step.operation +
                                           " (a device does not function, 31)."));
        EXPECT_THAT(outcome.err, HasSubstr(step.result));
        EXPECT_THAT(outcome.err, HasSubstr("What to do: "));
    }
}

/// Presses Ctrl-C when something is read, and answers with yes all the same.
class InterruptingAnswer : public std::streambuf
{
protected:
    int_type underflow() override
    {
        std::raise(SIGINT);
        setg(m_text, m_text, m_text + sizeof(m_text) - 1);
        return traits_type::to_int_type(m_text[0]);
    }

private:
    char m_text[5] = "yes\n";
};

TEST_F(RefusedPower, CtrlCAtTheQuestionDoesNotConfirm)
{
    InterruptingAnswer answer;
    std::istream in(&answer);
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(kNotConfirmed, host::Run({"power", "sleep"}, in, out, err, {}));
    EXPECT_EQ(0u, m_simulated.SuspendCount());
}

TEST_F(RefusedPower, CtrlCEndsKeepingAwakeAndPutsThePolicyBack)
{
    InterruptingText progress;
    std::istringstream in;
    std::ostringstream out;
    std::ostream err(&progress);
    EXPECT_EQ(kSuccess,
              host::Run({"power", "keep-awake", "--for", "3600", "--yes"}, in, out, err, {.isTerminal = true}));
    EXPECT_THAT(out.str(), HasSubstr("On mains:        sleeps after 30 minutes"));
    EXPECT_EQ(2u, m_computer.CallCount("WritePwrScheme"));
    EXPECT_EQ(std::chrono::seconds(0), m_computer.Now());
}

} // namespace
} // namespace calvix::test::power_commands_test
