#include "import/import.h"
#include "import/read_capture.h"
#include "import_samples.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_linux_test
{

namespace
{

using simulation::AccessPoint;

std::string Sample(const std::string& file)
{
    return ReadWholeFile(DataPath("linux/" + file));
}

NetworksCapture Read(const std::string& text, const CaptureHints& hints = {})
{
    return std::get<NetworksCapture>(ReadCapture(text, "file", hints).content);
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
    std::vector<AccessPoint> air;
    for (const CapturedNetwork& network : capture.networks)
        air.insert(air.end(), network.accessPoints.begin(), network.accessPoints.end());
    ASSERT_EQ(air.size(), expected.size());
    for (const AccessPoint& heard : air)
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
        {
            if (line[i] == ':' && line[i - 1] != '\\')
                cells.emplace_back();
            else
                cells.back() += line[i];
        }
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
    const NetworksCapture capture = Read(Sample("iw-scan.txt"));
    Expect(capture, {{"Harbour Lane", 2437000, -47, 7, 1, "WPA2PSK", "AES", 100},
                     {"Harbour Lane", 5180000, -68, 10, 1, "WPA3SAE", "AES", 200},
                     {"", 5955000, -71, 11, 1, "WPA3SAE", "AES", 100},
                     {"caf\xC3\xA9 \\ libre ", 2412000, -80, 5, 1, "open", "none", 100},
                     {"Harbour Staff", 5500000, -80, 4, 1, "WPA2", "AES", 100},
                     {"chess", 2462000, -90, 6, 2, "open", "WEP", 100}});
    EXPECT_EQ(capture.adapterNames, std::vector<std::string>{"wlan0"});
    EXPECT_EQ(capture.warnings, std::vector<std::string>{"file:26: the access point 02:61:00:00:00:02 takes both WPA2 "
                                                         "and WPA3; the scenario has WPA3"});
}

TEST(ImportIw, TheAssociatedAccessPointIsTheConnection)
{
    Captures captures;
    captures.networks = Read(Sample("iw-scan.txt"));
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

TEST(ImportIw, WhatCannotBeUsedIsTold)
{
    const IwDamage cases[] = {
        {"\tsignal: -90.00 dBm\n", "", "file:83: the access point 02:61:00:00:00:06 has no \"signal\""},
        {"\tfreq: 2462\n", "", "file:83: the access point 02:61:00:00:00:06 has no \"freq\""},
        {"-90.00 dBm", "loud", "file:87: \"signal\" is \"loud\", which is not a strength in dBm"},
        {"SSID: chess", "SSID: a name that takes thirty-three byte", "file:88: this SSID is longer than 32 bytes"},
        {"suites: SAE", "suites: 00-0f-ac:99",
         "file:47: the access point 02:61:00:00:00:03 is left out: its authentication (00-0f-ac:99) is none that a "
         "scenario has"},
        {"BSS 02:61:00:00:00:06(on wlan0)", "scan aborted!\nBSS 02:61:00:00:00:06(on wlan0)",
         "file:83: \"scan aborted!\" is not understood and left out"},
    };
    for (const IwDamage& each : cases)
    {
        NetworksCapture capture;
        const std::string text = Replaced(Sample("iw-scan.txt"), each.from, each.to);
        const std::string complaint = Complaint([&] { capture = Read(text); });
        EXPECT_TRUE(complaint == each.told || Tells(capture, each.told)) << each.told << ", but: " << complaint;
    }
}

TEST(ImportNmcli, EveryLayoutHoldsTheSame)
{
    for (const char* file : {"nmcli-terse.txt", "nmcli-multiline-german.txt", "nmcli-table.txt"})
    {
        SCOPED_TRACE(file);
        const NetworksCapture capture = Read(Sample(file));
        Expect(capture, kListed);
        ASSERT_EQ(capture.connections.size(), 1u);
        EXPECT_EQ(capture.connections[0].ssid, "Harbour Lane");
        EXPECT_EQ(capture.warnings.size(), 2u) << "of what nmcli does not tell, and of the network with WPA2 and WPA3";
    }
}

TEST(ImportNmcli, ColumnsAreToldByWhatStandsInThem)
{
    // Without a band, a channel of 6 GHz looks like one of 2.4 GHz: the rows compared have none.
    const std::vector<std::vector<std::size_t>> kept{
        {1, 2, 4, 5, 7, 9}, {2, 1, 9, 7, 5}, {9, 7, 5, 4, 3, 2, 1, 0}, {0, 1, 2, 3, 5, 6, 7, 8, 9}, {5, 7, 1, 2, 9}};
    for (const std::vector<std::size_t>& columns : kept)
    {
        SCOPED_TRACE(Columns(columns));
        const NetworksCapture capture = Read(Columns(columns));
        std::size_t checked = 0;
        for (const CapturedNetwork& network : capture.networks)
            for (const AccessPoint& heard : network.accessPoints)
            {
                const Heard& each = kListed.at(heard.bssid[5] - 1u);
                EXPECT_EQ(network.ssid, each.ssid);
                EXPECT_EQ(heard.rssi, each.rssi);
                EXPECT_EQ(heard.frequencyKhz, each.frequencyKhz);
                EXPECT_EQ(heard.authentication, each.authentication);
                ++checked;
            }
        EXPECT_EQ(checked, 6u);
    }
}

TEST(ImportNmcli, TheUserCanNameColumns)
{
    CaptureHints hints;
    hints.columns = {"SIGNAL", "CHAN", "BSSID", "SSID", "SECURITY"};
    const NetworksCapture capture = Read("6:11:02\\:61\\:00\\:00\\:00\\:01:yes:WPA2\n", hints);
    ASSERT_EQ(capture.networks.size(), 1u);
    EXPECT_EQ(capture.networks[0].ssid, "yes");
    EXPECT_EQ(capture.networks[0].accessPoints[0].rssi, -97);
    EXPECT_EQ(capture.networks[0].accessPoints[0].frequencyKhz, 2462000u);
}

TEST(ImportNmcli, BytesInHexadecimalAreBetterThanTheName)
{
    const NetworksCapture capture =
        Read("SSID:     caf\xEF\xBF\xBD\nSSID-HEX: 636166E9\nBSSID:    02:61:00:00:00:01\nFREQ:     2412 MHz\n"
             "SIGNAL:   50\nSECURITY: --\n");
    ASSERT_EQ(capture.networks.size(), 1u);
    EXPECT_EQ(capture.networks[0].ssid, "caf\xE9");
}

TEST(ImportNmcli, WhatCannotBeUsedIsTold)
{
    const std::string terse = Sample("nmcli-terse.txt");
    const std::pair<std::string, const char*> cases[] = {
        {Columns({1, 2, 5, 7}), "file:1: no column is known to hold the security: capture with \"nmcli -t -f"},
        {Columns({1, 2, 5, 9}), "file:1: no column is known to hold the signal strengths"},
        {Columns({1, 2, 7, 9}), "file:1: no column is known to hold the"},
        {terse + " :02\\:61", "file:7: this row has 2 values in place of 10 and is left out"},
        {Replaced(terse, "WEP", "ROT13"), "\"ROT13\" is no known security; the access point is left out"},
        {Replaced(terse, "82", "820"), "file:1: \"820\" is no percentage from 0 to 100; the access point is left out"},
    };
    for (const auto& [text, told] : cases)
    {
        NetworksCapture capture;
        CaptureHints hints;
        hints.columns = text.starts_with("*:")
                            ? std::vector<std::string>{"IN-USE", "BSSID", "SSID",   "MODE", "CHAN",
                                                       "FREQ",   "RATE",  "SIGNAL", "BARS", "SECURITY"}
                            : std::vector<std::string>{};
        const std::string complaint = Complaint([&] { capture = Read(text, hints); });
        EXPECT_TRUE(complaint.find(told) == 0 || Tells(capture, told)) << told << ", but: " << complaint;
    }
}

} // namespace calvix::host::test::import_linux_test
