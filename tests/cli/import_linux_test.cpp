#include "import_samples.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_linux_test
{

namespace
{

std::string Sample(const std::string& file)
{
    return ReadWholeFile(DataPath("linux/" + file));
}

/// What an access point must be, by the last byte of its address.
struct Heard
{
    const char* ssid;
    std::uint32_t frequencyKhz;
    std::int32_t rssi;
    std::uint32_t phyType;
    std::uint32_t bssType;
    const char* authentication;
    const char* encryption;
    std::uint16_t beaconPeriod;
};

void Expect(const NetworksCapture& capture, const std::vector<Heard>& expected)
{
    ASSERT_EQ(capture.accessPoints.size(), expected.size());
    for (const simulation::AccessPoint& heard : capture.accessPoints)
    {
        const Heard& each = expected.at(heard.bssid[5] - 1u);
        EXPECT_EQ(std::string(heard.ssid.begin(), heard.ssid.end()), each.ssid);
        EXPECT_EQ(heard.hidden, heard.ssid.empty()) << each.ssid;
        EXPECT_EQ(heard.frequencyKhz, each.frequencyKhz) << each.ssid;
        EXPECT_EQ(heard.rssi, each.rssi) << each.ssid;
        EXPECT_EQ(heard.phyType, each.phyType) << each.ssid;
        EXPECT_EQ(heard.bssType, each.bssType) << each.ssid;
        EXPECT_EQ(heard.authentication, each.authentication) << each.ssid;
        EXPECT_EQ(heard.encryption, each.encryption) << each.ssid;
        EXPECT_EQ(heard.beaconPeriod, each.beaconPeriod) << each.ssid;
    }
}

const std::vector<Heard> kListed{
    {"Harbour Lane", 2437000, -51, 7, 1, "WPA2PSK", "AES", 100},
    {"\xE6\xB8\xAF\xE3\x81\xAE\xE5\x96\xAB\xE8\x8C\xB6\xE5\xBA\x97", 5180000, -64, 8, 1, "WPA3SAE", "AES", 100},
    {"", 5955000, -72, 10, 1, "WPA3SAE", "AES", 100},
    {"Floor 2: Left", 2412000, -79, 6, 1, "open", "none", 100},
    {"Harbour Staff", 5500000, -88, 4, 1, "WPA2", "AES", 100},
    {"chess", 2462000, -97, 5, 2, "open", "WEP", 100},
};

/// Keeps some columns of the colon-separated sample.
std::string Columns(const std::vector<std::size_t>& kept)
{
    std::string text;
    const std::string sample = Sample("nmcli-terse.txt");
    for (const std::string_view line : LinesOf(sample))
    {
        std::vector<std::string> cells(1);
        for (std::size_t i = 0; i < line.size(); ++i)
            if (line[i] == ':' && line[i - 1] != '\\')
                cells.emplace_back();
            else
                cells.back() += line[i];
        for (const std::size_t column : kept)
            text += (column == kept.front() ? "" : ":") + cells.at(column);
        text += "\n";
    }
    return text;
}

bool Tells(const NetworksCapture& capture, const std::string& part)
{
    for (const std::string& warning : capture.warnings)
        if (warning.find(part) != std::string::npos)
            return true;
    return false;
}

} // namespace

TEST(ImportIw, CarriesOverWhatAScenarioHolds)
{
    const NetworksCapture capture = ReadNetworks(Sample("iw-scan.txt"));
    Expect(capture, {{"Harbour Lane", 2437000, -47, 7, 1, "WPA2PSK", "AES", 100},
                     {"Harbour Lane", 5180000, -68, 10, 1, "WPA3SAE", "AES", 200},
                     {"", 5955000, -71, 11, 1, "WPA3SAE", "AES", 100},
                     {"caf\xC3\xA9 \\ libre ", 2412000, -80, 5, 1, "open", "none", 100},
                     {"Harbour Staff", 5500000, -80, 4, 1, "WPA2", "AES", 100},
                     {"chess", 2462000, -90, 6, 2, "open", "WEP", 100}});
    EXPECT_EQ(capture.adapterNames, std::vector<std::string>{"wlan0"});
    EXPECT_EQ(capture.warnings,
              (std::vector<std::string>{"file:65: \"40/100\" is not in dBm: the strength is a guess",
                                        "file:26: the access point 02:61:00:00:00:02 accepts both WPA2 "
                                        "and WPA3; the scenario has WPA3"}));
}

TEST(ImportIw, TheAssociatedAccessPointIsTheConnection)
{
    Captures captures;
    captures.networks = ReadNetworks(Sample("iw-scan.txt"));
    const simulation::Scenario scenario = AssembleScenario(captures, false).scenario;
    ASSERT_EQ(scenario.adapters.size(), 1u);
    ASSERT_TRUE(scenario.adapters[0].connection);
    EXPECT_EQ(scenario.adapters[0].connection->profile, "Harbour Lane");
    EXPECT_EQ(scenario.adapters[0].connection->bssid, (simulation::MacAddress{0x02, 0x61, 0, 0, 0, 1}));
    EXPECT_EQ(simulation::ParseScenario(simulation::WriteScenario(scenario), "text"), scenario);
}

struct IwDamage
{
    const char* from;
    const char* to;
    const char* told; ///< the refusal, or a warning
};

TEST(ImportIw, WhatCannotBeUsedIsReported)
{
    const IwDamage cases[] = {
        {"\tsignal: -90.00 dBm\n", "",
         "file:83: no \"signal\" follows; the access point 02:61:00:00:00:06 is left out"},
        {"\tfreq: 2462\n", "", "file:83: no \"freq\" follows; the access point 02:61:00:00:00:06 is left out"},
        {"-90.00 dBm", "loud", "file:87: \"signal\" is \"loud\", which is not a strength in dBm"},
        {"SSID: chess", "SSID: a name that takes thirty-three byte", "file:88: this SSID is longer than 32 bytes"},
        {"suites: SAE", "suites: 00-0f-ac:99",
         "file:47: a scenario cannot have its authentication (00-0f-ac:99); the access point 02:61:00:00:00:03 is left "
         "out"},
        {"BSS 02:61:00:00:00:06(on wlan0)", "scan aborted!\nBSS 02:61:00:00:00:06(on wlan0)",
         "file:83: \"scan aborted!\" is not understood and left out"},
    };
    for (const IwDamage& each : cases)
    {
        NetworksCapture capture;
        const std::string text = Replaced(Sample("iw-scan.txt"), each.from, each.to);
        const std::string complaint = Complaint([&] { capture = ReadNetworks(text); });
        EXPECT_TRUE(complaint == each.told || Tells(capture, each.told)) << each.told << ", but: " << complaint;
    }
}

TEST(ImportNmcli, EveryLayoutHoldsTheSame)
{
    for (const char* file : {"nmcli-terse.txt", "nmcli-table.txt"})
    {
        SCOPED_TRACE(file);
        const NetworksCapture capture = ReadNetworks(Sample(file));
        Expect(capture, kListed);
        ASSERT_EQ(capture.connections.size(), 1u);
        EXPECT_EQ(capture.connections[0].ssid, "Harbour Lane");
        EXPECT_EQ(capture.warnings.size(), 2u)
            << "about what nmcli does not print, and about the network with WPA2 and WPA3";
    }
}

TEST(ImportNmcli, AListWithoutNamesIsTheAdvisedOneOrNmclisOwn)
{
    const NetworksCapture withoutFlags = ReadNetworks(Columns({0, 1, 2, 3, 4, 5, 6, 7, 8}));
    Expect(withoutFlags, kListed);
    EXPECT_TRUE(Tells(withoutFlags, "nor ciphers: AES is assumed"));

    // Without frequencies, channel 1 of 6 GHz looks like that of 2.4 GHz; the column of the bars has no use.
    std::vector<Heard> expected = kListed;
    expected[2].frequencyKhz = 2412000;
    expected[2].phyType = 7;
    const NetworksCapture own = ReadNetworks(Columns({0, 1, 2, 3, 4, 6, 7, 9, 8}));
    Expect(own, expected);
    EXPECT_TRUE(Tells(own, "file:1: channels are assumed to be those of 2.4 and 5 GHz"));
}

TEST(ImportNmcli, ATableInAnotherLanguageHasItsOwnOrder)
{
    const NetworksCapture capture =
        ReadNetworks("IN-BENUTZUNG  BSSID              SSID   MODUS  KANAL  RATE        SIGNAL  BALKEN  SICHERHEIT\n"
                     "              02:61:00:00:00:01  Hafen  Infra  11     130 Mbit/s  50      ____    WPA2\n");
    ASSERT_EQ(capture.accessPoints.size(), 1u);
    EXPECT_EQ(capture.accessPoints[0].ssid, (simulation::Bytes{'H', 'a', 'f', 'e', 'n'}));
    EXPECT_EQ(capture.accessPoints[0].frequencyKhz, 2462000u);
    EXPECT_EQ(capture.accessPoints[0].rssi, -70);
    EXPECT_EQ(capture.accessPoints[0].authentication, "WPA2PSK");
}

TEST(ImportNmcli, FlagsDecideTheCipher)
{
    const std::pair<const char*, const char*> cases[] = {
        {"WPA2:(none):pair_tkip group_tkip psk\n", "TKIP"},
        {"WPA1:pair_ccmp group_ccmp psk:(none)\n", "AES"},
        {"WPA1 WPA2:pair_tkip pair_ccmp group_tkip psk:pair_tkip pair_ccmp group_tkip psk\n", "AES"}};
    for (const auto& [rest, cipher] : cases)
    {
        const NetworksCapture capture =
            ReadNetworks(std::string(" :02\\:61\\:00\\:00\\:00\\:01:A:Infra:1:2412 MHz:54 Mbit/s:50:") + rest);
        ASSERT_EQ(capture.accessPoints.size(), 1u) << rest;
        EXPECT_EQ(capture.accessPoints[0].encryption, cipher) << rest;
        EXPECT_FALSE(Tells(capture, "nor ciphers"));
    }
}

TEST(ImportNmcli, ATableCanHaveAnyColumns)
{
    const NetworksCapture capture =
        ReadNetworks("*  SSID    SSID-HEX  BSSID              DEVICE  FREQ      SIGNAL  SECURITY\n"
                     "*  caf\xEF\xBF\xBD    636166E9  02:61:00:00:00:01  wlan1   2412 MHz  6       WPA1\n");
    ASSERT_EQ(capture.accessPoints.size(), 1u);
    EXPECT_EQ(capture.accessPoints[0].ssid, (simulation::Bytes{'c', 'a', 'f', 0xE9})) << "the bytes are exact";
    EXPECT_EQ(capture.accessPoints[0].rssi, -97);
    EXPECT_EQ(capture.accessPoints[0].encryption, "TKIP");
    EXPECT_EQ(capture.adapterNames, std::vector<std::string>{"wlan1"});
    EXPECT_EQ(capture.connections.size(), 1u);
}

TEST(ImportNmcli, WhatCannotBeUsedIsReported)
{
    const std::string terse = Sample("nmcli-terse.txt");
    const std::pair<std::string, const char*> cases[] = {
        {Columns({1, 2, 5, 7}), "file:1: the columns of this list are not known: capture with \"nmcli -t -f"},
        {"BSSID              SSID     CHAN  SIGNAL\n02:61:00:00:00:01  Juniper  6     82\n",
         "file:2: this list has no column SECURITY: capture with \"nmcli -t -f"},
        {"BSSID              SSID     SIGNAL  SECURITY\n02:61:00:00:00:01  Juniper  6     WPA2\n",
         "file:2: this list has neither channels nor frequencies"},
        {terse + " :02\\:61", "file:7: this row has 2 values in place of 11; the access point is left out"},
        {Replaced(terse, "WEP", "ROT13"), "\"ROT13\" is not a known security; the access point is left out"},
        {Replaced(terse, "82", "820"),
         "file:1: \"820\" is not a percentage from 0 to 100; the access point is left out"},
    };
    for (const auto& [text, told] : cases)
    {
        NetworksCapture capture;
        const std::string complaint = Complaint([&, &input = text] { capture = ReadNetworks(input); });
        EXPECT_TRUE(complaint.find(told) == 0 || Tells(capture, told)) << told << ", but: " << complaint;
    }
}

} // namespace calvix::host::test::import_linux_test
