#include "import_samples.h"

namespace calvix::host::test::import_readers_test
{

namespace
{

using simulation::RadioSwitch;
using Lines = std::vector<std::string>;

/// Keeps some columns of the colon-separated sample.
std::string Columns(const std::vector<std::size_t>& kept)
{
    std::string text;
    const std::string sample = AllReplaced(Sample("linux/nmcli-terse.txt"), "\\:", "\x01");
    for (const std::string_view line : LinesOf(sample))
    {
        Lines cells(1);
        for (const char letter : line)
            if (letter == ':')
                cells.emplace_back();
            else
                cells.back() += letter;
        for (const std::size_t column : kept)
            text += (column == kept.front() ? "" : ":") + cells.at(column);
        text += "\n";
    }
    return AllReplaced(text, "\x01", "\\:");
}

/// What the samples of nmcli list.
Lines Listed()
{
    return {"02:61:00:00:00:01 Harbour Lane, 2437000 kHz, -51 dBm, PHY 7, BSS 1, WPA2PSK AES, 100 TU",
            "02:61:00:00:00:02 \xE6\xB8\xAF\xE3\x81\xAE\xE5\x96\xAB\xE8\x8C\xB6\xE5\xBA\x97, 5180000 kHz, -64 dBm, PHY "
            "8, BSS 1, WPA3SAE AES, 100 TU",
            "02:61:00:00:00:03 (hidden), 5955000 kHz, -72 dBm, PHY 10, BSS 1, WPA3SAE AES, 100 TU",
            "02:61:00:00:00:04 Floor 2: Left, 2412000 kHz, -79 dBm, PHY 6, BSS 1, open none, 100 TU",
            "02:61:00:00:00:05 Harbour Staff, 5500000 kHz, -88 dBm, PHY 4, BSS 1, WPA2 AES, 100 TU",
            "02:61:00:00:00:06 chess, 2462000 kHz, -97 dBm, PHY 5, BSS 2, open WEP, 100 TU"};
}

} // namespace

TEST(ImportNetsh, ReadsTheAirOfACapture)
{
    const NetworksCapture home = ReadNetworks(Sample("home/networks.txt"));
    EXPECT_EQ(home.adapterNames, Lines{"Wi-Fi"});
    EXPECT_EQ(home.warnings, Lines());
    EXPECT_EQ(Summaries(home.accessPoints),
              (Lines{"02:11:22:00:00:01 Juniper Lane, 2437000 kHz, -55 dBm, PHY 7, BSS 1, WPA2PSK AES, 100 TU",
                     "02:11:22:00:00:02 Juniper Lane, 5220000 kHz, -63 dBm, PHY 8, BSS 1, WPA2PSK AES, 100 TU",
                     "02:11:22:00:00:03 Juniper Lane 6, 6135000 kHz, -70 dBm, PHY 10, BSS 1, WPA3SAE AES, 100 TU",
                     "02:11:22:00:00:04 Juniper Lane 6, 5935000 kHz, -80 dBm, PHY 11, BSS 1, WPA3SAE AES, 100 TU",
                     "06:AA:BB:00:00:01 Floor 2: Left, 2472000 kHz, -83 dBm, PHY 6, BSS 1, WPA2PSK AES, 100 TU",
                     "0A:CC:DD:00:00:01 (hidden), 5500000 kHz, -73 dBm, PHY 8, BSS 1, WPA2PSK AES, 100 TU",
                     "0A:CC:DD:00:00:02 (hidden), 5745000 kHz, -86 dBm, PHY 10, BSS 1, WPA2PSK AES, 100 TU",
                     "0E:EE:FF:00:00:01 B\xC3\xA4"
                     "ckerei S\xC3\xBC\xC3\x9F, 2484000 kHz, -89 dBm, PHY 5, BSS 1, open none, 100 TU",
                     "0E:EE:FF:00:00:02 Board & Dice, 5180000 kHz, -50 dBm, PHY 4, BSS 1, WPA2 AES, 100 TU",
                     "0E:EE:FF:00:00:03 Board & Dice, 5320000 kHz, -100 dBm, PHY 7, BSS 1, WPA2 AES, 100 TU",
                     "0E:EE:FF:00:00:04 chess-table, 2412000 kHz, -77 dBm, PHY 5, BSS 2, open WEP, 100 TU"}));
}

TEST(ImportNetsh, ReadsTheAdaptersOfACapture)
{
    const InterfacesCapture home = ReadInterfaces(Sample("home/interfaces.txt"));
    ASSERT_EQ(home.adapters.size(), 2u);
    const CapturedInterface& first = home.adapters[0];
    EXPECT_EQ(first.name, "Wi-Fi");
    EXPECT_EQ(first.description, "Sample Wireless 7 Adapter: Main");
    EXPECT_EQ(first.guid, "{1A2B3C4D-0001-4ABC-8DEF-0123456789AB}");
    EXPECT_EQ(first.address, (simulation::MacAddress{0x02, 0, 0, 0, 0x10, 0x01}));
    EXPECT_EQ(first.hardware, RadioSwitch::on);
    EXPECT_EQ(first.software, RadioSwitch::on);
    EXPECT_EQ(home.adapters[1].name, "Wi-Fi 2");
    EXPECT_FALSE(home.adapters[1].connection);
}

TEST(ImportNetsh, ReadsAConnectionInTheFormOfNewerAndOlderSystems)
{
    std::string older = Replaced(kInterfaces, "AP BSSID", "BSSID");
    older = Replaced(older, "    Band                   : 5 GHz\n", "");
    older = Replaced(older, "Auto Connect", "Profile") + "\n    Hosted network status  : Not available\n\n";
    for (const auto& [text, isAutomatic] : {std::pair(kInterfaces, true), std::pair(older, false)})
    {
        const InterfacesCapture capture = ReadInterfaces(text);
        ASSERT_EQ(capture.adapters.size(), 2u);
        const CapturedConnection& connection = capture.adapters[0].connection.value();
        EXPECT_EQ(connection.profile, "Juniper");
        EXPECT_EQ(connection.ssid, "Juniper");
        EXPECT_EQ(connection.automatic, isAutomatic);
        EXPECT_EQ(Summary(connection.accessPoint),
                  "02:00:00:00:00:01 Juniper, 5180000 kHz, -59 dBm, PHY 10, BSS 1, WPA2PSK AES, 100 TU");
    }
}

TEST(ImportNetsh, ReadsEveryPositionOfTheRadioSwitches)
{
    for (const RadioSwitch hardware : {RadioSwitch::on, RadioSwitch::off})
        for (const RadioSwitch software : {RadioSwitch::on, RadioSwitch::off})
        {
            std::string text = Replaced(kInterfaces, "Hardware On", hardware == RadioSwitch::on ? "A On" : "A Off");
            text = Replaced(text, "Software Off", software == RadioSwitch::on ? "B On" : "B Off");
            const CapturedInterface adapter = ReadInterfaces(text).adapters.at(1);
            EXPECT_EQ(adapter.hardware, hardware);
            EXPECT_EQ(adapter.software, software);
        }
}

TEST(ImportNetsh, IndentationDoesNotMatter)
{
    const Lines expected = Summaries(ReadNetworks(kNetworks).accessPoints);
    ASSERT_EQ(expected.size(), 3u);
    EXPECT_EQ(Summaries(ReadNetworks(AllReplaced(kNetworks, "\n", " \t\n\t  ")).accessPoints), expected);
    EXPECT_EQ(Summaries(ReadNetworks(kNetworks.substr(0, kNetworks.size() - 1)).accessPoints), expected);
}

TEST(ImportNetsh, NothingInViewAndNoAdapterAreCapturesToo)
{
    const NetworksCapture none = ReadNetworks("\nInterface name : Wi-Fi\nThere are 0 networks currently visible.\n");
    EXPECT_TRUE(none.accessPoints.empty());
    EXPECT_TRUE(none.warnings.empty());
    EXPECT_TRUE(ReadInterfaces("\nThere is no wireless interface on the system.\n").adapters.empty());
}

TEST(ImportNetsh, EachAdapterThatListenedIsOne)
{
    const NetworksCapture both = ReadNetworks(kNetworks + Replaced(kNetworks, "Wi-Fi", "Wi-Fi 2"));
    EXPECT_EQ(both.adapterNames, (Lines{"Wi-Fi", "Wi-Fi 2"}));
    EXPECT_EQ(both.accessPoints.size(), 6u);
    const simulation::Scenario scenario =
        Import(kNetworks + "\nInterface name : Wi-Fi 2\nThere are 0 networks currently visible.\n").scenario;
    ASSERT_EQ(scenario.adapters.size(), 2u);
    EXPECT_NE(scenario.adapters[0].guid, scenario.adapters[1].guid);
    EXPECT_NE(scenario.adapters[0].address, scenario.adapters[1].address);
}

TEST(ImportNetsh, WhatTheTerminalShowedIsPassedOver)
{
    const std::string before = "C:\\Users\\me>chcp 65001\nActive code page: 65001\n";
    const std::string after = "\nProcess finished with exit code 0\nC:\\Users\\me>\n";
    for (const std::string& text : {kNetworks, kInterfaces})
    {
        const MadeScenario imported = Import(before + text + after);
        EXPECT_EQ(imported.scenario.accessPoints, Import(text).scenario.accessPoints);
        EXPECT_EQ(imported.warnings.size(), 3u) << ::testing::PrintToString(imported.warnings);
        EXPECT_TRUE(Warns(imported.warnings, "file:2: \"Active code page : 65001\" is not understood and left out"));
    }
}

TEST(ImportIw, CarriesOverWhatAScenarioHolds)
{
    const NetworksCapture capture = ReadNetworks(Sample("linux/iw-scan.txt"));
    EXPECT_EQ(Summaries(capture.accessPoints),
              (Lines{"02:61:00:00:00:01 Harbour Lane, 2437000 kHz, -47 dBm, PHY 7, BSS 1, WPA2PSK AES, 100 TU",
                     "02:61:00:00:00:02 Harbour Lane, 5180000 kHz, -68 dBm, PHY 10, BSS 1, WPA3SAE AES, 200 TU",
                     "02:61:00:00:00:03 (hidden), 5955000 kHz, -71 dBm, PHY 11, BSS 1, WPA3SAE AES, 100 TU",
                     "02:61:00:00:00:04 caf\xC3\xA9 \\ libre , 2412000 kHz, -80 dBm, PHY 5, BSS 1, open none, 100 TU",
                     "02:61:00:00:00:05 Harbour Staff, 5500000 kHz, -80 dBm, PHY 4, BSS 1, WPA2 AES, 100 TU",
                     "02:61:00:00:00:06 chess, 2462000 kHz, -90 dBm, PHY 6, BSS 2, open WEP, 100 TU"}));
    EXPECT_EQ(capture.adapterNames, Lines{"wlan0"});
    EXPECT_EQ(capture.warnings,
              (Lines{"file:26: the access point 02:61:00:00:00:02 accepts both WPA2 and WPA3; the scenario has WPA3",
                     "file:65: \"40/100\" is not in dBm: the strength is a guess"}));
}

TEST(ImportIw, TheAssociatedAccessPointIsTheConnection)
{
    const simulation::Scenario scenario = Import(Sample("linux/iw-scan.txt")).scenario;
    ASSERT_EQ(scenario.adapters.size(), 1u);
    ASSERT_TRUE(scenario.adapters[0].connection);
    EXPECT_EQ(scenario.adapters[0].connection->profile, "Harbour Lane");
    EXPECT_EQ(scenario.adapters[0].connection->bssid, (simulation::MacAddress{0x02, 0x61, 0, 0, 0, 1}));
    EXPECT_EQ(simulation::ParseScenario(simulation::WriteScenario(scenario), "text"), scenario);
}

TEST(ImportIw, MergingIsReported)
{
    const std::string iw = Sample("plain/iw-scan.txt");
    const MadeScenario imported = Import(iw + Replaced(iw, "-43.00", "-40.00"));
    ASSERT_EQ(imported.scenario.accessPoints.size(), 1u);
    EXPECT_EQ(imported.scenario.accessPoints[0].rssi, -40);
    EXPECT_TRUE(Warns(imported.warnings, "the access point 02:00:00:00:00:01 is listed more than once"));
}

TEST(ImportIw, TabsCanBeBlanks)
{
    const std::string iw = Sample("plain/iw-scan.txt");
    EXPECT_EQ(Summaries(Import(AllReplaced(iw, "\t", "        ")).scenario.accessPoints),
              Lines{"02:00:00:00:00:01 Juniper, 5180000 kHz, -43 dBm, PHY 4, BSS 1, WPA2PSK AES, 100 TU"});
}

TEST(ImportNmcli, EveryLayoutHoldsTheSame)
{
    for (const char* file : {"linux/nmcli-terse.txt", "linux/nmcli-table.txt"})
    {
        SCOPED_TRACE(file);
        const NetworksCapture capture = ReadNetworks(Sample(file));
        EXPECT_EQ(Summaries(capture.accessPoints), Listed());
        ASSERT_EQ(capture.connections.size(), 1u);
        EXPECT_EQ(capture.connections[0].ssid, "Harbour Lane");
        EXPECT_EQ(capture.warnings.size(), 2u)
            << "about what nmcli does not print, and about the network with WPA2 and WPA3";
    }
}

TEST(ImportNmcli, AListWithoutNamesIsTheAdvisedOneOrNmclisOwn)
{
    const std::string notPrinted =
        "file:1: nmcli does not print PHY types, so they are guessed from bands and rates, nor ciphers: AES is assumed";
    const NetworksCapture withoutFlags = ReadNetworks(Columns({0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(Summaries(withoutFlags.accessPoints), Listed());
    EXPECT_TRUE(Warns(withoutFlags.warnings, notPrinted));

    // Without frequencies, channel 1 of 6 GHz looks like that of 2.4 GHz; the column of the bars has no use.
    Lines expected = Listed();
    expected[2] = "02:61:00:00:00:03 (hidden), 2412000 kHz, -72 dBm, PHY 7, BSS 1, WPA3SAE AES, 100 TU";
    const NetworksCapture own = ReadNetworks(Columns({0, 1, 2, 3, 4, 6, 7, 9, 8}));
    EXPECT_EQ(Summaries(own.accessPoints), expected);
    EXPECT_TRUE(Warns(own.warnings, "file:1: channels are assumed to be those of 2.4 and 5 GHz"));
}

TEST(ImportNmcli, ARowThatIsCutOffIsLeftOut)
{
    const NetworksCapture capture = ReadNetworks(Sample("linux/nmcli-terse.txt") + " :02\\:61");
    EXPECT_EQ(Summaries(capture.accessPoints), Listed());
    EXPECT_TRUE(Warns(capture.warnings, "file:7: this row has 2 values in place of 11; the access point is left out"));
}

TEST(ImportNmcli, ATableInAnotherLanguageHasItsOwnOrder)
{
    const NetworksCapture capture =
        ReadNetworks("IN-BENUTZUNG  BSSID              SSID   MODUS  KANAL  RATE        SIGNAL  BALKEN  SICHERHEIT\n"
                     "              02:61:00:00:00:01  Hafen  Infra  11     130 Mbit/s  50      ____    WPA2\n");
    EXPECT_EQ(Summaries(capture.accessPoints),
              Lines{"02:61:00:00:00:01 Hafen, 2462000 kHz, -70 dBm, PHY 7, BSS 1, WPA2PSK AES, 100 TU"});
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
        EXPECT_EQ(capture.warnings,
                  Lines{"file:1: nmcli does not print PHY types, so they are guessed from bands and rates"});
    }
}

TEST(ImportNmcli, ATableCanHaveAnyColumns)
{
    const NetworksCapture capture =
        ReadNetworks("*  SSID    SSID-HEX  BSSID              DEVICE  FREQ      SIGNAL  SECURITY\n"
                     "*  caf\xEF\xBF\xBD    636166E9  02:61:00:00:00:01  wlan1   2412 MHz  6       WPA1\n");
    EXPECT_EQ(Summaries(capture.accessPoints),
              Lines{"02:61:00:00:00:01 caf\xE9, 2412000 kHz, -97 dBm, PHY 7, BSS 1, WPAPSK TKIP, 100 TU"})
        << "the bytes are exact";
    EXPECT_EQ(capture.adapterNames, Lines{"wlan1"});
    EXPECT_EQ(capture.connections.size(), 1u);
}

} // namespace calvix::host::test::import_readers_test
