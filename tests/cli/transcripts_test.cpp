// What the program prints, command by command, as it stands in files that people read: tests/data/transcripts and the
// pages. The tests compare; script/update-transcripts writes.

#include "cli_test.h"
#include "transcript.h"

#include "commands/commands.h"
#include "shell/manual.h"
#include "shell/output_schema.h"

#include <calvix/testing/computer.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>

namespace calvix::test::transcripts_test
{
namespace
{

namespace files = std::filesystem;
using calvix::testing::Computer;
using nlohmann::json;

/// Leaves the file as it would be right now in the build, from where script/update-transcripts takes it.
void LeaveForUpdate(const std::string& path, const std::string& text)
{
    const files::path copy = files::path(CALVIX_PRINTED_FOLDER) / path;
    files::create_directories(copy.parent_path());
    std::ofstream(copy, std::ios::binary) << text;
}

/// A scenario of test_scenarios.h, or a scenario file.
simulation::Scenario ScenarioNamed(const std::string& name)
{
    static const std::map<std::string, simulation::Scenario (*)()> scenarios{
        {"RichScenario", RichScenario},
        {"DisconnectedScenario", DisconnectedScenario},
        {"SilentScenario", SilentScenario},
        {"NoAdapterScenario", NoAdapterScenario},
        {"NoProfileScenario", NoProfileScenario}};
    const auto found = scenarios.find(name);
    return found != scenarios.end() ? found->second() : simulation::LoadScenario(name);
}

/// Paths in the files are those of the repository.
class TranscriptFile : public CliTest, public ::testing::WithParamInterface<std::string>
{
protected:
    TranscriptFile() : m_before(files::current_path()) { files::current_path(CALVIX_SOURCE_DIR); }
    ~TranscriptFile() override { files::current_path(m_before); }

    void Use(const TranscriptComputer& wanted)
    {
        if (wanted.line == m_line)
            return;
        m_line = wanted.line;
        m_computer.reset();
        if (wanted.line == 0)
            return;
        json scenario = json::parse(simulation::WriteScenario(ScenarioNamed(wanted.scenario)));
        for (const TranscriptChange& change : wanted.changes)
            if (change.what.starts_with('/'))
                scenario[json::json_pointer(change.what)] = json::parse(change.value);
        m_computer = std::make_unique<Computer>(scenario.dump());
        for (const TranscriptChange& change : wanted.changes)
            if (!change.what.starts_with('/'))
                m_computer->Fail(change.what, std::stoul(change.value, nullptr, 0));
    }

    std::string Printed(const TranscriptCommand& command)
    {
        Use(command.computer);
        Answer(command.answer);
        std::vector<std::string> words = ShellWords(command.line);
        EXPECT_EQ("calvix", words.front()) << "only this program can be shown";
        words.erase(words.begin());
        const Outcome outcome = RunTogether(words);
        EXPECT_TRUE(m_computer == nullptr || m_computer->Held().Nothing()) << command.line;
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
    std::size_t m_line = 0;
    std::unique_ptr<Computer> m_computer;
};

TEST_P(TranscriptFile, ShowsWhatIsPrinted)
{
    const std::string& path = GetParam();
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

std::set<std::string> TranscriptPaths()
{
    const std::string folder = "tests/data/transcripts/";
    std::set<std::string> paths{"docs/command-line.md", "docs/troubleshooting.md"};
    for (const auto& entry : files::directory_iterator(CALVIX_SOURCE_DIR "/" + folder))
        if (entry.path().extension() == ".txt")
            paths.insert(folder + entry.path().filename().string());
    return paths;
}

INSTANTIATE_TEST_SUITE_P(Transcripts, TranscriptFile, ::testing::ValuesIn(TranscriptPaths()));

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
