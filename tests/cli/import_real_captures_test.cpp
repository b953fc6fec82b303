// What captures of real computers have beside the plain form, each in a sample of our own.
#include "import_samples.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_real_captures_test
{

namespace
{

using simulation::AccessPoint;
using simulation::Scenario;

/// What is in the air where nothing is to be warned of.
std::vector<AccessPoint> Air(const std::string& text)
{
    const MadeScenario imported = Import(text);
    EXPECT_EQ(imported.warnings, std::vector<std::string>());
    return imported.scenario.accessPoints;
}

std::string Refusal(const std::string& text)
{
    return Complaint([&] { Read(text); });
}

const std::string kIw = "BSS 02:00:00:00:00:01(on wlan0)\n\tfreq: 5180\n\tbeacon interval: 100 TUs\n"
                        "\tcapability: ESS Privacy (0x0011)\n\tsignal: -43.00 dBm\n\tSSID: Juniper\n"
                        "\tRSN:\t * Version: 1\n\t\t * Pairwise ciphers: CCMP\n\t\t * Authentication suites: PSK\n";

TEST(ImportRealCaptures, GermanSystemsPrintBssidd)
{
    EXPECT_EQ(Air(Replaced(kNetworks, "    BSSID 1", "    BSSIDD 1")), Air(kNetworks));
}

TEST(ImportRealCaptures, TheKeyExchangeIsInBrackets)
{
    EXPECT_EQ(Air(Replaced(kNetworks, "WPA2-Personal", "WPA3-Personal  (H2E)")).at(0).authentication, "WPA3SAE");
}

TEST(ImportRealCaptures, AccessPointsAtTheSamePlaceAreNotThose)
{
    const std::string networks = Replaced(kNetworks, "         Other rates",
                                          "         Colocated APs:    : 2\n"
                                          "            BSSID: 02:00:00:00:00:04,  Band: 6 GHz,  Channel: 69\n"
                                          "            BSSID: 02:00:00:00:00:05,  Band: 5 GHz,  Channel: 44\n"
                                          "         Other rates");
    EXPECT_EQ(Air(networks), Air(kNetworks));
    const std::string interfaces =
        Replaced(Replaced(kInterfaces, "    Band  ",
                          "         Colocated APs:    : 2\n"
                          "            BSSID: 02:00:00:00:00:04,  Band: 6 GHz,  Channel: 69\n"
                          "            BSSID: 02:00:00:00:00:05,  Band: 5 GHz,  Channel: 44\n    Band  "),
                 "    State                  : disconnected",
                 "    Interface type         : Secondary\n    Primary interface      : Wi-Fi\n"
                 "    State                  : disconnected");
    EXPECT_EQ(Air(interfaces), Air(kInterfaces));
}

TEST(ImportRealCaptures, TwoAccessPointsOfOneAddressStayApart)
{
    const MadeScenario imported = Import(Replaced(kNetworks, "02:00:00:00:00:03", "02:00:00:00:00:01"));
    ASSERT_EQ(imported.scenario.accessPoints.size(), 3u);
    const AccessPoint& other = imported.scenario.accessPoints[2];
    EXPECT_EQ(other.ssid, (simulation::Bytes{'O', 'p', 'e', 'n', ':', ' ', 'a', 'l', 'l', ' ', 'd', 'a', 'y'}));
    EXPECT_EQ(other.authentication, "open");
    EXPECT_EQ(other.frequencyKhz, 2462000u);
    EXPECT_EQ(other.rssi, -80);
    EXPECT_EQ(other.bssid, (simulation::MacAddress{2, 0, 0, 0, 0, 3})) << "the next that is free";
    EXPECT_EQ(imported.warnings, std::vector<std::string>{
                                     "the access point 02:00:00:00:00:01 is listed again with another name, channel or "
                                     "security; that one has the invented address 02:00:00:00:00:03"});
    EXPECT_EQ(imported.scenario.accessPoints[0].rssi, -60) << "as the first entry says";
}

TEST(ImportRealCaptures, MergingIsReported)
{
    const MadeScenario imported = Import(kIw + Replaced(kIw, "-43.00", "-40.00"));
    ASSERT_EQ(imported.scenario.accessPoints.size(), 1u);
    EXPECT_EQ(imported.scenario.accessPoints[0].rssi, -40);
    EXPECT_TRUE(Warns(imported.warnings, "the access point 02:00:00:00:00:01 is listed more than once"));
}

TEST(ImportRealCaptures, TabsCanBeBlanks)
{
    std::string text;
    for (const char letter : kIw)
        text += letter == '\t' ? "        " : std::string(1, letter);
    EXPECT_EQ(Air(text), Air(kIw));
    EXPECT_EQ(Air(text).at(0).authentication, "WPA2PSK");
}

TEST(ImportRealCaptures, WhatTheTerminalShowedIsPassedOver)
{
    const std::string before = "C:\\Users\\me>chcp 65001\nActive code page: 65001\n";
    const std::string after = "\nProcess finished with exit code 0\nC:\\Users\\me>\n";
    for (const std::string& text : {kNetworks, kInterfaces})
    {
        const MadeScenario imported = Import(before + text + after);
        EXPECT_EQ(imported.scenario.accessPoints, Air(text));
        EXPECT_EQ(imported.warnings.size(), 3u) << ::testing::PrintToString(imported.warnings);
        EXPECT_TRUE(Warns(imported.warnings, "file:2: \"Active code page : 65001\" is not understood and left out"));
    }
}

TEST(ImportRealCaptures, StrengthsInDbmAreExact)
{
    const std::string text = Replaced(kInterfaces, "    Profile  ", "    Rssi                   : -63\n    Profile  ");
    EXPECT_EQ(Air(text).at(0).rssi, -63);
}

TEST(ImportRealCaptures, TheRatesOfTheLinkAreExact)
{
    const std::string rates = "    Receive rate (Mbps)    : 2401.9\n    Transmit rate (Mbps)   : 117\n";
    const auto connection = Import(Replaced(kInterfaces, "    Signal  ", rates + "    Signal  "))
                                .scenario.adapters.at(0)
                                .connection.value();
    EXPECT_EQ(connection.receiveKbps, 2401900u);
    EXPECT_EQ(connection.transmitKbps, 117000u);
}

TEST(ImportRealCaptures, AConnectionOverSeveralLinksIsItsFirst)
{
    std::string text = Replaced(kInterfaces, "    AP BSSID               : 02:00:00:00:00:01\n",
                                "    MLD AP BSSID           : 02:00:00:00:00:07\n"
                                "        LinkID: 0, Local: 02:00:00:00:10:01, AP: 02:00:00:00:00:01, RSSI: -53, "
                                "Channel: 48, Band: 5 GHz, BW: 80\n"
                                "        LinkID: 1, Local: 02:00:00:00:10:03, AP: 02:00:00:00:00:02, RSSI: -60, "
                                "Channel: 6, Band: 2.4 GHz, BW: 20\n");
    text = Replaced(text, "    Band                   : 5 GHz\n    Channel                : 36\n", "");
    const MadeScenario imported = Import(text);
    ASSERT_EQ(imported.scenario.accessPoints.size(), 1u);
    const AccessPoint& accessPoint = imported.scenario.accessPoints[0];
    EXPECT_EQ(accessPoint.bssid, (simulation::MacAddress{2, 0, 0, 0, 0, 1}));
    EXPECT_EQ(accessPoint.frequencyKhz, 5240000u);
    EXPECT_EQ(accessPoint.rssi, -53);
    EXPECT_EQ(accessPoint.channelWidth, 80u);
    EXPECT_EQ(imported.warnings.size(), 1u);
    EXPECT_TRUE(Warns(imported.warnings, "file:12: \"LinkID : 1, "));
}

TEST(ImportRealCaptures, RadioTypesCanHaveABlank)
{
    EXPECT_EQ(Air(Replaced(kNetworks, "802.11ax", "802.11 ax")), Air(kNetworks));
}

TEST(ImportRealCaptures, EachAdapterThatListenedIsOne)
{
    const Scenario scenario =
        Import(kNetworks + "\nInterface name : Wi-Fi 2\nThere are 0 networks currently visible.\n").scenario;
    ASSERT_EQ(scenario.adapters.size(), 2u);
    EXPECT_NE(scenario.adapters[0].guid, scenario.adapters[1].guid);
    EXPECT_NE(scenario.adapters[0].address, scenario.adapters[1].address);
}

TEST(ImportRealCaptures, ThePercentSignCanComeFirst)
{
    EXPECT_EQ(Air(Replaced(kNetworks, "80%", "%80")), Air(kNetworks));
}

TEST(ImportRealCaptures, OlderIwPrintsTheNumberOfTheSuite)
{
    EXPECT_EQ(Air(Replaced(kIw, "suites: PSK", "suites: 00-0f-ac:8")).at(0).authentication, "WPA3SAE");
    EXPECT_EQ(Air(Replaced(kIw, "suites: PSK", "suites: 00-0f-ac:18")).at(0).authentication, "OWE");
}

TEST(ImportRealCaptures, EachMistakeHasItsOwnRemedy)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Commands need the permission.\nms-settings:privacy-location\n",
         "file:2: Windows refused the list: switch location services on"},
        {"The service (wlansvc) is not running.\n", "file:1: the WLAN service was not running: start it"},
        {"<?xml version=\"1.0\"?>\n<LANProfile xmlns=\"x\"></LANProfile>\n", "file:2: this is a profile of a wired"},
        {"IN-USE  SSID     MODE   CHAN  RATE        SIGNAL  BARS  SECURITY\n"
         "*       Juniper  Infra  6     130 Mbit/s  82      ____  WPA2\n",
         "file:1: this list has no addresses: capture with \"nmcli -t -f IN-USE,BSSID"},
    };
    for (const auto& [text, refusal] : cases)
        EXPECT_EQ(Refusal(text).substr(0, std::string(refusal).size()), refusal);
}

