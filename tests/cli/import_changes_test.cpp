#include "import/capture_encoding.h"
#include "import_samples.h"
#include "simulation/narrow_encoding.h"

#include <map>
#include <sstream>

namespace calvix::host::test::import_changes_test
{

namespace
{

/// One change of changes.txt, which says what the lines mean.
struct Change
{
    std::size_t number = 0; ///< of its first line
    std::string sample;
    std::map<char, std::vector<std::string>> lines; ///< by the character that they begin with
};

std::vector<Change> ReadChanges()
{
    std::vector<Change> changes;
    std::string sample;
    std::size_t number = 0;
    bool begins = true;
    std::istringstream stream(Sample("changes.txt"));
    for (std::string line; std::getline(stream, line);)
    {
        ++number;
        const char kind = line.empty() ? '#' : line.front();
        if (kind == '>')
            sample = line.substr(1);
        else if (kind != '#' && begins)
            changes.push_back({number, sample, {}});
        begins = kind == '#' || kind == '>';
        if (!begins)
            changes.back().lines[kind].push_back(AllReplaced(AllReplaced(line.substr(1), "\\n", "\n"), "\\t", "\t"));
    }
    return changes;
}

struct Imported
{
    std::vector<std::string> told;          ///< all warnings, and the refusal
    std::map<std::string, std::string> air; ///< by address
};

Imported ImportText(const std::string& bytes, const CaptureHints& hints = {})
{
    Imported imported;
    const std::string refusal = Complaint(
        [&]
        {
            const MadeScenario made = Import(bytes, hints);
            imported.told = made.warnings;
            for (const simulation::AccessPoint& each : made.scenario.accessPoints)
                imported.air[forms::AddressText(each.bssid)] = Summary(each);
        });
    if (!refusal.empty())
        imported.told.push_back(refusal);
    return imported;
}

std::vector<std::string> Told(const std::string& bytes, const CaptureHints& hints = {})
{
    return ImportText(bytes, hints).told;
}

} // namespace

TEST(ImportChanges, AreReportedAndCostNothingElse)
{
    const std::vector<Change> changes = ReadChanges();
    EXPECT_GT(changes.size(), 100u);
    for (Change change : changes)
    {
        SCOPED_TRACE("changes.txt:" + std::to_string(change.number));
        std::string text = AllReplaced(Sample(change.sample), "\r", "");
        Imported expected = ImportText(text);
        ASSERT_EQ(change.lines['-'].size(), change.lines['+'].size());
        for (std::size_t i = 0; i < change.lines['-'].size(); ++i)
            text = Replaced(text, change.lines['-'][i], change.lines['+'][i]);
        ASSERT_FALSE(change.lines['='].empty());
        for (const std::string& line : change.lines['='])
            if (line.starts_with('-'))
                EXPECT_EQ(expected.air.erase(line.substr(1)), 1u) << line;
            else if (!line.empty())
                expected.air[line.substr(0, line.find(' '))] = line;
        for (const std::string& bytes : {text, WithCarriageReturns(text)})
        {
            const Imported imported = ImportText(bytes);
            EXPECT_EQ(imported.air, expected.air);
            if (change.lines['!'].empty())
                EXPECT_EQ(imported.told, expected.told);
            for (const std::string& beginning : change.lines['!'])
                EXPECT_TRUE(Warns(imported.told, beginning)) << ::testing::PrintToString(imported.told);
        }
    }
}

TEST(ImportChanges, StructureIsEnoughForAnUnknownLanguage)
{
    std::string networks = Sample("languages/polish/networks.txt");
    for (const auto& [from, to] :
         {std::pair("Otwarte", "Xomo"), std::pair("Brak", "Qili"), std::pair("Typ sieci", "Zuzu"),
          std::pair("Uwierzytelnianie", "Vava"), std::pair("Szyfrowanie", "Wewe"), std::pair("Typ radia", "Yoyo"),
          std::pair("Nazwa interfejsu", "Lala"), std::pair("WPA2-Osobiste", "WPA2-Mimi"),
          std::pair("Infrastruktura", "Tutu")})
        networks = AllReplaced(networks, from, to);
    CaptureHints hints;
    hints.words = {{"WPA2-mimi", "WPA2PSK"}, {"Tutu", "infrastructure"}, {"WPA3-Osobiste", "WPA3SAE"}};
    // Ciphers are never translated, so that what authenticates without any is open; with WEP it may be shared as well.
    EXPECT_EQ(
        Told(networks, hints),
        std::vector<std::string>{"file:57: \"Vava\" is \"Xomo\", which is not a known authentication (Open, "
                                 "WPA2-Personal, WPA3-Enterprise, OWE ...); the network \"old-printer\" is left out"});
    hints.words.emplace_back("xomo", "open");
    EXPECT_EQ(Told(networks, hints), std::vector<std::string>());
    EXPECT_EQ(ImportText(networks, hints).air, ImportText(Sample("languages/polish/networks.txt"), hints).air);
    EXPECT_NE(Told(AllReplaced(networks, "WPA2-Mimi", "WPA2-Momo"), hints), std::vector<std::string>());
}

/// Wherever a capture is cut, something is reported. Only the very last value can lose digits.
TEST(ImportChanges, NoCutGoesUnnoticed)
{
    const std::string korean = Sample("languages/korean/networks.txt");
    for (const auto& [text, step] : {std::pair(kNetworks, 1u), std::pair(korean, 7u)})
        for (std::size_t length = 0; length < text.rfind(": 11") + 3; length += step)
            EXPECT_FALSE(Told(text.substr(0, length)).empty()) << length << " of\n" << text;
}

TEST(ImportChanges, AnythingElseIsRefused)
{
    using namespace std::string_literals;
    const std::string notOutput = "file:1: this is not output of ";
    const std::string captureNmcli = ": capture with \"nmcli -t -f IN-USE,BSSID";
    const std::pair<std::string, std::string> cases[] = {
        {"", notOutput},
        {"\r\n \r\n", notOutput},
        {"Dear reader,\nall is well: you see.\n", notOutput},
        {"\xFF\xFE", notOutput},
        {"\0\0\0\0"s, notOutput},
        {"{ \"a\": [1, 2, 3] }", notOutput},
        {"Drahtlosnetzwerk: keine Schnittstelle\n", notOutput},
        {"Commands need the permission.\nms-settings:privacy-location\n",
         "file:2: Windows refused the list: switch location services on"},
        {"The service (wlansvc) is not running.\n", "file:1: the WLAN service was not running: start it"},
        {"<?xml version=\"1.0\"?>\n<LANProfile xmlns=\"x\"></LANProfile>\n", "file:2: this is a profile of a wired"},
        {"IN-USE  SSID     MODE   CHAN  RATE        SIGNAL  BARS  SECURITY\n"
         "*       Juniper  Infra  6     130 Mbit/s  82      ____  WPA2\n",
         "file:1: this list has no addresses" + captureNmcli},
        {"02\\:61\\:00\\:00\\:00\\:01:Juniper:2437 MHz:82\n",
         "file:1: the columns of this list are not known" + captureNmcli},
        {"BSSID              SSID     CHAN  SIGNAL\n02:61:00:00:00:01  Juniper  6     82\n",
         "file:2: this list has no column SECURITY" + captureNmcli},
        {"BSSID              SSID     SIGNAL  SECURITY\n02:61:00:00:00:01  Juniper  6     WPA2\n",
         "file:2: this list has neither channels nor frequencies" + captureNmcli},
    };
    for (const auto& [text, refusal] : cases)
    {
        const std::vector<std::string> told = Told(text);
        ASSERT_EQ(told.size(), 1u) << text;
        EXPECT_EQ(told[0].substr(0, refusal.size()), refusal);
    }
}

TEST(ImportChanges, AWrongCodePageIsReported)
{
    EXPECT_EQ(Told("a", {12345, {}}), std::vector<std::string>{"file: this computer cannot read code page 12345"});
    const std::vector<std::string> notUtf8 = Told(Sample("languages/german/networks-oem.txt"), {65001, {}});
    ASSERT_EQ(notUtf8.size(), 1u);
    EXPECT_TRUE(Warns(notUtf8, "file:8: this is not UTF-8"));
    if (!simulation::HasNarrowEncoding(949))
        GTEST_SKIP() << "this computer has no converter for code page 949";
    const std::vector<std::string> told = Told(Replaced(kNetworks, "Juniper", "a\xB0"), {949, {}});
    EXPECT_TRUE(Warns(told, "file:5: code page 949 has no characters for some bytes"));
}

TEST(ImportChanges, OnlyMisreadTextLooksMisread)
{
    EXPECT_EQ(MisreadUtf8("Caf\xC3\x83\xC2\xA9"), "Caf\xC3\xA9");
    for (const char* text : {"Cafe", "Caf\xC3\xA9",
                             "B\xC3\xA4"
                             "ckerei S\xC3\xBC\xC3\x9F",
                             "\xE6\xB8\xAF\xE3\x81\xAE", ""})
        EXPECT_FALSE(MisreadUtf8(text)) << text;
}

} // namespace calvix::host::test::import_changes_test
