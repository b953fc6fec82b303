#include "import_samples.h"
#include "program/program.h"
#include "simulation/scenario.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

namespace calvix::host::test::import_command_test
{

namespace
{

struct Outcome
{
    int exitCode;
    std::string out;
    std::string err;
};

Outcome Import(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "import");
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    const int exitCode = Run(arguments, in, out, err, TerminalTraits{});
    return {exitCode, out.str(), err.str()};
}

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

class ImportCommand : public ::testing::Test
{
protected:
    TemporaryFolder folder;
    std::string networks = folder.Write("networks.txt", WithCarriageReturns(kNetworks));
    std::string interfaces = folder.Write("interfaces.txt", WithCarriageReturns(kInterfaces));
    std::string output = folder / "out.json";
};

} // namespace

TEST_F(ImportCommand, WritesAScenarioAndSaysWhatItHolds)
{
    const Outcome outcome = Import({"--networks", networks, "--interfaces", interfaces, "-o", output});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_TRUE(Contains(outcome.out, "Adapters       2\n")) << outcome.out;
    EXPECT_TRUE(Contains(outcome.out, "Access points  3 (0 hidden)\nNetworks       2\n")) << outcome.out;
    EXPECT_TRUE(Contains(outcome.out, "Profiles       1\n")) << outcome.out;
    EXPECT_TRUE(Contains(outcome.out, output)) << outcome.out;
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(simulation::LoadScenario(output).accessPoints.size(), 3u);
    EXPECT_EQ(folder.FileCount(), 3u);
}

