#include "cli_test.h"
#include "import_samples.h"

#include <nlohmann/json.hpp>

#include <filesystem>

namespace calvix::test::import_command_test
{

namespace
{

using namespace host::test;
using ::testing::HasSubstr;

class ImportCommand : public CliTest
{
protected:
    Outcome Import(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), "import");
        return Run(arguments);
    }
    /// Of the test's folder.
    std::size_t FileCount() const
    {
        const std::filesystem::directory_iterator files(PathFor(""));
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    std::string networks = FileWith("networks.txt", WithCarriageReturns(kNetworks));
    std::string interfaces = FileWith("interfaces.txt", WithCarriageReturns(kInterfaces));
    std::string output = PathFor("out.json");
};

} // namespace

TEST_F(ImportCommand, WritesAScenarioAndSaysWhatItHolds)
{
    const Outcome outcome = Import({"--networks", networks, "--interfaces", interfaces, "-o", output});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("Adapters       2\n"));
    EXPECT_THAT(outcome.out, HasSubstr("Access points  3 (0 hidden)\nNetworks       2\n"));
    EXPECT_THAT(outcome.out, HasSubstr("Profiles       1\n"));
    EXPECT_THAT(outcome.out, HasSubstr(output));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(simulation::LoadScenario(output).accessPoints.size(), 3u);
    EXPECT_EQ(FileCount(), 3u);
}

TEST_F(ImportCommand, RecognisesFilesByTheirContent)
{
    const Outcome named = Import({"--networks", networks, "--interfaces", interfaces, "--profiles",
                                  DataPath("home/profiles"), "-o", PathFor("named.json")});
    const Outcome plain = Import({DataPath("home/profiles"), interfaces, networks, "-o", output});
    EXPECT_EQ(named.exitCode, 0) << named.err;
    EXPECT_EQ(plain.exitCode, 0) << plain.err;
    EXPECT_EQ(Content(PathFor("named.json")), Content(output));
    EXPECT_EQ(simulation::LoadScenario(output).adapters.at(0).profiles.size(), 4u);

    const std::string profile = FileWith("Juniper.xml", kProfile);
    EXPECT_EQ(Import({profile, "-o", output}).exitCode, 0);
    EXPECT_EQ(simulation::LoadScenario(output).adapters.at(0).profiles.at(0).xml, kProfile);
}

TEST_F(ImportCommand, PrintsTheSummaryAsJson)
{
    const Outcome outcome =
        Import({"--networks", DataPath("home/networks.txt"), "--with-profiles", "-o", output, "--json"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    const nlohmann::json summary = nlohmann::json::parse(outcome.out);
    EXPECT_EQ(summary.at("adapters"), 1);
    EXPECT_EQ(summary.at("accessPoints"), 11);
    EXPECT_EQ(summary.at("networks"), 7);
    EXPECT_EQ(summary.at("hidden"), 2);
    EXPECT_EQ(summary.at("profiles"), 6);
    EXPECT_EQ(summary.at("output"), output);
    EXPECT_TRUE(summary.at("warnings").empty());
}

TEST_F(ImportCommand, GuessesAndTheUsersWordsAreReported)
{
    const std::string languages = DataPath("languages/");
    const Outcome guessed =
        Import({languages + "german/networks-oem.txt", languages + "polish/interfaces.txt", "-o", output});
    EXPECT_EQ(guessed.exitCode, 0) << guessed.err;
    EXPECT_THAT(guessed.err, HasSubstr("warning: "));
    EXPECT_THAT(guessed.err, HasSubstr("read as code page 850"));
    EXPECT_EQ(simulation::LoadScenario(output).accessPoints.size(), 6u);
    EXPECT_TRUE(simulation::LoadScenario(output).adapters.at(0).connection);

    std::string text = Content(languages + "polish/networks.txt");
    text = Replaced(text, "WPA2-Osobiste", "WPA2-Tajne");
    const std::string foreign = FileWith("foreign.txt", text);
    EXPECT_THAT(Import({foreign, "-o", output}).err, HasSubstr(foreign + ":7: ")) << "the network is left out";
    const Outcome explained = Import({foreign, "--word", "wpa2 - tajne=WPA2PSK", "--code-page", "852", "-o", output});
    EXPECT_EQ(explained.exitCode, 0) << explained.err;
}

TEST_F(ImportCommand, AnEarlierScenarioSurvivesADamagedCapture)
{
    FileWith("out.json", "an earlier scenario");
    const std::string damaged = FileWith("damaged.txt", kNetworks.substr(0, kNetworks.find("    BSSID 1")));
    EXPECT_EQ(Import({damaged, "-o", output}).exitCode, 2);
    EXPECT_EQ(Content(output), "an earlier scenario");
    EXPECT_EQ(Import({networks, "-o", output}).exitCode, 0);
    EXPECT_EQ(simulation::LoadScenario(output).accessPoints.size(), 3u);
}

TEST_F(ImportCommand, AFileThatCannotBeWrittenIsReportedAndLeavesNothing)
{
    const Outcome outcome = Import({networks, "-o", PathFor("absent/out.json")});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_THAT(outcome.err, HasSubstr("absent/out.json: cannot be written"));
    const std::string taken = PathFor("taken");
    std::filesystem::create_directories(std::filesystem::path(taken) / "by a folder");
    EXPECT_EQ(Import({networks, "-o", taken}).exitCode, 2);
    EXPECT_EQ(FileCount(), 3u);
}

} // namespace calvix::test::import_command_test
