// The completions at the end of a command line, and that bash gets them.

#include "cli_test.h"

#include "shell/completion.h"

#include <cstdlib>
#include <sstream>

namespace calvix::test::completion_test
{
namespace
{

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class CompleteCommand : public CliTest
{
protected:
    /// The completions at the end of a line; the first word says which files are possible, too.
    std::vector<std::string> After(std::vector<std::string> before, const std::string& current = {})
    {
        std::vector<std::string> arguments{"complete"};
        if (!current.empty())
            arguments.push_back("--current=" + current);
        arguments.push_back("--");
        arguments.insert(arguments.end(), before.begin(), before.end());
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(kSuccess, outcome.exitCode);
        EXPECT_EQ("", outcome.err);
        std::vector<std::string> words;
        std::istringstream lines(outcome.out);
        for (std::string line; std::getline(lines, line);)
            words.push_back(line.substr(0, line.find('\t')));
        return words;
    }

    std::string Airport() const { return CALVIX_SOURCE_DIR "/scenarios/airport.json"; }
};

TEST_F(CompleteCommand, KnowsCommandsAndFamilies)
{
    EXPECT_THAT(After({}), AllOf(Contains("networks"), Contains("profiles"), Contains("help")));
    EXPECT_THAT(After({}), Not(Contains("complete"))) << "it is for scripts";
    EXPECT_THAT(After({}, "re"), ElementsAre("none", "reset", "reconnect", "report"));
    EXPECT_THAT(After({"profiles"}), ElementsAre("none", "list", "show", "add", "delete", "move"));
    EXPECT_THAT(After({"--json", "--scenario", "x.json", "profiles"}, "s"), ElementsAre("none", "show"));
    EXPECT_THAT(After({"help", "radio"}, "re"), ElementsAre("none", "reset", "restart"));
    EXPECT_THAT(After({"frobnicate"}, "qq"), ElementsAre("none"));
}

TEST_F(CompleteCommand, KnowsOptionsOnce)
{
    EXPECT_THAT(After({"scan"}, "--t"), ElementsAre("none", "--timeout", "--trace"));
    EXPECT_THAT(After({"scan", "--timeout", "5"}, "--t"), ElementsAre("none", "--trace"));
    EXPECT_THAT(After({"best", "--exclude-ssid", "A"}, "--exclude-s"), ElementsAre("none", "--exclude-ssid"));
    EXPECT_THAT(After({}, "--ve"), ElementsAre("none", "--version"));
    EXPECT_THAT(After({"scan", "--timeout"}), ElementsAre("none")) << "any number";
}

TEST_F(CompleteCommand, KnowsFixedValues)
{
    EXPECT_THAT(After({"roam", "--color"}), ElementsAre("none", "auto", "always", "never"));
    EXPECT_THAT(After({"roam"}, "--color=a"), ElementsAre("none", "--color=auto", "--color=always"));
    EXPECT_THAT(After({"profiles", "move", "X", "--to"}), ElementsAre("none", "second", "last"));
    EXPECT_THAT(After({"completion"}), ElementsAre("none", "bash", "zsh", "fish", "powershell"));
    EXPECT_THAT(After({"explain"}, "ConnectB"), ElementsAre("none", "ConnectBestAP"));
}

TEST_F(CompleteCommand, LeavesFilesToTheShell)
{
    EXPECT_THAT(After({"status", "--scenario"}), ElementsAre("scenarios"));
    EXPECT_THAT(After({"status"}, "--scenario=sc"), ElementsAre("scenarios"));
    EXPECT_THAT(After({"status", "--record"}), ElementsAre("any"));
    EXPECT_THAT(After({"profiles", "add"}), ElementsAre("any"));
    EXPECT_THAT(After({"import", "--profiles"}), ElementsAre("folders"));
    EXPECT_THAT(After({"import", "a.txt", "b.txt"}), ElementsAre("any")) << "as many as are wanted";
}

TEST_F(CompleteCommand, AsksTheComputerForNames)
{
    EXPECT_THAT(After({"connect", "--scenario", Airport()}), ElementsAre("none", "東空港 Free", "Crew", "Old Lounge"));
    EXPECT_THAT(After({"--scenario=" + Airport(), "profiles", "delete"}, "O"), ElementsAre("none", "Old Lounge"));
    EXPECT_THAT(After({"status", "--scenario", CALVIX_SOURCE_DIR "/scenarios/two-adapters.json", "--interface"}),
                ElementsAre("none", "1", "2"));
    EXPECT_THAT(After({"connect", "--interface", "2", "--scenario", CALVIX_SOURCE_DIR "/scenarios/two-adapters.json"}),
                ElementsAre("none", "Upper Deck", "Engine Room"));
    EXPECT_THAT(After({"connect", "--scenario", "missing.json"}), ElementsAre("none")) << "and says nothing";
}

TEST_F(CompleteCommand, LeavesOutNamesThatFitOnNoLine)
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].profiles[1] = MakeProfile("two\tcolumns");
    const std::string file = FileWith("world.json", simulation::WriteScenario(world));
    EXPECT_THAT(After({"connect", "--scenario", file}),
                ElementsAre("none", "HomeNet", "HiddenNet", "AdHocNet", "GoneNet"));
    world.adapters[0].profiles[1] = MakeProfile("txt.\u202Ecod");
    EXPECT_THAT(After({"connect", "--scenario", FileWith("turned.json", simulation::WriteScenario(world))}),
                ElementsAre("none", "HomeNet", "HiddenNet", "AdHocNet", "GoneNet"));
}

