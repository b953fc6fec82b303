#include "import/netsh_interfaces.h"
#include "import_samples.h"

#include <gtest/gtest.h>

namespace calvix::host::test::import_interfaces_test
{

using simulation::RadioSwitch;

namespace
{

InterfacesCapture Parse(const std::string& text)
{
    return ParseInterfaces(text, "file");
}

} // namespace

TEST(ImportInterfaces, ReadsAdaptersOfACapture)
{
    const InterfacesCapture home = Parse(ToUtf8(ReadWholeFile(DataPath("home/interfaces.txt"))));
    ASSERT_EQ(home.adapters.size(), 2u);
    const CapturedInterface& first = home.adapters[0];
    EXPECT_EQ(first.name, "Wi-Fi");
    EXPECT_EQ(first.description, "Sample Wireless 7 Adapter: Main");
    EXPECT_EQ(first.guid, "{1A2B3C4D-0001-4ABC-8DEF-0123456789AB}");
    EXPECT_EQ(first.address, (simulation::MacAddress{0x02, 0, 0, 0, 0x10, 0x01}));
    EXPECT_EQ(first.hardware, RadioSwitch::on);
    EXPECT_EQ(first.software, RadioSwitch::on);
    const CapturedInterface& second = home.adapters[1];
    EXPECT_EQ(second.name, "Wi-Fi 2");
    EXPECT_EQ(second.address, (simulation::MacAddress{0x02, 0, 0, 0, 0x10, 0x02}));
    EXPECT_EQ(second.hardware, RadioSwitch::on);
    EXPECT_EQ(second.software, RadioSwitch::off);
    EXPECT_FALSE(second.connection);
}

TEST(ImportInterfaces, ReadsAConnection)
{
    const InterfacesCapture capture = Parse(kInterfaces);
    ASSERT_TRUE(capture.adapters.at(0).connection);
    const CapturedConnection& connection = *capture.adapters[0].connection;
    EXPECT_EQ(connection.profile, "Juniper");
    EXPECT_EQ(connection.ssid, "Juniper");
    EXPECT_TRUE(connection.automatic);
    const simulation::AccessPoint& accessPoint = connection.accessPoint;
    EXPECT_EQ(std::string(accessPoint.ssid.begin(), accessPoint.ssid.end()), "Juniper");
    EXPECT_EQ(accessPoint.bssid, (simulation::MacAddress{0x02, 0, 0, 0, 0, 1}));
    EXPECT_EQ(accessPoint.frequencyKhz, 5180000u);
    EXPECT_EQ(accessPoint.phyType, 10u);
    EXPECT_EQ(accessPoint.rssi, -59);
    EXPECT_EQ(accessPoint.authentication, "WPA2PSK");
    EXPECT_EQ(accessPoint.encryption, "AES");
}

TEST(ImportInterfaces, ReadsTheFormOfOlderSystems)
{
    std::string text = Replaced(kInterfaces, "AP BSSID", "BSSID");
    text = Replaced(text, "    Band                   : 5 GHz\n", "");
    text = Replaced(text, "Auto Connect", "Profile");
    text += "\n    Hosted network status  : Not available\n\n";
    const InterfacesCapture capture = Parse(WithCarriageReturns(text));
    ASSERT_EQ(capture.adapters.size(), 2u);
    const CapturedConnection& connection = capture.adapters[0].connection.value();
    EXPECT_EQ(connection.accessPoint.bssid, (simulation::MacAddress{0x02, 0, 0, 0, 0, 1}));
    EXPECT_EQ(connection.accessPoint.frequencyKhz, 5180000u);
    EXPECT_FALSE(connection.automatic);
}

TEST(ImportInterfaces, ReadsEveryPositionOfTheRadioSwitches)
{
    for (const bool hardware : {false, true})
        for (const bool software : {false, true})
        {
            std::string text = Replaced(kInterfaces, "Hardware On", hardware ? "Hardware On" : "Hardware Off");
            text = Replaced(text, "Software Off", software ? "Software On" : "Software Off");
            const CapturedInterface adapter = Parse(text).adapters.at(1);
            EXPECT_EQ(adapter.hardware == RadioSwitch::on, hardware);
            EXPECT_EQ(adapter.software == RadioSwitch::on, software);
        }
}

TEST(ImportInterfaces, OnlyAConnectedAdapterHasAConnection)
{
    for (const char* state :
         {"disconnected", "associating", "disconnecting", "discovering", "authenticating", "not ready"})
        EXPECT_FALSE(Parse(Replaced(kInterfaces, ": connected", std::string(": ") + state)).adapters.at(0).connection)
            << state;
}

TEST(ImportInterfaces, AComputerWithoutAdapters)
{
    EXPECT_TRUE(Parse("\nThere is no wireless interface on the system.\n").adapters.empty());
}

namespace
{

struct Damage
{
    const char* from;
    const char* to;
    const char* complaint;
};

class DamagedInterfaces : public ::testing::TestWithParam<Damage>
{
};

} // namespace

TEST_P(DamagedInterfaces, CostWhatIsDamagedAndAWarning)
{
    const std::string text = Replaced(kInterfaces, GetParam().from, GetParam().to);
    for (const std::string& each : {text, WithCarriageReturns(text)})
    {
        const InterfacesCapture capture = Parse(each);
        EXPECT_TRUE(Warns(capture.warnings, GetParam().complaint)) << ::testing::PrintToString(capture.warnings);
        EXPECT_FALSE(capture.adapters.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Import,
    DamagedInterfaces,
    ::testing::Values(
        Damage{"6666abcd", "6666abc",
               "file:6: \"GUID\" is \"11111111-2222-3333-4444-55556666abc\", which is not a GUID"},
        Damage{"55556666abcd", "55556666abcg",
               "file:6: \"GUID\" is \"11111111-2222-3333-4444-55556666abcg\", which is not a GUID"},
        Damage{"02:00:00:00:10:01", "02:00",
               "file:7: \"Physical address\" is \"02:00\", which is not an address of six bytes"},
        Damage{"02:00:00:00:00:01", "nowhere",
               "file:10: \"AP BSSID\" is \"nowhere\", which is not an address of six bytes"},
        Damage{"5 GHz", "5 MHz", "file:11: \"Band\" is \"5 MHz\", which is not a known band (2.4, 5 or 6 GHz)"},
        Damage{": 36", ": -", "file:12: \"Channel\" is \"-\", which is not a channel number"},
        Damage{"82%", "82", "file:18: \"Signal\" is \"82\", which is not a percentage from 0% to 100%"},
        Damage{"Profile                : Juniper", "Profile                :", "file:19: \"Profile\" has no value"},
        Damage{"SSID                   : Juniper", "SSID                   : ", "file:9: \"SSID\" has no value"},
        Damage{"    Profile                : Juniper\n", "", "file:4: the interface \"Wi-Fi\" has no \"Profile\""},
        Damage{"    AP BSSID               : 02:00:00:00:00:01\n", "",
               "file:4: the interface \"Wi-Fi\" has no \"BSSID\""},
        Damage{"    Signal                 : 82%\n", "", "file:4: the interface \"Wi-Fi\" has no \"Signal\""},
        Damage{"    Description            : Second\n", "",
               "file:21: the interface \"Wi-Fi 2\" has no \"Description\""},
        Damage{"    GUID                   : 11111111-2222-3333-4444-55556666abce\n", "",
               "file:21: the interface \"Wi-Fi 2\" has no \"GUID\""},
        Damage{"    Physical address       : 02:00:00:00:10:02\n", "",
               "file:21: the interface \"Wi-Fi 2\" has no \"Physical address\""},
        Damage{"    Name                   : Wi-Fi 2\n", "",
               "file:21: \"Description\" is given twice for the interface \"Wi-Fi\", first in line 5"},
        Damage{"    Name                   : Wi-Fi\n", "",
               "file:4: \"Description : First: the inner one\" is not understood and left out"},
        Damage{"Software Off", "Soft", "file:27: \"Soft\" is not understood; it is assumed to be on"},
        Damage{"Hardware On\n", "\n", "file:26: a switch of the radio is missing; it is assumed to be on"},
        Damage{"                             Software Off\n", "",
               "file:27: a switch of the radio is missing; it is assumed to be on"},
        Damage{"    State                  : disconnected\n", "    Sta\n",
               "file:25: \"Sta\" is not understood and left out"},
        Damage{"55556666abce", "55556666abcd", "file:23: a second interface with this GUID"},
        Damage{"There are 2", "There are 3",
               "file:2: this announces 3 interfaces, but only 2 follow: the capture is cut off"}));

} // namespace calvix::host::test::import_interfaces_test
