#include "import/capture_encoding.h"
#include "import_samples.h"
#include "simulation/narrow_encoding.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_reports_test
{

namespace
{

std::string Sample(const std::string& name)
{
    return ReadWholeFile(DataPath("languages/" + name));
}

std::string AllReplaced(std::string text, const std::string& from, const std::string& to)
{
    EXPECT_NE(text.find(from), std::string::npos) << from;
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
    return text;
}

/// All warnings about a capture, and its refusal.
std::vector<std::string> Told(const std::string& bytes, const CaptureHints& hints = {})
{
    std::vector<std::string> told;
    const std::string complaint = Complaint([&] { told = Import(bytes, hints).warnings; });
    if (!complaint.empty())
        told.push_back(complaint);
    return told;
}

struct Change
{
    const char* sample;
    const char* from;
    const char* to;
    std::vector<std::string> told;
};

} // namespace

TEST(ImportReports, EveryUnknownLineIsReportedWithItsConsequence)
{
    const Change changes[] = {
        {"polish/networks.txt",
         "WPA2-Osobiste",
         "WPA2-Tajne",
         {"file:7: \"Uwierzytelnianie\" is \"WPA2-Tajne\", which is not a known authentication (Open, WPA2-Personal, "
          "WPA3-Enterprise, OWE ...); the network \"Linden Court\" is left out"}},
        {"polish/networks.txt",
         "WPA2-Osobiste",
         "Tajemne",
         {"file:7: \"Uwierzytelnianie\" is \"Tajemne\", which is not a known authentication (Open, WPA2-Personal, "
          "WPA3-Enterprise, OWE ...); the network \"Linden Court\" is left out"}},
        {"polish/interfaces.txt",
         "5c0de000-0001",
         "XXXXXXXX-0001",
         {"file:6: \"Identyfikator GUID\" is masked (\"XXXXXXXX-0001-4abc-8def-0123456789ab\"): replace it with "
          "other digits, the same ones for the same device; the adapter gets an invented one"}},
        {"polish/networks.txt",
         "CCMP",
         "XOR-8",
         {"file:8: \"Szyfrowanie\" is \"XOR-8\", which is not a known encryption (None, WEP, TKIP, CCMP, GCMP ...); "
          "the "
          "network \"Linden Court\" is left out"}},
        {"polish/networks.txt",
         "Infrastruktura",
         "Kratownica",
         {"file:6: \"Typ sieci\" is \"Kratownica\", which is not a known network type (Infrastructure or Adhoc); "
          "infrastructure is assumed"}},
        {"polish/networks.txt",
         "802.11n\r\n",
         "802.11n\r\n         Nastr\xC3\xB3j : dobry\r\n",
         {"file:12: \"Nastr\xC3\xB3j : dobry\" is not understood and left out"}},
        {"polish/networks.txt",
         "SSID 2 : L",
         "bez sensu\r\nSSID 2 : L",
         {"file:22: \"bez sensu\" is not understood and left out"}},
        {"english/networks.txt",
         "Signal             : 92%",
         "Mood : good\r\nSignal : 92%",
         {"file:10: \"Mood : good\" is not understood and left out"}},
        {"polish/interfaces.txt",
         "WPA2-Osobiste",
         "WPA2-Tajne",
         {"file:13: \"Uwierzytelnianie\" is \"WPA2-Tajne\", which is not a known authentication (Open, WPA2-Personal, "
          "WPA3-Enterprise, OWE ...); the connection of \"Wi-Fi\" is left out"}},
        {"polish/interfaces.txt",
         "Po\xC5\x82\xC4\x85"
         "cz automatycznie",
         "Nie wiem",
         {"file:15: \"Tryb po\xC5\x82\xC4\x85"
          "czenia\" is \"Nie wiem\", which is not understood; the connection is assumed to be one that the "
          "user requested"}},
        {"polish/interfaces.txt",
         "Oprogramowanie Wy\xC5\x82\xC4\x85"
         "czone",
         "Oprogramowanie ?",
         {"file:28: \"Oprogramowanie ?\" is not understood; it is assumed to be on"}},
        {"polish/networks.txt",
         "Linden Guests",
         "Caf\xC3\x83\xC2\xA9",
         {"file:22: the SSID \"Caf\xC3\x83\xC2\xA9\" looks like \"Caf\xC3\xA9\", read in the wrong code page; it is "
          "kept as "
          "it is"}},
        {"polish/networks.txt",
         "Linden Guests",
         "Caf\xEF\xBF\xBD",
         {"file:22: the SSID \"Caf\xEF\xBF\xBD\" has lost characters; it is kept as it is"}},
        {"polish/networks.txt",
         "92%",
         "92",
         {"file:9: the access point 02:51:00:00:00:01 has no \"Signal\"; the access point is "
          "left out"}},
        {"polish/networks.txt",
         ": 5.",
         ": 6.",
         {"file:3: this announces 6 networks, but only 5 follow: the capture is cut off"}},
        {"polish/interfaces.txt",
         ": 2 \r\n",
         ": 3 \r\n",
         {"file:2: this announces 3 interfaces, but only 2 follow: the capture is cut off"}},
    };
    for (const Change& change : changes)
    {
        std::vector<std::string> told = Told(Replaced(Sample(change.sample), change.from, change.to));
        // Where the network with no name or another one is named too, only the first matters here.
        told.resize(std::min(told.size(), change.told.size()));
        EXPECT_EQ(told, change.told) << change.to;
    }
}

TEST(ImportReports, StructureIsEnoughForAnUnknownLanguage)
{
    std::string networks = Sample("polish/networks.txt");
    for (const auto& [from, to] :
         {std::pair("Otwarte", "Xomo"), std::pair("Brak", "Qili"), std::pair("Typ sieci", "Zuzu"),
          std::pair("Uwierzytelnianie", "Vava"), std::pair("Szyfrowanie", "Wewe"), std::pair("Typ radia", "Yoyo"),
          std::pair("Nazwa interfejsu", "Lala"), std::pair("WPA2-Osobiste", "WPA2-Mimi"),
          std::pair("Infrastruktura", "Tutu")})
        networks = AllReplaced(networks, from, to);
    CaptureHints hints;
    hints.words = {{"WPA2-mimi", "WPA2PSK"}, {"Tutu", "infrastructure"}, {"WPA3-Osobiste", "WPA3SAE"}};
    // Ciphers are never translated, so that what authenticates without any is open; with WEP it may be shared as well.
    EXPECT_EQ(Told(networks, hints),
              std::vector<std::string>{"file:57: \"Vava\" is \"Xomo\", which is not a known authentication (Open, "
                                       "WPA2-Personal, WPA3-Enterprise, OWE ...); the network \"old-printer\" is left "
                                       "out"});
    hints.words.emplace_back("xomo", "open");
    EXPECT_EQ(Told(networks, hints), std::vector<std::string>());
    EXPECT_EQ(Import(networks, hints).scenario, Import(Sample("polish/networks.txt"), hints).scenario);
    EXPECT_NE(Told(AllReplaced(networks, "WPA2-Mimi", "WPA2-Momo"), hints), std::vector<std::string>());
}

TEST(ImportReports, CapturesOfTwoLanguagesGoTogether)
{
    Captures captures;
    ReadCapture(Sample("japanese/networks.txt"), "n", {}, captures);
    ReadCapture(Sample("russian/interfaces.txt"), "i", {}, captures);
    const MadeScenario imported = AssembleScenario(captures, false);
    EXPECT_TRUE(imported.scenario.adapters.at(0).connection);
    EXPECT_EQ(imported.warnings, std::vector<std::string>());
    const std::vector<std::string> both = Told(Sample("german/networks.txt") + Sample("french/networks.txt"));
    EXPECT_FALSE(both.empty());
}

/// Wherever a capture is cut, something is reported; only the very last values can lose digits.
TEST(ImportReports, NoCutOfAForeignCaptureGoesUnnoticed)
{
    const std::string networks = Sample("korean/networks.txt");
    const std::size_t lastChannel = networks.rfind(": 11 ") + 3;
    for (std::size_t length = 0; length < lastChannel; length += 7)
        EXPECT_FALSE(Told(networks.substr(0, length)).empty()) << length;
}

TEST(ImportReports, AnythingElseIsRefused)
{
    using namespace std::string_literals;
    for (const std::string& text : {""s, "\r\n \r\n"s, "Dear reader,\nall is well: you see.\n"s, "\xFF\xFE"s,
                                    "\0\0\0\0"s, "{ \"a\": [1, 2, 3] }"s, "Drahtlosnetzwerk: keine Schnittstelle\n"s})
    {
        const std::vector<std::string> told = Told(text);
        ASSERT_EQ(told.size(), 1u) << text;
        EXPECT_EQ(told[0].find("file:1: this is not output of "), 0u) << told[0];
    }
}

TEST(ImportReports, AWrongCodePageIsReported)
{
    CaptureHints hints;
    hints.codePage = 12345;
    EXPECT_EQ(Told("a", hints), std::vector<std::string>{"file: this computer cannot read code page 12345"});
    hints.codePage = 65001;
    const std::vector<std::string> notUtf8 = Told(Sample("german/networks-oem.txt"), hints);
    ASSERT_EQ(notUtf8.size(), 1u);
    EXPECT_EQ(notUtf8[0].find("file:8: this is not UTF-8"), 0u) << notUtf8[0];
    if (!simulation::HasNarrowEncoding(949))
        GTEST_SKIP() << "this computer has no converter for code page 949";
    hints.codePage = 949;
    const std::vector<std::string> told = Told(Replaced(kNetworks, "Juniper", "a\xB0"), hints);
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told[0].find("file:5: code page 949 has no characters for some bytes"), 0u) << told[0];
}

TEST(ImportReports, OnlyMisreadTextLooksMisread)
{
    EXPECT_EQ(MisreadUtf8("Caf\xC3\x83\xC2\xA9"), "Caf\xC3\xA9");
    for (const char* text : {"Cafe", "Caf\xC3\xA9",
                             "B\xC3\xA4"
                             "ckerei S\xC3\xBC\xC3\x9F",
                             "\xE6\xB8\xAF\xE3\x81\xAE", ""})
        EXPECT_FALSE(MisreadUtf8(text)) << text;
}

} // namespace calvix::host::test::import_reports_test
