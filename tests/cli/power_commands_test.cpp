#include "cli_test.h"

#include "testing/computer_internals.h"

#include <nlohmann/json.hpp>

#include <csignal>
#include <sstream>
#include <utility>

namespace calvix::test::power_commands_test
{
namespace
{

using nlohmann::json;
using simulation::PowerDescription;
using simulation::Scenario;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// A computer that slept, whose power schemes cannot be listed.
Scenario Laptop()
{
    Scenario world;
    world.power.battery = true;
    world.power.upMilliseconds = 36'000'000;
    world.power.lastSleepTime = 10'000'000ull * 3725;
    world.power.lastWakeTime = 10'000'000ull * 36'000;
    world.power.enumerationError = 5;
    world.power.legacySchemes = {{7, "Seven", 1800, 90, 600, 0}};
    world.power.activeLegacyScheme = 7;
    return world;
}

class PowerCommands : public CliTest
{
protected:
    /// Runs a command that may change the computer, and keeps the computer.
    Outcome RunAndKeep(const Scenario& world, std::vector<std::string> arguments)
    {
        const std::string saved = PathFor("saved.json");
        arguments.insert(arguments.end(), {"--save", saved});
        const Outcome outcome = RunOn(world, arguments);
        after = simulation::LoadScenario(saved);
        return outcome;
    }

