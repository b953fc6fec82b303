#include "cli_test.h"

#include <nlohmann/json.hpp>

namespace calvix::test::process_commands_test
{
namespace
{

using nlohmann::json;
using simulation::InternetAccess;
using simulation::Scenario;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class RunCommandTest : public CliTest
{
protected:
    /// A computer with three programs and three processes.
    static Scenario Workshop()
    {
        Scenario world;
        world.programPath = "C:\\Tools\\calvix.exe";
        world.programs = {{"C:\\Tools\\survey.exe", 12'000},
                          {"C:\\Windows\\System32\\ping.exe", 500},
                          {"C:\\Tools\\my tool.exe", 300, 7},
                          {"C:\\Tools\\daemon.exe", std::nullopt}};
        world.processes = {{12, "one.exe"}, {16, "two.exe"}, {20, "system.exe", std::nullopt, 0, true}};
        return world;
    }

    Outcome RunAndKeep(std::vector<std::string> arguments)
    {
        const std::string saved = PathFor("saved.json");
        arguments.insert(arguments.begin(), {"--save", saved});
        arguments.insert(arguments.begin(),
                         {"--scenario", FileWith("world.json", simulation::WriteScenario(Workshop()))});
        const Outcome outcome = Run(arguments);
        after = simulation::LoadScenario(saved);
        return outcome;
    }

    std::vector<std::uint32_t> RunningAfterwards() const
    {
        std::vector<std::uint32_t> numbers;
        for (const simulation::RunningProcess& process : after.processes)
            numbers.push_back(process.id);
        return numbers;
    }

    Scenario after;
};
class OnlineCommand : public CliTest
{
};

TEST_F(RunCommandTest, StartsACommandLineAndWaits)
{
    const Outcome outcome = RunAndKeep({"run", "ping localhost"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_EQ("\"ping localhost\" was started and has ended.\n", outcome.out);
    EXPECT_EQ(500u, after.power.upMilliseconds);
    EXPECT_EQ(3u, after.processes.size());
}

TEST_F(RunCommandTest, JoinsTheWords)
{
    EXPECT_EQ("\"ping localhost\" was started and has ended.\n", RunAndKeep({"run", "ping", "localhost"}).out);
    EXPECT_EQ("\"\"my tool.exe\" -n 1\" was started and has ended.\n",
              RunAndKeep({"run", "--", "my tool.exe", "-n", "1"}).out);
    EXPECT_EQ(300u, after.power.upMilliseconds);
}

TEST_F(RunCommandTest, AsJson)
{
    EXPECT_EQ(json({{"run", {{"started", "ping"}}}}), json::parse(RunAndKeep({"run", "ping", "--json"}).out));
}

TEST_F(RunCommandTest, SaysThatNothingWasStarted)
{
    const Outcome outcome = RunAndKeep({"run", "nonesuch"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, StartsWith("calvix: \"nonesuch\" was not started: the system refused CreateProcessA (file "
                                        "not found, 2).\n  What to do: check the name"));
    EXPECT_EQ(Workshop(), after);
}

TEST_F(RunCommandTest, SaysThatAProgramWouldNeverEnd)
{
    const Outcome outcome = RunAndKeep({"run", "daemon"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("was started, but its end cannot be waited for"));
    EXPECT_EQ(4u, after.processes.size());
}

TEST_F(RunCommandTest, TakesCharactersOfTheCodePageOnly)
{
    const Outcome outcome = RunOn(Workshop(), {"run", "\xE6\x9D\xB1.exe"});
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("characters outside the active code page"));
}

TEST_F(RunCommandTest, TakesNoEndlessCommandLine)
{
    EXPECT_EQ(kBadInput, RunOn(Workshop(), {"run", std::string(1001, 'x')}).exitCode);
}

TEST_F(RunCommandTest, StartsTheProgramBesideIt)
{
    const Outcome outcome = RunAndKeep({"run", "--exe", "my tool.exe"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_EQ("\"C:\\Tools\\my tool.exe\" was started and has ended.\n", outcome.out);
    EXPECT_EQ(300u, after.power.upMilliseconds);
}

TEST_F(RunCommandTest, LooksForItNowhereElse)
{
    const Outcome outcome = RunAndKeep({"run", "--exe", "ping.exe", "--json"});
    EXPECT_EQ(kFailed, outcome.exitCode);
    const json error = json::parse(outcome.out)["error"];
    EXPECT_EQ("CreateProcRunExe", error["method"]);
    EXPECT_EQ("CreateProcessA", error["operation"]);
    EXPECT_EQ(2, error["platformError"]);
}

TEST_F(RunCommandTest, EndsProcesses)
{
    const Outcome outcome = RunAndKeep({"run", "--kill", "12", "--kill", "16"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_EQ("process 12 was ended\nprocess 16 was ended\n", outcome.out);
    EXPECT_EQ(std::vector<std::uint32_t>{20}, RunningAfterwards());
    EXPECT_EQ(json({{"ended", {16}}}), json::parse(RunAndKeep({"run", "--kill", "16", "--json"}).out));
}

TEST_F(RunCommandTest, SaysWhichProcessWasNotEnded)
{
    const Outcome denied = RunAndKeep({"run", "--kill", "12", "--kill", "20", "--kill", "16"});
    EXPECT_EQ(kFailed, denied.exitCode);
    EXPECT_EQ("calvix: process 20 was not ended: the system refused OpenProcess (access denied, 5).\n"
              "  What to do: run as administrator.\n",
              denied.err);
    EXPECT_EQ((std::vector<std::uint32_t>{16, 20}), RunningAfterwards());
    const Outcome missing = RunAndKeep({"run", "--kill", "13"});
    EXPECT_EQ(kFailed, missing.exitCode);
    EXPECT_THAT(missing.err, HasSubstr("no process has this number"));
}

TEST_F(RunCommandTest, TakesNumbersOfProcesses)
{
    for (const char* text : {"0", "notepad", "-1", "12x", "4294967296"})
    {
        const Outcome outcome = RunOn(Workshop(), {"run", "--kill", "12", std::string("--kill=") + text});
        EXPECT_EQ(kBadInput, outcome.exitCode) << text;
        EXPECT_THAT(outcome.err, HasSubstr("is not a process number")) << text;
    }
}

TEST_F(RunCommandTest, DoesOneThing)
{
    const std::vector<std::vector<std::string>> commands = {{"run"},
                                                            {"run", "ping", "--exe", "survey.exe"},
                                                            {"run", "ping", "--kill", "12"},
                                                            {"run", "--exe", "survey.exe", "--kill", "12"}};
    for (const auto& command : commands)
    {
        const Outcome outcome = RunOn(Workshop(), command);
        EXPECT_EQ(kBadInput, outcome.exitCode);
        EXPECT_THAT(outcome.err, HasSubstr("either a command line, or --exe NAME, or --kill PID"));
    }
}

TEST_F(OnlineCommand, ShowsThatTheInternetCanBeReached)
{
    const Outcome outcome = RunOn({}, {"online"});
    EXPECT_EQ(kSuccess, outcome.exitCode) << outcome.err;
    EXPECT_EQ("The internet can be reached.\n", outcome.out);
    EXPECT_EQ(json({{"online", true}}), json::parse(RunOn({}, {"online", "--json"}).out));
}

TEST_F(OnlineCommand, ShowsWhyItCannotBeReached)
{
    Scenario world;
    world.internet = InternetAccess::unresolved;
    const Outcome unresolved = RunOn(world, {"online"});
    EXPECT_EQ(kFailed, unresolved.exitCode);
    EXPECT_THAT(unresolved.err, StartsWith("calvix: the internet could not be reached: the system refused "
                                           "InternetCheckConnectionA (the name could not be resolved, 12007).\n"
                                           "  Result: OpenUrl returned -1.\n  What to do: check that the network has"));
    world.internet = InternetAccess::unreachable;
    const json error = json::parse(RunOn(world, {"online", "--json"}).out)["error"];
    EXPECT_EQ(12029, error["platformError"]);
    EXPECT_EQ(-1, error["code"]);
}

} // namespace
} // namespace calvix::test::process_commands_test
