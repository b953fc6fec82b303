#include "import/netsh_networks.h"
#include "import_samples.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_networks_test
{

namespace
{

using simulation::AccessPoint;

/// The only access point of a capture of one network, with these lines in the places of the usual ones.
struct OneAccessPoint
{
    std::string type = "Infrastructure";
    std::string authentication = "WPA2-Personal";
    std::string encryption = "CCMP";
    std::string signal = "50%";
    std::string radio = "802.11n";
    std::string band; ///< empty: no such line
    std::string channel = "1";

    std::string Text() const
    {
        return "There are 1 networks currently visible.\nSSID 1 : N\nNetwork type : " + type +
               "\nAuthentication : " + authentication + "\nEncryption : " + encryption +
               "\nBSSID 1 : 02:00:00:00:00:01\nSignal : " + signal + "\nRadio type : " + radio + "\n" +
               (band.empty() ? "" : "Band : " + band + "\n") + "Channel : " + channel + "\n";
    }
    AccessPoint Parse() const { return ReadNetworks(Text()).accessPoints.at(0); }
};

} // namespace

TEST(ImportNetworks, TurnsWhatIsPrintedIntoNumbers)
{
    const NetworksCapture home = ParseNetworks(ToUtf8(ReadWholeFile(DataPath("home/networks.txt"))), "networks.txt");
    EXPECT_EQ(home.adapterNames, std::vector<std::string>{"Wi-Fi"});
    EXPECT_TRUE(home.warnings.empty());
    std::vector<std::string> names;
    for (const AccessPoint& accessPoint : home.accessPoints)
    {
        names.emplace_back(accessPoint.ssid.begin(), accessPoint.ssid.end());
        EXPECT_EQ(accessPoint.hidden, accessPoint.ssid.empty());
    }
    const std::string bakery = "B\xC3\xA4"
                               "ckerei S\xC3\xBC\xC3\x9F";
    EXPECT_EQ(names, (std::vector<std::string>{"Juniper Lane", "Juniper Lane", "Juniper Lane 6", "Juniper Lane 6",
                                               "Floor 2: Left", "", "", bakery, "Board & Dice", "Board & Dice",
                                               "chess-table"}));
    const AccessPoint& fiveGhz = home.accessPoints.at(1);
    EXPECT_EQ(fiveGhz.bssid, (simulation::MacAddress{0x02, 0x11, 0x22, 0, 0, 2}));
    EXPECT_EQ(fiveGhz.frequencyKhz, 5220000u);
    EXPECT_EQ(fiveGhz.rssi, 75 / 2 - 100);
    EXPECT_EQ(fiveGhz.phyType, 8u);
    EXPECT_EQ(fiveGhz.bssType, 1u);
    EXPECT_EQ(fiveGhz.authentication, "WPA2PSK");
    EXPECT_EQ(fiveGhz.encryption, "AES");
    EXPECT_EQ(home.accessPoints[2].frequencyKhz, 6135000u);
    EXPECT_EQ(home.accessPoints[3].frequencyKhz, 5935000u);
    EXPECT_EQ(home.accessPoints[7].frequencyKhz, 2484000u);
    EXPECT_EQ(home.accessPoints[8].rssi, -50);
    EXPECT_EQ(home.accessPoints[9].rssi, -100);
    EXPECT_EQ(home.accessPoints[10].bssType, 2u);
}

TEST(ImportNetworks, LineEndsAndIndentationDoNotMatter)
{
    const std::vector<AccessPoint> expected = ReadNetworks(kNetworks).accessPoints;
    ASSERT_EQ(expected.size(), 3u);
    EXPECT_EQ(ReadNetworks(WithCarriageReturns(kNetworks)).accessPoints, expected);
    std::string shifted;
    for (const char letter : kNetworks)
        shifted += letter == '\n' ? " \t\n\t  " : std::string(1, letter);
    EXPECT_EQ(ReadNetworks(shifted).accessPoints, expected);
    EXPECT_EQ(ReadNetworks(kNetworks.substr(0, kNetworks.size() - 1)).accessPoints, expected);
}

TEST(ImportNetworks, TheBandCanBeMissing)
{
    OneAccessPoint each;
    each.channel = "14";
    EXPECT_EQ(each.Parse().frequencyKhz, 2484000u);
    each.channel = "177";
    EXPECT_EQ(each.Parse().frequencyKhz, 5885000u);
    each.band = "6 GHz";
    EXPECT_EQ(each.Parse().frequencyKhz, 6835000u);
}

TEST(ImportNetworks, EveryWordOfTheTool)
{
    const std::pair<const char*, std::uint32_t> radios[] = {{"802.11a", 4},   {"802.11b", 5},   {"802.11g", 6},
                                                            {"802.11n", 7},   {"802.11ac", 8},  {"802.11ad", 9},
                                                            {"802.11ax", 10}, {"802.11be", 11}, {"802.11AX", 10}};
    for (const auto& [word, number] : radios)
    {
        OneAccessPoint each;
        each.radio = word;
        EXPECT_EQ(each.Parse().phyType, number) << word;
    }
    const std::pair<const char*, const char*> authentications[] = {{"Open", "open"},
                                                                   {"Shared", "shared"},
                                                                   {"WPA-Personal", "WPAPSK"},
                                                                   {"WPA-Enterprise", "WPA"},
                                                                   {"WPA2-Personal", "WPA2PSK"},
                                                                   {"WPA2-Enterprise", "WPA2"},
                                                                   {"WPA3-Personal", "WPA3SAE"},
                                                                   {"WPA3-Enterprise", "WPA3ENT"},
                                                                   {"WPA3-Enterprise 192 Bits", "WPA3ENT192"},
                                                                   {"OWE", "OWE"},
                                                                   {"Enhanced Open", "OWE"}};
    for (const auto& [word, name] : authentications)
    {
        OneAccessPoint each;
        each.authentication = word;
        EXPECT_EQ(each.Parse().authentication, name) << word;
    }
    const std::pair<const char*, const char*> encryptions[] = {
        {"None", "none"}, {"WEP", "WEP"}, {"TKIP", "TKIP"}, {"CCMP", "AES"}, {"GCMP", "GCMP256"}};
    for (const auto& [word, name] : encryptions)
    {
        OneAccessPoint each;
        each.encryption = word;
        EXPECT_EQ(each.Parse().encryption, name) << word;
    }
}

TEST(ImportNetworks, ListsOfSeveralAdaptersAreOneCapture)
{
    const NetworksCapture both = ParseNetworks(kNetworks + Replaced(kNetworks, "Wi-Fi", "Wi-Fi 2"), "file");
    EXPECT_EQ(both.adapterNames, (std::vector<std::string>{"Wi-Fi", "Wi-Fi 2"}));
    EXPECT_EQ(both.accessPoints.size(), 6u);
}

TEST(ImportNetworks, NothingInViewIsACaptureToo)
{
    const NetworksCapture none =
        ParseNetworks("\nInterface name : Wi-Fi\nThere are 0 networks currently visible.\n", "file");
    EXPECT_TRUE(none.accessPoints.empty());
    EXPECT_TRUE(none.warnings.empty());
}

TEST(ImportNetworks, ANetworkWithoutAccessPointsIsLeftOutAloud)
{
    const std::string text = Replaced(kNetworks, kNetworks.substr(kNetworks.rfind("    BSSID 1")), "");
    const NetworksCapture capture = ParseNetworks(text, "file");
    EXPECT_EQ(capture.warnings,
              std::vector<std::string>{"file:20: the network \"Open: all day\" is listed without access points and "
                                       "left out"});
}

struct Damage
{
    const char* from;
    const char* to;
    const char* complaint;
};

class DamagedNetworks : public ::testing::TestWithParam<Damage>
{
};

TEST_P(DamagedNetworks, CostWhatIsDamagedAndAWarning)
{
    const std::string text = Replaced(kNetworks, GetParam().from, GetParam().to);
    for (const std::string& each : {text, WithCarriageReturns(text)})
    {
        const NetworksCapture capture = ParseNetworks(each, "file");
        EXPECT_TRUE(Warns(capture.warnings, GetParam().complaint)) << ::testing::PrintToString(capture.warnings);
        ASSERT_FALSE(capture.accessPoints.empty());
        EXPECT_EQ(capture.accessPoints.back().ssid.size(), 13u) << "the second network is as it was";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Import,
    DamagedNetworks,
    ::testing::Values(
        Damage{"80%", "80", "file:10: \"Signal\" is \"80\", which is not a percentage from 0% to 100%"},
        Damage{"80%", "strong", "file:10: \"Signal\" is \"strong\", which is not a percentage from 0% to 100%"},
        Damage{"80%", "101%", "file:10: \"Signal\" is \"101%\", which is not a percentage from 0% to 100%"},
        Damage{"80%", "-8%", "file:10: \"Signal\" is \"-8%\", which is not a percentage from 0% to 100%"},
        Damage{"80%", "99999999999%",
               "file:10: \"Signal\" is \"99999999999%\", which is not a percentage from 0% to 100%"},
        Damage{"80%", "%", "file:10: \"Signal\" is \"%\", which is not a percentage from 0% to 100%"},
        Damage{"802.11ax", "802.11zz",
               "file:11: \"Radio type\" is \"802.11zz\", which is not a known radio type (802.11a, b, g, n, ac, ad, ax "
               "or be)"},
        Damage{"5 GHz", "7 GHz", "file:12: \"Band\" is \"7 GHz\", which is not a known band (2.4, 5 or 6 GHz)"},
        Damage{"Channel            : 36", "Channel            : upper",
               "file:13: \"Channel\" is \"upper\", which is not a channel number"},
        Damage{"Channel            : 36", "Channel            : 36a",
               "file:13: \"Channel\" is \"36a\", which is not a channel number"},
        Damage{"Channel            : 36", "Channel            : 6",
               "file:13: \"Channel\" is \"6\", which is not a channel of the 5 GHz band"},
        Damage{"Channel            : 6", "Channel            : 20",
               "file:18: \"Channel\" is \"20\", which is not a channel of the 2.4 GHz or the 5 GHz band"},
        Damage{"02:00:00:00:00:02", "02:00:00:00:00",
               "file:15: \"BSSID 2\" is \"02:00:00:00:00\", which is not an address of six bytes"},
        Damage{"02:00:00:00:00:02", "02:00:00:00:00:0g",
               "file:15: \"BSSID 2\" is \"02:00:00:00:00:0g\", which is not an address of six bytes"},
        Damage{"02:00:00:00:00:02", "02:00:00:00:00:02:03",
               "file:15: \"BSSID 2\" is \"02:00:00:00:00:02:03\", which is not an address of six bytes"},
        Damage{"SSID 1 : Juniper\n", "BSSID 7 : 02:00:00:00:00:07\n", "file:5: a BSSID before any SSID"},
        Damage{"         Signal             : 61%\n", "",
               "file:15: the access point 02:00:00:00:00:02 has no \"Signal\""},
        Damage{"         Radio type         : 802.11n\n", "",
               "file:15: the access point 02:00:00:00:00:02 has no \"Radio type\""},
        Damage{"         Channel            : 6\n", "",
               "file:15: the access point 02:00:00:00:00:02 has no \"Channel\""},
        Damage{"    Network type            : Infrastructure\n", "",
               "file:5: the network \"Juniper\" has no \"Network type\""},
        Damage{"    Authentication          : WPA2-Personal\n", "",
               "file:5: the network \"Juniper\" has no \"Authentication\""},
        Damage{"    Encryption              : CCMP\n", "", "file:5: the network \"Juniper\" has no \"Encryption\""},
        Damage{"Infrastructure", "Garden",
               "file:6: \"Network type\" is \"Garden\", which is not a known network type (Infrastructure or Adhoc)"},
        Damage{"WPA2-Personal", "WPA9",
               "file:7: \"Authentication\" is \"WPA9\", which is not a known authentication (Open, WPA2-Personal, "
               "WPA3-Enterprise, OWE ...)"},
        Damage{
            "CCMP", "ROT13",
            "file:8: \"Encryption\" is \"ROT13\", which is not a known encryption (None, WEP, TKIP, CCMP, GCMP ...)"},
        Damage{"SSID 1 : Juniper\n", "SSID 1 : a name that takes thirty-three byte\n",
               "file:5: this SSID is longer than 32 bytes"},
        Damage{"SSID 1 : Juniper\n", "SSID 1\n", "file:5: \"SSID 1\" has no value"},
        Damage{"BSSID 2                 : 02:00:00:00:00:02\n", "BSSID 2\n",
               "file:15: \"BSSID 2\" is \"\", which is not an address of six bytes"},
        Damage{"    BSSID 2                 : 02:00:00:00:00:02\n", "",
               "file:15: \"Signal\" is given twice for the access point 02:00:00:00:00:01, first in line 10"},
        Damage{"Other rates (Mbps) : 9", "Other ra",
               "file:14: \"Other ra 18 36 48 54\" is not understood and left out"},
        Damage{"There are 2", "There are 3",
               "file:3: this announces 3 networks, but only 2 follow: the capture is cut off"},
        Damage{"There are 2 networks currently visible.", "The service is not running.",
               "file:3: \"The service is not running.\" is not understood and left out"}));

TEST(ImportNetworks, AListWithoutAccessPointsIsRefusedWithTheRemedy)
{
    std::string text;
    for (std::size_t at = 0; at < kNetworks.size();)
    {
        const std::size_t end = kNetworks.find('\n', at) + 1;
        const std::string line = kNetworks.substr(at, end - at);
        text += line.find("     ") == 0 || line.find("    BSSID") == 0 ? "" : line;
        at = end;
    }
    EXPECT_EQ(Complaint([&] { ParseNetworks(text, "file"); }),
              "file:5: no network has a BSSID: capture with \"netsh wlan show networks mode=bssid\"");
}

/// Wherever a capture is cut, it is refused, or a warning names the network that lost its access points. Only the very
/// last value can lose digits.
TEST(ImportNetworks, NoCutGoesUnnoticed)
{
    const std::size_t lastValue = kNetworks.rfind(": 11") + 3;
    for (std::size_t length = 0; length < lastValue; ++length)
    {
        Captures captures;
        const std::string complaint = Complaint([&] { captures = Read(kNetworks.substr(0, length)); });
        EXPECT_TRUE(complaint.find("file:") == 0 || !captures.warnings.empty()) << length;
    }
}

} // namespace calvix::host::test::import_networks_test