TEST_F(ImportCommand, RecognisesFilesByTheirContent)
{
    const Outcome named = Import({"--networks", networks, "--interfaces", interfaces, "--profiles",
                                  DataPath("home/profiles"), "-o", folder / "named.json"});
    const Outcome plain = Import({DataPath("home/profiles"), interfaces, networks, "-o", output});
    EXPECT_EQ(named.exitCode, 0) << named.err;
    EXPECT_EQ(plain.exitCode, 0) << plain.err;
    EXPECT_EQ(ReadWholeFile(folder / "named.json"), ReadWholeFile(output));
    EXPECT_EQ(simulation::LoadScenario(output).adapters.at(0).profiles.size(), 4u);

    const std::string profile = folder.Write("Juniper.xml", kProfile);
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

TEST_F(ImportCommand, WritesToStandardOutput)
{
    const Outcome outcome = Import({networks, "-o", "-"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(simulation::ParseScenario(outcome.out, "standard output").accessPoints.size(), 3u);
    EXPECT_TRUE(Contains(outcome.err, "Access points  3 (0 hidden)")) << outcome.err;
    EXPECT_EQ(folder.FileCount(), 2u);
}

TEST_F(ImportCommand, SaysWhatItHadToLeaveOut)
{
    const std::string elsewhere =
        folder.Write("elsewhere.txt", Replaced(kNetworks, "02:00:00:00:00:01", "02:00:00:00:00:09"));
    const Outcome outcome = Import({elsewhere, interfaces, "-o", output});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.err, "warning: the connection of \"Wi-Fi\" to \"Juniper\" is left out: the captured networks do "
                           "not list its access point\n");
    EXPECT_EQ(simulation::LoadScenario(output).accessPoints.size(), 3u);
}

TEST_F(ImportCommand, ACaptureOfAnotherEncodingIsRead)
{
    std::string bytes = "\xFF\xFE";
    for (const char letter : WithCarriageReturns(kNetworks))
        bytes += {letter, '\0'};
    const Outcome outcome = Import({folder.Write("redirected.txt", bytes), "-o", output});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_EQ(simulation::LoadScenario(output).accessPoints.size(), 3u);
}

TEST_F(ImportCommand, GuessesAndTheUsersWordsAreReported)
{
    const std::string languages = DataPath("languages/");
    const Outcome guessed =
        Import({languages + "german/networks-oem.txt", languages + "polish/interfaces.txt", "-o", output});
    EXPECT_EQ(guessed.exitCode, 0) << guessed.err;
    EXPECT_TRUE(Contains(guessed.err, "warning: ")) << guessed.err;
    EXPECT_TRUE(Contains(guessed.err, "read as code page 850")) << guessed.err;
    EXPECT_EQ(simulation::LoadScenario(output).accessPoints.size(), 6u);
    EXPECT_TRUE(simulation::LoadScenario(output).adapters.at(0).connection);

    std::string text = ReadWholeFile(languages + "polish/networks.txt");
    text = Replaced(text, "WPA2-Osobiste", "WPA2-Tajne");
    const std::string foreign = folder.Write("foreign.txt", text);
    EXPECT_TRUE(Contains(Import({foreign, "-o", output}).err, foreign + ":7: ")) << "the network is left out";
    const Outcome explained = Import({foreign, "--word", "wpa2 - tajne=WPA2PSK", "--code-page", "852", "-o", output});
    EXPECT_EQ(explained.exitCode, 0) << explained.err;
}

TEST_F(ImportCommand, ListsOfTheLinuxToolsAreRead)
{
    const std::string linuxFolder = DataPath("linux/");
    for (const char* file : {"iw-scan.txt", "nmcli-terse.txt", "nmcli-table.txt"})
    {
        for (const bool named : {false, true})
        {
            std::vector<std::string> arguments{linuxFolder + file, "-o", output};
            if (named)
                arguments.insert(arguments.begin(), "--networks");
            const Outcome outcome = Import(arguments);
            EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
            EXPECT_TRUE(Contains(outcome.out, "Access points  6 (")) << outcome.out;
            EXPECT_TRUE(simulation::LoadScenario(output).adapters.at(0).connection) << file;
        }
    }
}

TEST_F(ImportCommand, TheHelpHasExamples)
{
    const Outcome outcome = Import({"--help"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(Contains(outcome.out, "sudo iw dev wlan0 scan > networks.txt")) << outcome.out;
    EXPECT_TRUE(Contains(outcome.out, "Exit codes:")) << outcome.out;
}

TEST_F(ImportCommand, NothingToUseEndsItWithCodeTwoAndNothingWritten)
{
    const std::string damaged = folder.Write("damaged.txt", kNetworks.substr(0, kNetworks.find("    BSSID 1")));
    const std::string other = folder.Write("other.txt", "Dear reader,\nall is well.\n");
    const std::string narrow = folder.Write("narrow.txt", Replaced(kNetworks, "Juniper", "Caf\xE9"));
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{damaged}, damaged + ":5: no network has a BSSID"},
        {{other}, other + ":1: this is not output of"},
        {{narrow, "--code-page", "65001"}, narrow + ":5: this is not UTF-8"},
        {{networks, "--code-page", "12345"}, networks + ": this computer cannot read code page 12345"},
        {{networks, "--word", "Offen"}, "\"Offen\" is not WORD=MEANING"},
        {{networks, "--word", "Offen=offen"}, "\"Offen=offen\" is not WORD=MEANING"},
        {{networks, networks}, networks + ": this is a second list of networks"},
        {{interfaces, "--interfaces", interfaces}, interfaces + ": this is a second list of interfaces"},
        {{folder / "absent.txt"}, (folder / "absent.txt") + ": cannot be read"},
        {{folder.path()}, folder.path() + ": this folder has no profile"},
        {{"--profiles", networks}, networks + ": this folder cannot be read"},
        {{}, "nothing to import"},
    };
    const std::size_t before = folder.FileCount();
    for (const auto& [arguments, complaint] : cases)
    {
        std::vector<std::string> all = arguments;
        all.insert(all.end(), {"-o", output});
        const Outcome outcome = Import(all);
        EXPECT_EQ(outcome.exitCode, 2) << complaint;
        EXPECT_TRUE(Contains(outcome.err, complaint)) << complaint << " expected, but: " << outcome.err;
        EXPECT_EQ(outcome.out, "") << complaint;
        EXPECT_EQ(folder.FileCount(), before) << complaint;
    }
}

TEST_F(ImportCommand, AnEarlierScenarioSurvivesADamagedCapture)
{
    folder.Write("out.json", "an earlier scenario");
    const std::string damaged = folder.Write("damaged.txt", kNetworks.substr(0, kNetworks.find("    BSSID 1")));
    EXPECT_EQ(Import({damaged, "-o", output}).exitCode, 2);
    EXPECT_EQ(ReadWholeFile(output), "an earlier scenario");
    EXPECT_EQ(Import({networks, "-o", output}).exitCode, 0);
    EXPECT_EQ(simulation::LoadScenario(output).accessPoints.size(), 3u);
}

TEST_F(ImportCommand, AFileThatCannotBeWrittenIsReportedAndLeavesNothing)
{
    const Outcome outcome = Import({networks, "-o", folder / "absent/out.json"});
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_TRUE(Contains(outcome.err, "absent/out.json: cannot be written")) << outcome.err;
    const std::string taken = folder / "taken";
    std::filesystem::create_directories(std::filesystem::path(taken) / "by a folder");
    EXPECT_EQ(Import({networks, "-o", taken}).exitCode, 2);
    EXPECT_EQ(folder.FileCount(), 3u);
}

TEST_F(ImportCommand, TheOutputMustBeNamed)
{
    EXPECT_EQ(Import({networks}).exitCode, 2);
}

} // namespace calvix::host::test::import_command_test
