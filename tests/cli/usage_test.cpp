#include "cli_test.h"

#include <cstdlib>

namespace calvix::test::usage_test
{
namespace
{

using ::testing::HasSubstr;
using ::testing::Not;

class Usage : public CliTest
{
};
class CommonOptions : public CliTest
{
};
class HostProgram : public CliTest
{
};

TEST_F(Usage, IsBadWithoutACommand)
{
    const Outcome outcome = Run({});
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_EQ("", outcome.out);
    EXPECT_THAT(outcome.err, HasSubstr("--help"));
}

TEST_F(Usage, IsBadWithUnknownWords)
{
    EXPECT_EQ(kBadInput, Run({"frobnicate"}).exitCode);
    EXPECT_EQ(kBadInput, Run({"adapters", "--frobnicate"}).exitCode);
    EXPECT_EQ(kBadInput, Run({"profiles"}).exitCode);
    EXPECT_EQ(kBadInput, Run({"profiles", "show"}).exitCode);
    EXPECT_EQ(kBadInput, Run({"profiles", "move", "Home", "--to", "first"}).exitCode);
    EXPECT_EQ(kBadInput, Run({"profiles", "move", "Home"}).exitCode);
    EXPECT_EQ(kBadInput, Run({"scan", "--timeout", "soon"}).exitCode);
}

TEST_F(Usage, ListsTheCommandsAndExitCodes)
{
    const Outcome outcome = Run({"--help"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    for (const char* command :
         {"adapters", "scan",  "networks", "bss",     "profiles", "status", "connect",  "disconnect", "reconnect",
          "reset",    "auto",  "switch",   "roam",    "watch",    "radio",  "settings", "ihv",        "list",
          "softap",   "match", "best",     "explain", "import",   "power",  "run",      "online"})
        EXPECT_THAT(outcome.out, HasSubstr(std::string("\n  ") + command + " ")) << command;
    EXPECT_THAT(outcome.out, HasSubstr("3  no adapter, or the WLAN service cannot be reached"));
}

TEST_F(Usage, TellsTheVersion)
{
    const Outcome outcome = Run({"--version"});
    EXPECT_EQ(kSuccess, outcome.exitCode);
    EXPECT_EQ("calvix 1.0.0\n", outcome.out);
}

TEST_F(Usage, NamesTheCommonOptionsInEveryCommand)
{
    for (const std::vector<std::string>& command : std::vector<std::vector<std::string>>{{"adapters"},
                                                                                         {"scan"},
                                                                                         {"networks"},
                                                                                         {"bss"},
                                                                                         {"profiles", "list"},
                                                                                         {"profiles", "show"},
                                                                                         {"profiles", "add"},
                                                                                         {"profiles", "delete"},
                                                                                         {"profiles", "move"},
                                                                                         {"status"},
                                                                                         {"connect"},
                                                                                         {"disconnect"},
                                                                                         {"reconnect"},
                                                                                         {"reset"},
                                                                                         {"auto"},
                                                                                         {"switch"},
                                                                                         {"roam"},
                                                                                         {"watch"},
                                                                                         {"radio", "status"},
                                                                                         {"radio", "on"},
                                                                                         {"radio", "off"},
                                                                                         {"radio", "reset"},
                                                                                         {"radio", "restart"},
                                                                                         {"settings"},
                                                                                         {"ihv"},
                                                                                         {"power", "status"},
                                                                                         {"power", "keep-awake"},
                                                                                         {"power", "restore"},
                                                                                         {"power", "saver"},
                                                                                         {"power", "sleep"},
                                                                                         {"power", "privilege"},
                                                                                         {"run"},
                                                                                         {"online"},
                                                                                         {"list", "networks"},
                                                                                         {"list", "bss"},
                                                                                         {"softap"},
                                                                                         {"match"},
                                                                                         {"best"},
                                                                                         {"explain"},
                                                                                         {"import"}})
    {
        std::vector<std::string> arguments = command;
        arguments.push_back("--help");
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(kSuccess, outcome.exitCode);
        for (const char* option : {"--json", "--interface", "--scenario", "--save", "--trace", "--no-color"})
            EXPECT_THAT(outcome.out, HasSubstr(option)) << command.back();
    }
}

TEST_F(CommonOptions, MayStandBeforeTheCommand)
{
    const std::string scenario = FileWith("world.json", simulation::WriteScenario(RichWorld()));
    const Outcome before = Run({"--scenario", scenario, "--json", "adapters"});
    const Outcome behind = Run({"adapters", "--scenario", scenario, "--json"});
    EXPECT_EQ(kSuccess, before.exitCode) << before.err;
    EXPECT_EQ(before.out, behind.out);
    EXPECT_EQ(kSuccess, Run({"profiles", "--scenario", scenario, "list"}).exitCode);
}

TEST_F(CommonOptions, ChooseTheAdapter)
{
    for (const char* name :
         {"2", "Wireless Adapter B", "{B0000002-0002-4002-8002-00000000000B}", "b0000002-0002-4002-8002-00000000000b"})
    {
        const Outcome outcome = RunOn(RichWorld(), {"status", "--interface", name});
        EXPECT_EQ("Adapter:  Wireless Adapter B\nState:    disconnected\n", outcome.out) << name << outcome.err;
    }
}

TEST_F(CommonOptions, RefuseAnUnknownAdapter)
{
    for (const char* name : {"3", "0", "wireless adapter b", "{C0000003-0003-4003-8003-00000000000C}"})
    {
        const Outcome outcome = RunOn(RichWorld(), {"status", "--interface", name});
        EXPECT_EQ(kBadInput, outcome.exitCode) << name;
        EXPECT_THAT(outcome.err, HasSubstr(std::string("there is no adapter \"") + name + "\"."));
        EXPECT_THAT(outcome.err, HasSubstr("calvix adapters"));
    }
}

TEST_F(CommonOptions, RefuseAScenarioThatCannotBeUsed)
{
    const Outcome missing = Run({"adapters", "--scenario", PathFor("missing.json")});
    EXPECT_EQ(kBadInput, missing.exitCode);
    EXPECT_THAT(missing.err, HasSubstr("missing.json"));

    const std::string broken = FileWith("broken.json", R"({"adapters": 7})");
    const Outcome outcome = Run({"adapters", "--scenario", broken});
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("broken.json"));
    EXPECT_THAT(outcome.err, HasSubstr("adapters"));
}

TEST_F(CommonOptions, ShareOneWorldThroughSavedScenarios)
{
    const std::string world = FileWith("world.json", simulation::WriteScenario(DisconnectedWorld()));
    EXPECT_EQ(kSuccess, Run({"profiles", "delete", "GoneNet", "--scenario", world, "--save", world}).exitCode);
    EXPECT_EQ(kSuccess, Run({"best", "--scenario", world, "--save", world}).exitCode);

    const Outcome profiles = Run({"profiles", "list", "--scenario", world});
    EXPECT_THAT(profiles.out, Not(HasSubstr("GoneNet")));
    EXPECT_THAT(profiles.out, HasSubstr("OfficeNet"));
    EXPECT_THAT(Run({"status", "--scenario", world}).out, HasSubstr("State:          connected\n"));
}

TEST_F(CommonOptions, SaveAlsoWhatAFailedCommandLeft)
{
    const std::string saved = PathFor("saved.json");
    EXPECT_EQ(kFailed, RunOn(NoProfileWorld(), {"best", "--save", saved}).exitCode);
    EXPECT_NO_THROW(simulation::LoadScenario(saved));
}

TEST_F(CommonOptions, RefuseToSaveWhereNothingIsSimulated)
{
    const Outcome outcome = Run({"explain", "--save", PathFor("saved.json")});
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("--save"));
    EXPECT_EQ("", Content(PathFor("saved.json")));
}

TEST_F(CommonOptions, SaySoWhenSavingFails)
{
    const Outcome outcome = RunOn(RichWorld(), {"adapters", "--save", PathFor("no/such/folder.json")});
    EXPECT_EQ(kBadInput, outcome.exitCode);
    EXPECT_THAT(outcome.err, HasSubstr("cannot be written"));
}

TEST_F(CommonOptions, ShowTheTraceOnStandardError)
{
    const Outcome traced = RunOn(DisconnectedWorld(), {"networks", "--interface", "Wireless", "--trace"});
    EXPECT_EQ(kBadInput, traced.exitCode);
    EXPECT_THAT(RunOn(NoProfileWorld(), {"match", "--trace"}).err, HasSubstr("trace: No network profile: "));
    EXPECT_THAT(RunOn(NoProfileWorld(), {"match"}).err, Not(HasSubstr("trace:")));
}

TEST_F(CommonOptions, DecideAboutColours)
{
    const host::TerminalTraits terminal{.isTerminal = true, .color = true};
    EXPECT_THAT(RunOn(RichWorld(), {"networks"}, terminal).out, HasSubstr("\x1b["));
    EXPECT_THAT(RunOn(RichWorld(), {"networks"}, terminal).out, HasSubstr("▂▄▆█"));
    const Outcome plain = RunOn(RichWorld(), {"networks", "--no-color"}, terminal);
    EXPECT_THAT(plain.out, Not(HasSubstr("\x1b[")));
    EXPECT_THAT(plain.out, HasSubstr("▂▄▆█"));
}

int RunProgram(const std::string& arguments)
{
    std::string command = "\"" CALVIX_HOST_PROGRAM "\" " + arguments;
#if defined(_WIN32)
    // cmd takes one pair of quotes off the whole line.
    for (char& c : command)
        c = c == '/' ? '\\' : c;
    command = "\"" + command + "\"";
    return std::system(command.c_str());
#else
    const int status = std::system(command.c_str());
    return status / 256;
#endif
}

TEST_F(HostProgram, RunsAsAProcess)
{
    const std::string output = PathFor("output.txt");
    EXPECT_EQ(kSuccess, RunProgram("explain ConnectBestAP -9 > \"" + output + "\""));
    EXPECT_THAT(Content(output), HasSubstr("ConnectBestAP -9: no visible network can be chosen."));
    EXPECT_EQ(kBadInput, RunProgram("frobnicate 2> \"" + output + "\""));
}

} // namespace
} // namespace calvix::test::usage_test
