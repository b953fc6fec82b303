// The scripts of the shells; tests/data/transcripts/completion.txt has what they get.

#include "cli_test.h"

#include "shell/completion.h"

#include <cstdlib>

namespace calvix::test::completion_test
{
namespace
{

class CompletionCommand : public CliTest
{
};

TEST_F(CompletionCommand, HasAScriptForEachShell)
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
