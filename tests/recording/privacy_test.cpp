// What a recording keeps to itself.

#include "cli/cli_test.h"
#include "wrappers/recording/key_mask.h"

#include <nlohmann/json.hpp>

#include <regex>
#include <set>

namespace calvix::test::recording_privacy_test
{
namespace
{

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* kKey = "correct horse battery";

std::string ProfileXml(const std::string& name, const std::string& key)
{
    return R"(<?xml version="1.0"?><WLANProfile xmlns="http://www.microsoft.com/networking/WLAN/profile/v1"><name>)" +
           name + "</name><SSIDConfig><SSID><name>" + name +
           R"(</name></SSID></SSIDConfig><connectionType>ESS</connectionType><connectionMode>manual</connectionMode>)"
           R"(<MSM><security><authEncryption><authentication>WPA2PSK</authentication><encryption>AES</encryption>)"
           R"(<useOneX>false</useOneX></authEncryption><sharedKey><keyType>passPhrase</keyType>)"
           R"(<protected>false</protected><keyMaterial>)" +
           key + "</keyMaterial></sharedKey></security></MSM></WLANProfile>";
}

/// Names and addresses of RichScenario, in any form in which they could have come through.
const std::vector<std::string> kTellingWords = {
    "HomeNet",  "OfficeNet", "HiddenNet",      "AdHocNet",       "GoneNet",           "CafeNet",  "Wireless Adapter",
    "A0000001", "a0000001",  "B0000002",       "02:11:00",       "02:22:00",          "02:33:00", "02:55:00",
    "02-11-00", "02110000",  "486F6D654E6574", "486f6d654e6574", "4F66666963654E6574"};

void ExpectNothingTelling(const std::string& recording)
{
    for (const std::string& word : kTellingWords)
        EXPECT_THAT(recording, Not(HasSubstr(word)));
}

class RecordingPrivacy : public CliTest
{
protected:
    std::string File() const { return PathFor("session.jsonl"); }