    Scenario after;
};

TEST_F(PowerCommands, StatusShowsWhatTheComputerCanDoAndDid)
{
    EXPECT_EQ("Sleep:           possible\n"
              "Hibernation:     possible\n"
              "Shutting down:   possible\n"
              "Modern Standby:  no\n"
              "Last sleep:      1:02:05 after the start\n"
              "Last wake:       10:00:00 after the start\n"
              "Woke by itself:  no\n"
              "On mains:        sleeps after 30 minutes, display off after 10 minutes\n"
              "On battery:      sleeps after 90 seconds, display stays on\n"
              "Power scheme:    Balanced\n",
              RunOn(Laptop(), {"power", "status"}).out);
}

TEST_F(PowerCommands, StatusShowsWhatIsNotPossible)
{
    Scenario world;
    PowerDescription& power = world.power;
    power.suspendAllowed = power.hibernateAllowed = power.shutdownAllowed = false;
    power.modernStandby = power.resumesAutomatically = true;
    power.activeScheme.reset();
    power.legacySchemes = {{0, "Zero", 0, 1, 0, 1}};
    EXPECT_EQ("Sleep:           not possible\n"
              "Hibernation:     not possible\n"
              "Shutting down:   not possible\n"
              "Modern Standby:  yes\n"
              "Last sleep:      not since the start\n"
              "Last wake:       not since the start\n"
              "Woke by itself:  yes\n"
              "On mains:        never sleeps, display stays on\n"
              "On battery:      sleeps after 1 second, display off after 1 second\n"
              "Power scheme:    unknown\n",
              RunOn(world, {"power", "status"}).out);
}

TEST_F(PowerCommands, StatusAsJson)
{
    const json power = json::parse(RunOn(Laptop(), {"power", "status", "--json"}).out)["power"];
    EXPECT_EQ(json({{"sleep", true},
                    {"hibernate", true},
                    {"shutDown", true},
                    {"modernStandby", false},
                    {"lastSleepTime", 37'250'000'000},
                    {"lastWakeTime", 360'000'000'000},
                    {"wokeByItself", false},
                    {"onMains", {{"sleepAfter", 1800}, {"displayOffAfter", 600}}},
                    {"onBattery", {{"sleepAfter", 90}, {"displayOffAfter", 0}}},
                    {"scheme", "Balanced"}}),
              power);
}

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

TEST_F(PowerCommands, ARefusedQuestionIsJsonToo)
{
    const json error = json::parse(RunOn(Laptop(), {"power", "sleep", "--json"}).out)["error"];
    EXPECT_EQ(kNotConfirmed, error["exitCode"]);
    EXPECT_TRUE(error["method"].is_null());
}

TEST_F(PowerCommands, SleepPutsTheComputerToSleep)
{
    const Outcome outcome = RunAndKeep(Laptop(), {"power", "sleep", "--yes"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("Last sleep:      10:00:00 after the start\n"
                                       "Last wake:       10:01:00 after the start\n"));
    EXPECT_EQ(Laptop().power.upMilliseconds + 60'000, after.power.upMilliseconds);
}

TEST_F(PowerCommands, SleepNamesThePrivilegeThatIsNotHeld)
{
    Scenario world = Laptop();
    world.privileges.clear();
    const Outcome outcome = RunOn(world, {"power", "sleep", "--yes"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_EQ("calvix: the computer was not put to sleep: the system refused SetSuspendState (a required privilege is "
              "not held, 1314).\n"
              "  Result: ForceComputerSleep returned 0.\n"
              "  What to do: run as administrator.\n",
              outcome.err);
}

TEST_F(PowerCommands, SleepNeedsAComputerThatCan)
{
    Scenario world = Laptop();
    world.power.suspendAllowed = false;
    const Outcome outcome = RunOn(world, {"power", "sleep", "--yes"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the system refused SetSuspendState (not supported, 50)"));
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

TEST_F(PowerCommands, KeepAwakeShowsThatItRuns)
{
    const std::vector<std::string> command{"power", "keep-awake", "--for", "2", "--yes"};
    EXPECT_THAT(RunOn(Laptop(), command, {.isTerminal = true}).err, HasSubstr("Keeping the computer awake"));
}

TEST_F(PowerCommands, KeepAwakeMayLeaveItSo)
{
    const Outcome outcome = RunAndKeep(Laptop(), {"power", "keep-awake", "--leave", "--yes"});
    EXPECT_THAT(outcome.out, HasSubstr("On mains:        never sleeps, display off after 10 minutes\n"
                                       "On battery:      never sleeps, display stays on\n"));
    ASSERT_EQ(1u, after.power.legacySchemes.size());
    EXPECT_EQ((simulation::LegacyPowerScheme{7, "Seven", 0, 0, 600, 0}), after.power.legacySchemes[0]);
    EXPECT_EQ(Laptop().power.upMilliseconds, after.power.upMilliseconds);
}

TEST_F(PowerCommands, KeepAwakeNeedsAComputerThatSleepsAtAll)
{
    Scenario world = Laptop();
    world.power.suspendAllowed = false;
    const Outcome outcome = RunOn(world, {"power", "keep-awake", "--yes"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the computer cannot be suspended.\n  Result: SetPowerScheme returned -1."));
}

TEST_F(PowerCommands, RestoreSaysThatItWritesZerosAndDoes)
{
    Answer("yes");
    const Outcome outcome = RunAndKeep(Laptop(), {"power", "restore"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr("It will replace the policy of the active power scheme with zeros"));
    EXPECT_EQ((simulation::LegacyPowerScheme{7, "Seven", 0, 0, 0, 0}), after.power.legacySchemes[0]);
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

TEST_F(PowerCommands, SaverRefusesWhereItsMethodWouldNotReturn)
{
    const Outcome outcome = RunOn(Scenario{}, {"power", "saver"});
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("this computer lists its power schemes, so GetPowerScheme would never return: "
                                       "nothing was done."));
    EXPECT_THAT(outcome.err, HasSubstr("--may-not-return"));
    EXPECT_THAT(outcome.err, Not(HasSubstr("yes/no")));
}

TEST_F(PowerCommands, PrivilegeShowsWhetherItCanBeEnabled)
{
    Scenario world;
    world.privileges = {{"SeShutdownPrivilege", false}};
    const Outcome enabled = RunAndKeep(world, {"power", "privilege", "SeShutdownPrivilege"});
    EXPECT_EQ(kSuccess, enabled.exitCode) << enabled.err;
    EXPECT_EQ("SeShutdownPrivilege can be enabled; this command enabled it while it ran.\n", enabled.out);
    EXPECT_TRUE(after.privileges[0].enabled);
    EXPECT_EQ(json({{"privilege", {{"name", "SeShutdownPrivilege"}, {"enabled", true}}}}),
              json::parse(RunOn(world, {"power", "privilege", "SeShutdownPrivilege", "--json"}).out));
}

TEST_F(PowerCommands, PrivilegeShowsWhyItCannotBeEnabled)
{
    const Outcome notHeld = RunOn({}, {"power", "privilege", "SeDebugPrivilege"});
    EXPECT_EQ(kFailed, notHeld.exitCode);
    EXPECT_THAT(notHeld.err, HasSubstr("the account does not hold \"SeDebugPrivilege\".\n"
                                       "  Result: EnablePriviledge returned 0."));
    const Outcome unknown = RunOn({}, {"power", "privilege", "SeFlyPrivilege"});
    EXPECT_EQ(kFailed, unknown.exitCode);
    EXPECT_THAT(unknown.err, HasSubstr("\"SeFlyPrivilege\" was not enabled: the system refused LookupPrivilegeValueA "
                                       "(no such privilege, 1313).\n  Result: EnablePriviledge returned 1."));
    Scenario world;
    world.tokens = false;
    EXPECT_THAT(RunOn(world, {"power", "privilege", "SeDebugPrivilege"}).err,
                HasSubstr("the system refused OpenProcessToken (error 120)"));
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

TEST_F(RefusedPower, StatusLeavesOutUnknownFacts)
{
    m_computer.Fail("CallNtPowerInformation", 0xC0000022);
    m_computer.Fail("PowerGetActiveScheme", 5);
    const Outcome outcome = Run({"power", "status", "--json"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    const json power = json::parse(outcome.out)["power"];
    EXPECT_TRUE(power["onMains"].is_null());
    EXPECT_TRUE(power["onBattery"].is_null());
    EXPECT_TRUE(power["scheme"].is_null());
    EXPECT_EQ(0, power["lastWakeTime"]);
    EXPECT_THAT(Run({"power", "status"}).out, HasSubstr("On mains:        unknown\n"));
}

TEST_F(RefusedPower, SleepNeedsAToken)
{
    m_computer.Fail("OpenProcessToken", 5);
    const Outcome outcome = Run({"power", "sleep", "--yes"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("the shutdown privilege could not be requested: the system refused "
                                       "OpenProcessToken (access denied, 5).\n  Result: GetPrivileges returned 0."));
    EXPECT_EQ(0u, m_simulated.SuspendCount());
}

struct RefusedStep
{
    const char* command;
    const char* operation;
    DWORD error;
    const char* message;
    const char* result;
};

TEST_F(RefusedPower, TheRefusedStepIsNamed)
{
    const RefusedStep steps[] = {
        {"keep-awake", "GetActivePwrScheme", 5, "the system refused GetActivePwrScheme (access denied, 5)",
         "SetPowerScheme returned -2."},
        {"keep-awake", "ReadPwrScheme", 2, "the system refused ReadPwrScheme (file not found, 2)",
         "SetPowerScheme returned -3."},
        {"keep-awake", "WritePwrScheme", 5, "the system refused WritePwrScheme (access denied, 5)",
         "SetPowerScheme returned -4."},
        {"keep-awake", "SetActivePwrScheme", 31,
         "the system refused SetActivePwrScheme (a device does not function, 31)", "SetPowerScheme returned -5."},
        {"restore", "WritePwrScheme", 5, "the system refused WritePwrScheme (access denied, 5)",
         "ResetPowerScheme returned -3."},
        {"saver", "PowerGetActiveScheme", 5, "the system refused PowerGetActiveScheme (access denied, 5)",
         "GetPowerScheme returned -1."},
        {"saver", "PowerDuplicateScheme", 8, "the system refused PowerDuplicateScheme (not enough memory, 8)",
         "GetPowerScheme returned -2."},
        {"saver", "PowerWriteFriendlyName", 5, "the system refused PowerWriteFriendlyName (access denied, 5)",
         "GetPowerScheme returned -3."},
        {"saver", "PowerWriteACValueIndex", 5, "the system refused PowerWriteACValueIndex (access denied, 5)",
         "GetPowerScheme returned -4."},
        {"saver", "PowerSetActiveScheme", 5, "the system refused PowerSetActiveScheme (access denied, 5)",
         "GetPowerScheme returned -5."},
    };
    for (const RefusedStep& step : steps)
    {
        m_computer.StopFailing();
        m_computer.Fail("PowerEnumerate", 259);
        m_computer.Fail(step.operation, step.error);
        const Outcome outcome = Run({"power", step.command, "--yes"});
        EXPECT_EQ(kFailed, outcome.exitCode) << step.operation;
        EXPECT_THAT(outcome.err, HasSubstr(step.message));
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

/// Presses Ctrl-C when something is shown, once.
class InterruptingProgress : public std::stringbuf
{
protected:
    int sync() override
    {
        if (!std::exchange(m_pressed, true))
            std::raise(SIGINT);
        return 0;
    }

private:
    bool m_pressed = false;
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
    InterruptingProgress progress;
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