TEST(ImportRealCaptures, AnUnknownAuthenticationIsNotGuessedFromACipher)
{
    const MadeScenario imported = Import(Replaced(kNetworks, "WPA2-Personal", "Sesame"));
    EXPECT_EQ(imported.scenario.accessPoints.size(), 1u);
    EXPECT_TRUE(Warns(imported.warnings, "file:7: \"Authentication\" is \"Sesame\", which is not a known"));
}

TEST(ImportRealCaptures, AFrequencyOf60GhzIsNot6Ghz)
{
    const AccessPoint accessPoint = Air(Replaced(kIw, "5180", "58320")).at(0);
    EXPECT_EQ(accessPoint.frequencyKhz, 58320000u);
    EXPECT_EQ(accessPoint.phyType, 9u);
}

TEST(ImportRealCaptures, WhatIsMaskedIsCalledSo)
{
    MadeScenario imported = Import(Replaced(kNetworks, "02:00:00:00:00:01", "02:00:00:xx:xx:xx"));
    EXPECT_EQ(imported.scenario.accessPoints.size(), 2u);
    EXPECT_TRUE(Warns(imported.warnings, "file:9: \"BSSID 1\" is masked (\"02:00:00:xx:xx:xx\")"));
    imported = Import(Replaced(kInterfaces, "11111111-2222", "XXXXXXXX-XXXX"));
    EXPECT_EQ(imported.scenario.adapters.size(), 2u);
    EXPECT_TRUE(Warns(imported.warnings, "file:6: \"GUID\" is masked (\"XXXXXXXX-XXXX-3333-4444-55556666abcd\")"));
}

TEST(ImportRealCaptures, TheSummaryCountsWhatIsListed)
{
    EXPECT_EQ(CountScenario(Import(kNetworks).scenario).networks, 2u);
    Scenario scenario = Import(kNetworks).scenario;
    scenario.accessPoints[0].hidden = true;
    EXPECT_EQ(CountScenario(scenario).networks, 3u) << "those that hide their names are an entry of their own";
    scenario.adapters[0].phys[0].hardware = simulation::RadioSwitch::off;
    scenario.accessPoints.clear();
    EXPECT_EQ(CountScenario(scenario).networks, 0u);
}

} // namespace

} // namespace calvix::host::test::import_real_captures_test