TEST_F(CompleteCommand, HasAScriptForEachShell)
{
    for (const auto& [shell, file] :
         {std::pair{"bash", "calvix.bash"}, {"zsh", "_calvix"}, {"fish", "calvix.fish"}, {"powershell", "calvix.ps1"}})
    {
        const Outcome outcome = Run({"completion", shell});
        EXPECT_EQ(kSuccess, outcome.exitCode);
        EXPECT_EQ(Content(CALVIX_SOURCE_DIR "/cli/shell/completions/" + std::string(file)), outcome.out) << shell;
    }
    EXPECT_EQ(kBadInput, Run({"completion", "cmd"}).exitCode);
    EXPECT_EQ(nullptr, host::CompletionScript("cmd"));
}

// Windows has no bash of its own.
#if !defined(_WIN32)

/// bash itself, with the words of a command line as it splits them; prints COMPREPLY, one a line.
class BashCompletion : public CliTest
{
protected:
    std::string Reply(const std::string& words)
    {
        const std::string script = FileWith("ask.bash", "source \"$1\"\n"
                                                        "COMP_WORDS=(" +
                                                            words +
                                                            ")\n"
                                                            "COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n"
                                                            "_calvix\n"
                                                            "printf '%s\\n' \"${COMPREPLY[@]}\"\n");
        const std::string output = PathFor("output.txt");
        const std::string command = "cd '" CALVIX_SOURCE_DIR "' && PATH=\"$(dirname '" CALVIX_HOST_PROGRAM
                                    "'):$PATH\" bash '" +
                                    script + "' cli/shell/completions/calvix.bash > '" + output + "' 2>&1";
        EXPECT_EQ(0, std::system(command.c_str()));
        return Content(output);
    }
};

TEST_F(BashCompletion, OffersWhatTheProgramSays)
{
    EXPECT_EQ("reset\nreconnect\nreport\n", Reply("calvix re"));
    EXPECT_EQ("show\n", Reply("calvix profiles s"));
    EXPECT_EQ("--timeout\n--trace\n", Reply("calvix scan --t"));
    EXPECT_EQ("auto\nalways\n", Reply("calvix scan --color = a")) << "bash splits at the sign";
    EXPECT_EQ("auto\nalways\nnever\n", Reply("calvix scan --color = ''"));
    EXPECT_EQ("scenarios/home.json\n", Reply("calvix scan --scenario scenarios/ho"));
    EXPECT_EQ("scenarios/home.json\n", Reply("calvix scan --scenario = scenarios/ho"));
    EXPECT_EQ("scenarios\n", Reply("calvix scan --scenario scen"));
    EXPECT_EQ("Old\\ Lounge\n", Reply("calvix connect --scenario scenarios/airport.json O"));
    EXPECT_EQ("Old\\ Lounge\n", Reply("calvix connect --scenario scenarios/airport.json 'Old\\ L'"));
    EXPECT_EQ("Old Lounge\n", Reply("calvix connect --scenario scenarios/airport.json '\"Old L'"));
}

#endif

} // namespace
} // namespace calvix::test::completion_test
