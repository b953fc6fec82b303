// What the program prints, command by command, as it stands in files that people read: tests/data/transcripts and the
// pages. The tests compare; script/update-transcripts writes.

#include "cli_test.h"
#include "transcript.h"

#include "commands/commands.h"
#include "shell/manual.h"
#include "shell/output_schema.h"

#include <calvix/testing/computer.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace calvix::test::transcripts_test
{
namespace
{

namespace files = std::filesystem;
using calvix::testing::Computer;

/// Leaves the file as it would be right now in the build, from where script/update-transcripts takes it.
void LeaveForUpdate(const std::string& path, const std::string& text)
{
    const files::path copy = files::path(CALVIX_PRINTED_FOLDER) / path;
    files::create_directories(copy.parent_path());
    std::ofstream(copy, std::ios::binary) << text;
}

/// Paths in the files are those of the repository.
class TranscriptFile : public CliTest, public ::testing::WithParamInterface<const char*>
{
protected:
    TranscriptFile() : m_before(files::current_path()) { files::current_path(CALVIX_SOURCE_DIR); }
    ~TranscriptFile() override { files::current_path(m_before); }

    std::string Printed(const TranscriptCommand& command)
    {
        std::unique_ptr<Computer> computer;
        if (const TranscriptComputer& wanted = command.computer; !wanted.scenario.empty())
            computer.reset(new Computer(Computer::FromFile(wanted.scenario)));
        if (!command.computer.operation.empty())
            computer->Fail(command.computer.operation, command.computer.error);
        std::vector<std::string> words = ShellWords(command.line);
        EXPECT_EQ("calvix", words.front()) << "only this program can be shown";
        words.erase(words.begin());
        const Outcome outcome = RunTogether(words);
        std::string printed = outcome.out;
        // The service's documents have line ends of their own.
        std::erase(printed, '\r');
        while (printed.ends_with("\n\n"))
            printed.pop_back();
        if (outcome.exitCode != 0)
            printed += "[exit code " + std::to_string(outcome.exitCode) + "]\n";
        return printed;
    }

private:
    files::path m_before;
};

TEST_P(TranscriptFile, ShowsWhatIsPrinted)
{
    const std::string path = GetParam();
    const Transcript transcript = ReadTranscript(Content(path), path.ends_with(".md"));
    EXPECT_FALSE(transcript.commands.empty());
    std::vector<std::string> printed;
    for (const TranscriptCommand& command : transcript.commands)
    {
        printed.push_back(Printed(command));
        EXPECT_EQ(command.printed, printed.back()) << path << ": $ " << command.line;
    }
    LeaveForUpdate(path, WithPrinted(transcript, printed));
}

INSTANTIATE_TEST_SUITE_P(Transcripts,
                         TranscriptFile,
                         ::testing::Values("tests/data/transcripts/looking.txt",
                                           "tests/data/transcripts/connecting.txt",
                                           "tests/data/transcripts/profiles.txt",
                                           "tests/data/transcripts/computer.txt",
                                           "tests/data/transcripts/help.txt",
                                           "docs/command-line.md",
                                           "docs/troubleshooting.md"));

/// A file of the repository that the program writes.
void ExpectUpToDate(const std::string& path, const std::string& text)
{
    LeaveForUpdate(path, text);
    std::ifstream file(CALVIX_SOURCE_DIR "/" + path, std::ios::binary);
    const std::string committed{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    EXPECT_EQ(text, committed) << "run script/update-transcripts, and look at what it changes";
}

TEST(MadeFile, ManualPage)
{
    ExpectUpToDate("docs/calvix.1", host::ManualPage(host::AllCommands()));
}

TEST(MadeFile, OutputSchema)
{
    ExpectUpToDate("docs/output.schema.json", host::OutputSchema(host::AllCommands()));
}

TEST(MadeFile, ScenarioSchema)
{
    ExpectUpToDate("docs/scenario.schema.json", simulation::ScenarioSchema());
}

} // namespace
} // namespace calvix::test::transcripts_test