    /// Records a command anonymised; nothing of the names is in the recording.
    Outcome RecordWithoutNames(std::vector<std::string> command)
    {
        command.insert(command.end(), {"--record", File(), "--anonymise"});
        const Outcome outcome = RunOn(RichScenario(), command);
        const std::string content = Content(File());
        SCOPED_TRACE(::testing::PrintToString(command) + "\n" + content);
        EXPECT_THAT(content, AllOf(HasSubstr("\"anonymised\":true"), HasSubstr("\"end\":")));
        ExpectNothingTelling(content);
        return outcome;
    }
};

TEST_F(RecordingPrivacy, MasksTheKeyOfAStoredProfile)
{
    const std::string profile = FileWith("profile.xml", ProfileXml("HomeNet5G", kKey));
    const Outcome stored = RunOn(RichScenario(), {"profiles", "add", profile, "--record", File()});
    ASSERT_EQ(kSuccess, stored.exitCode) << stored.err;
    EXPECT_THAT(Content(File()), HasSubstr("<keyMaterial>********</keyMaterial>"));
    EXPECT_THAT(Content(File()), Not(HasSubstr(kKey)));
    EXPECT_EQ(stored.out, Run({"profiles", "add", profile, "--replay", File()}).out) << "with the key in the profile";
}

TEST_F(RecordingPrivacy, MasksKeysThatTheServiceReturns)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[0].profiles[0].xml = ProfileXml("HomeNet", kKey);
    const Outcome shown = RunOn(scenario, {"profiles", "show", "HomeNet", "--show-key", "--record", File()});
    ASSERT_EQ(kSuccess, shown.exitCode) << shown.err;
    ASSERT_THAT(shown.out, HasSubstr(kKey));
    EXPECT_THAT(Content(File()), Not(HasSubstr(kKey)));
}

TEST_F(RecordingPrivacy, MasksAKeyInEveryForm)
{
    using recording::KeyMask;
    for (const auto& [text, masked] : std::vector<std::pair<std::string, std::string>>{
             {"<keyMaterial>abc</keyMaterial>", "<keyMaterial>********</keyMaterial>"},
             {"<w:keyMaterial a='b'>abc</w:keyMaterial >", "<w:keyMaterial a='b'>********</w:keyMaterial >"},
             {"<KEYMATERIAL\n>abc</KEYMATERIAL>", "<KEYMATERIAL\n>********</KEYMATERIAL>"},
             {"<keyMaterial><![CDATA[a</b>c]]></keyMaterial>", "<keyMaterial>********</keyMaterial>"},
             {"<keyMaterial>abc", "<keyMaterial>********"},
             {"<keyMaterial>a</keyMaterial><keyMaterial>b</keyMaterial>",
              "<keyMaterial>********</keyMaterial><keyMaterial>********</keyMaterial>"},
             {"<keyMaterial/><x>abc</x>", "<keyMaterial/><x>abc</x>"},
             {"no keyMaterial here", "no keyMaterial here"}})
        EXPECT_EQ(masked, KeyMask().InText(text));
}

TEST_F(RecordingPrivacy, MasksAKeyThatComesUpAgain)
{
    recording::KeyMask mask;
    mask.InText("<keyMaterial>Tom &amp; Jerry</keyMaterial>");
    EXPECT_EQ("set key=******** now", mask.InText("set key=Tom & Jerry now"));
    EXPECT_EQ("<a>********</a>", mask.InText("<a>Tom &amp; Jerry</a>"));
    EXPECT_EQ(std::string("\0***********\0", 13), mask.InBytes(std::string("\0Tom & Jerry\0", 13)));
}

TEST_F(RecordingPrivacy, LeavesNothingOfTheNamesThatACommandHas)
{
    for (const std::vector<std::string>& command : {std::vector<std::string>{"profiles", "show", "OfficeNet"},
                                                    {"connect", "OfficeNet"},
                                                    {"match", "--profile", "OfficeNet"},
                                                    {"profiles", "delete", "HomeNett"},
                                                    {"watch", "--for", "3", "--trace"},
                                                    {"status", "--interface", "Wireless Adapter B"}})
        RecordWithoutNames(command);
}

TEST_F(RecordingPrivacy, ReplaysWithOtherNamesToTheSameTable)
{
    for (const std::vector<std::string>& command : {std::vector<std::string>{"networks"},
                                                    {"bss"},
                                                    {"status"},
                                                    {"list", "networks"},
                                                    {"list", "bss"},
                                                    {"match"},
                                                    {"adapters"},
                                                    {"best"},
                                                    {"profiles", "list"},
                                                    {"watch", "--for", "3"}})
    {
        const Outcome first = RecordWithoutNames(command);
        std::vector<std::string> replayed = command;
        replayed.insert(replayed.end(), {"--replay", File()});
        const Outcome second = Run(replayed);
        SCOPED_TRACE(::testing::PrintToString(command) + second.err);
        EXPECT_EQ(first.exitCode, second.exitCode);
        // Names keep their length, so what is left without their characters is the same.
        const std::regex word("[-A-Za-z0-9 ]");
        EXPECT_EQ(std::regex_replace(first.out, word, "x"), std::regex_replace(second.out, word, "x"));
        ExpectNothingTelling(second.out);
    }
}

TEST_F(RecordingPrivacy, ShowsTheCommandThatReplaysWithTheInventedNames)
{
    const Outcome first =
        RunOn(RichScenario(), {"connect", "OfficeNet", "--interface", "1", "--record", File(), "--anonymise"});
    const std::string text = "To replay it with the invented names: calvix connect ";
    ASSERT_EQ(text, first.err.substr(0, text.size()));
    const std::string name = first.err.substr(text.size(), std::string("OfficeNet").size());
    EXPECT_EQ(text + name + " --interface 1 --replay " + File() + "\n", first.err);
    EXPECT_EQ(kSuccess, Run({"connect", name, "--interface", "1", "--replay", File()}).exitCode);
    EXPECT_EQ("", RunOn(RichScenario(), {"connect", "OfficeNet", "--interface", "1", "--record", File()}).err);
}

TEST_F(RecordingPrivacy, GivesTheSameNameToTheSameNetwork)
{
    RunOn(RichScenario(), {"networks", "--json", "--record", File(), "--anonymise"});
    const auto networks = nlohmann::json::parse(Run({"networks", "--json", "--replay", File()}).out)["networks"];
    std::set<std::string> names;
    for (const auto& network : networks)
    {
        names.insert(network["ssid"].get<std::string>());
        const bool stored = network["profile"].is_string() && network["profile"] != "";
        EXPECT_TRUE(!stored || network["ssid"] == network["profile"]) << "profiles are named for their networks here";
    }
    EXPECT_EQ(networks.size(), names.size()) << "different networks stay different";
}

TEST_F(RecordingPrivacy, HidesNamesThatAreNoAscii)
{
    simulation::Scenario scenario = RichScenario();
    simulation::AccessPoint& first = scenario.accessPoints[0];
    first.ssid = {'C', 'a', 'f', 0xC3, 0xA9, ' ', '&', ' ', 'B', 'a', 'r'};
    scenario.accessPoints[1].ssid = {'C', 'a', 'f', 0xE9, 'x'};
    for (const char* const command : {"networks", "bss"})
    {
        const Outcome shown = RunOn(scenario, {command, "--record", File(), "--anonymise"});
        ASSERT_EQ(kSuccess, shown.exitCode) << shown.err;
        const std::string content = Content(File());
        for (const char* const telling : {"Caf", "436166"})
            EXPECT_THAT(content, Not(HasSubstr(telling)));
        EXPECT_EQ(kSuccess, Run({command, "--replay", File()}).exitCode);
    }
}

} // namespace
} // namespace calvix::test::recording_privacy_test
