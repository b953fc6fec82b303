#include "cli_test.h"
#include "transcript.h"

#include "commands/commands.h"
#include "shell/command_line.h"
#include "shell/program_texts.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace calvix::test::usage_test
{
namespace
{

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// A command line without the program's name; only quotation marks around blanks mean something.
std::vector<std::string> WordsOf(const std::string& line)
{
    std::vector<std::string> words = ShellWords(line);
    if (!words.empty() && words.front() == "calvix")
        words.erase(words.begin());
    const auto redirection =
        std::find_if(words.begin(), words.end(), [](const std::string& one) { return one == ">" || one == "|"; });
    words.erase(redirection, words.end());
    return words;
}

std::string WithoutSequences(const std::string& text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '\x1b')
            i = text.find('m', i);
        else
            plain += text[i];
    return plain;
}

class Usage : public CliTest
{
protected:
    /// What the parser has against a command line, empty: nothing.
    static std::string Refusal(const std::vector<std::string>& words)
    {
        std::ostringstream out;
        std::ostringstream err;
        host::ExitCode exitCode = host::ExitCode::success;
        host::ParseArguments(host::AllCommands(), words, out, err, exitCode);
        return err.str();
    }
};
class CommonOptions : public CliTest
{
};
class HostProgram : public CliTest
{
};

TEST_F(CommonOptions, MayStandBeforeTheCommand)
{
    const std::string scenario = FileWith("scenario.json", simulation::WriteScenario(RichScenario()));
    const Outcome before = Run({"--scenario", scenario, "--json", "adapters"});
    const Outcome behind = Run({"adapters", "--scenario", scenario, "--json"});
    EXPECT_EQ(kSuccess, before.exitCode) << before.err;
    EXPECT_EQ(before.out, behind.out);
    EXPECT_EQ(kSuccess, Run({"profiles", "--scenario", scenario, "list"}).exitCode);
}

TEST_F(CommonOptions, ShareOneScenarioThroughSavedScenarios)
{
    const std::string scenario = FileWith("scenario.json", simulation::WriteScenario(DisconnectedScenario()));
    EXPECT_EQ(kSuccess, Run({"profiles", "delete", "GoneNet", "--scenario", scenario, "--save", scenario}).exitCode);
    EXPECT_EQ(kSuccess, Run({"best", "--scenario", scenario, "--save", scenario}).exitCode);

    const Outcome profiles = Run({"profiles", "list", "--scenario", scenario});
    EXPECT_THAT(profiles.out, Not(HasSubstr("GoneNet")));
    EXPECT_THAT(profiles.out, HasSubstr("OfficeNet"));
    EXPECT_THAT(Run({"status", "--scenario", scenario}).out, HasSubstr("State:          connected\n"));
}

TEST_F(CommonOptions, SaveAlsoWhatAFailedCommandLeft)
{
    const std::string saved = PathFor("saved.json");
    EXPECT_EQ(kFailed, RunOn(NoProfileScenario(), {"best", "--save", saved}).exitCode);
    EXPECT_NO_THROW(simulation::LoadScenario(saved));
}

TEST_F(CommonOptions, SaveNothingWhereNothingIsSimulated)
{
    EXPECT_EQ(kBadInput, Run({"explain", "--save", PathFor("saved.json")}).exitCode);
    EXPECT_EQ("", Content(PathFor("saved.json")));
}

TEST_F(Usage, ShowsEveryCommandsOptionsWithAnExample)
{
    for (const host::Command& command : host::AllCommands().commands)
    {
        // After "help", help is about the program.
        if (command.hidden || command.path == "help")
            continue;
        const Outcome outcome = Run(WordsOf(command.path + " --help"));
        EXPECT_EQ(kSuccess, outcome.exitCode);
        EXPECT_THAT(command.examples, HasSubstr("\n  calvix " + command.path)) << command.path;
        EXPECT_THAT(outcome.out, HasSubstr(command.examples)) << command.path;
        for (const char* option :
             {"--json", "--interface", "--scenario", "--save", "--record", "--replay", "--trace", "--color"})
            EXPECT_THAT(outcome.out, HasSubstr(option)) << command.path;
    }
}

TEST_F(Usage, TakesTheExamplesOfEveryCommand)
{
    for (const host::Command& command : host::AllCommands().commands)
    {
        std::istringstream lines(command.examples);
        for (std::string line; std::getline(lines, line);)
            if (line.starts_with("  calvix ") && !line.starts_with("  calvix help"))
                EXPECT_EQ("", Refusal(WordsOf(line))) << line;
    }
}

TEST_F(Usage, ShowsTheSameBeforeAndAfterHelp)
{
    EXPECT_EQ(Run({"profiles", "move", "--help"}).out, Run({"help", "profiles", "move"}).out);
    EXPECT_EQ(Run({"radio", "--help"}).out, Run({"help", "radio"}).out);
    EXPECT_EQ(Run({"--help"}).out, Run({"help"}).out);
    EXPECT_EQ(kSuccess, Run({"help", "scan"}).exitCode);
}

TEST_F(Usage, EndsWithTheExitCodesOfThePage)
{
    const std::string page = Content(CALVIX_SOURCE_DIR "/docs/command-line.md");
    const std::string help = Run({"scan", "--help"}).out;
    const std::string manual = Run({"manual"}).out;
    for (const host::ExitCodeText& text : host::kExitCodes)
    {
        const std::string number = std::to_string(static_cast<int>(text.code));
        EXPECT_THAT(help, HasSubstr("\n  " + number + "  " + text.meaning + "\n"));
        EXPECT_THAT(manual, HasSubstr("\n\\fB" + number + "\\fR\n"));
        EXPECT_THAT(page, HasSubstr("\n| " + number + " | " + text.meaning + " |\n"));
    }
}

TEST_F(CommonOptions, DecideAboutColours)
{
    const host::TerminalTraits terminal{.isTerminal = true, .color = true};
    EXPECT_THAT(RunOn(RichScenario(), {"networks"}, terminal).out, HasSubstr("\x1b["));
    EXPECT_THAT(RunOn(RichScenario(), {"networks"}, terminal).out, HasSubstr("▂▄▆█"));
    const Outcome plain = RunOn(RichScenario(), {"networks", "--no-color"}, terminal);
    EXPECT_THAT(plain.out, Not(HasSubstr("\x1b[")));
    EXPECT_THAT(plain.out, HasSubstr("▂▄▆█"));
    EXPECT_EQ(plain.out, RunOn(RichScenario(), {"networks", "--color", "never"}, terminal).out);
    EXPECT_EQ(RunOn(RichScenario(), {"networks"}, terminal).out,
              RunOn(RichScenario(), {"networks", "--color", "auto"}, terminal).out);

    const Outcome piped = RunOn(RichScenario(), {"networks", "--color=always"});
    EXPECT_THAT(piped.out, HasSubstr("\x1b[32m####\x1b[0m"));
    EXPECT_THAT(RunOn(RichScenario(), {"networks"}).out, Not(HasSubstr("\x1b[")));
}

TEST_F(CommonOptions, ColourFailuresOnATerminalOfTheirOwn)
{
    const host::TerminalTraits piped{.errorColor = true};
    EXPECT_THAT(RunOn(NoAdapterScenario(), {"adapters"}, piped).err,
                HasSubstr("\x1b[31mcalvix:\x1b[0m the computer has"));
    EXPECT_THAT(RunOn(NoAdapterScenario(), {"adapters", "--no-color"}, piped).err,
                StartsWith("calvix: the computer has"));
    EXPECT_THAT(RunOn(NoAdapterScenario(), {"adapters"}).err, StartsWith("calvix: the computer has"));
}

TEST_F(CommonOptions, MeanNothingInColourAlone)
{
    for (const char* command : {"networks", "bss", "adapters", "status", "best", "match"})
    {
        const std::string colored = RunOn(RichScenario(), {command, "--color", "always"}).out;
        EXPECT_EQ(RunOn(RichScenario(), {command}).out, WithoutSequences(colored)) << command;
    }
}

TEST(Console, GetsColoursOnlyWhereTheyAreWelcome)
{
    struct ConsoleRow
    {
        const char* what;
        host::ConsoleFindings findings;
        host::TerminalTraits traits;
    };
    const ConsoleRow rows[] = {
        {"a console", {true, true, true, "", "xterm"}, {true, true, true}},
        {"unwanted", {true, true, true, "0", "xterm"}, {true, false, false}},
        {"dumb: lines that draw themselves would pile up", {true, true, true, "", "dumb"}, {false, false, false}},
        {"old", {true, true, false, "", ""}, {true, false, false}},
        {"piped", {false, true, true, "", "xterm"}, {false, false, true}},
        {"no console", {}, {}},
    };
    for (const auto& [what, findings, expected] : rows)
    {
        SCOPED_TRACE(what);
        const host::TerminalTraits traits = host::TraitsOf(findings);
        EXPECT_EQ(expected.isTerminal, traits.isTerminal);
        EXPECT_EQ(expected.color, traits.color);
        EXPECT_EQ(expected.errorColor, traits.errorColor);
    }
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

/// A destination that takes nothing.
class FullDisk : public std::streambuf
{
};

TEST_F(HostProgram, AnOutputThatCannotBeWrittenIsAFailure)
{
    const std::string scenario = CALVIX_SOURCE_DIR "/scenarios/home.json";
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"networks", "--scenario", scenario}, {"--help"}, {"--version"}})
    {
        FullDisk full;
        std::istringstream in;
        std::ostream out(&full);
        std::ostringstream err;
        EXPECT_EQ(kFailed, host::Run(words, in, out, err, {})) << words.front();
        EXPECT_THAT(err.str(), HasSubstr("calvix: the output could not be written")) << words.front();
    }
    FullDisk full;
    std::istringstream in;
    std::ostream out(&full);
    std::ostringstream err;
    EXPECT_EQ(kBadInput, host::Run({"explain", "ConnectBestAP", "nonsense", "--json"}, in, out, err, {}))
        << "a failure keeps its own code";
}

} // namespace
} // namespace calvix::test::usage_test
