#include "service_fixture.h"

namespace calvix::simulation::scan_test
{

using std::chrono::milliseconds;
using std::chrono::seconds;

class Scanning : public ServiceTest
{
protected:
    DWORD ScanFor(const DOT11_SSID* ssid) { return Wlan().WlanScan(client, &first, ssid, nullptr, nullptr); }
    bool IsListed(const std::string& ssid)
    {
        for (const auto& network : ListNetworks())
            if (TextOf(network.dot11Ssid) == ssid)
                return true;
        return false;
    }
};

TEST_F(Scanning, NewsAreListedWhenAScanIsDone)
{
    Start();
    computer->air().push_back(MakeAccessPoint("New", 9, -40));
    Scan(milliseconds(1999));
    EXPECT_FALSE(IsListed("New"));
    computer->Advance(milliseconds(1));
    EXPECT_TRUE(IsListed("New"));
}

TEST_F(Scanning, WhatIsGoneIsGoneWithTheNextScan)
{
    Start();
    computer->air().clear();
    Scan(milliseconds(0));
    EXPECT_TRUE(IsListed("HomeNet"));
    computer->Advance(seconds(2));
    EXPECT_FALSE(IsListed("HomeNet"));
}

TEST_F(Scanning, ASecondRequestJoinsTheScanUnderWay)
{
    Start();
    computer->air().push_back(MakeAccessPoint("New", 9, -40));
    Scan(milliseconds(1500));
    Scan(milliseconds(500));
    EXPECT_TRUE(IsListed("New"));
}

TEST_F(Scanning, TheServiceScansByItselfEveryMinute)
{
    Start();
    computer->air().push_back(MakeAccessPoint("New", 9, -40));
    computer->Advance(seconds(60) + milliseconds(1999));
    EXPECT_FALSE(IsListed("New"));
    computer->Advance(milliseconds(1));
    EXPECT_TRUE(IsListed("New"));
    computer->air().pop_back();
    computer->Advance(seconds(60));
    EXPECT_FALSE(IsListed("New"));
}

TEST_F(Scanning, AStoppedServiceDoesNotScanByItself)
{
    Start();
    computer->air().push_back(MakeAccessPoint("New", 9, -40));
    computer->SetServiceRunning(false);
    computer->Advance(seconds(90));
    computer->SetServiceRunning(true);
    EXPECT_FALSE(IsListed("New"));
}

TEST_F(Scanning, WithoutAutoConfigurationTheServiceDoesNotScanByItself)
{
    Start();
    ASSERT_EQ(Set(wlan_intf_opcode_autoconf_enabled, BOOL{FALSE}), ERROR_SUCCESS);
    EXPECT_EQ(Query<BOOL>(wlan_intf_opcode_autoconf_enabled), FALSE);
    computer->air().push_back(MakeAccessPoint("New", 9, -40));
    computer->Advance(seconds(90));
    EXPECT_FALSE(IsListed("New"));
}

TEST_F(Scanning, BackgroundScanningIsSetWhileConnectedOnly)
{
    Start();
    EXPECT_EQ(Set(wlan_intf_opcode_background_scan_enabled, BOOL{FALSE}), ERROR_INVALID_STATE);
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    EXPECT_EQ(Set(wlan_intf_opcode_background_scan_enabled, BOOL{FALSE}), ERROR_SUCCESS);
    computer->air().push_back(MakeAccessPoint("New", 9, -40));
    computer->Advance(seconds(90));
    EXPECT_FALSE(IsListed("New"));
}

TEST_F(Scanning, AHiddenNetworkAnswersToItsName)
{
    scenario.accessPoints.push_back(MakeAccessPoint("Secret", 9, -60));
    scenario.accessPoints.back().hidden = true;
    Start();
    EXPECT_FALSE(IsListed("Secret"));
    const DOT11_SSID wrong = SsidOf("Secrets");
    ASSERT_EQ(ScanFor(&wrong), ERROR_SUCCESS);
    computer->Advance(seconds(2));
    EXPECT_FALSE(IsListed("Secret"));
    const DOT11_SSID right = SsidOf("Secret");
    ASSERT_EQ(ScanFor(&right), ERROR_SUCCESS);
    computer->Advance(seconds(2));
    EXPECT_TRUE(IsListed("Secret"));
    Scan();
    EXPECT_FALSE(IsListed("Secret"));
}

TEST_F(Scanning, LimitsOfWhatIsAskedWith)
{
    Start();
    DOT11_SSID tooLong{};
    tooLong.uSSIDLength = 33;
    EXPECT_EQ(ScanFor(&tooLong), ERROR_INVALID_PARAMETER);
    WLAN_RAW_DATA data{};
    data.dwDataSize = 241;
    EXPECT_EQ(Wlan().WlanScan(client, &first, nullptr, &data, nullptr), ERROR_INVALID_PARAMETER);
    data.dwDataSize = 1;
    EXPECT_EQ(Wlan().WlanScan(client, &first, nullptr, &data, nullptr), ERROR_SUCCESS);
}

TEST_F(Scanning, ARadioThatComesOnKnowsNothingUntilItHasScanned)
{
    scenario.adapters[0].phys.resize(1);
    Start();
    ASSERT_EQ(SetSoftwareRadio(0, dot11_radio_state_off), ERROR_SUCCESS);
    computer->Advance(seconds(10));
    ASSERT_EQ(SetSoftwareRadio(0, dot11_radio_state_on), ERROR_SUCCESS);
    EXPECT_TRUE(ListNetworks().empty());
    computer->Advance(seconds(2));
    EXPECT_TRUE(IsListed("HomeNet"));
}

TEST_F(Scanning, ARadioSwitchedOffEndsTheScanUnderWay)
{
    scenario.adapters[0].phys.resize(1);
    Start();
    Scan(milliseconds(0));
    computer->SetRadio(0, 0, RadioSwitch::on, RadioSwitch::off);
    computer->Advance(milliseconds(1500));
    computer->SetRadio(0, 0, RadioSwitch::on, RadioSwitch::on);
    computer->Advance(milliseconds(1999));
    EXPECT_TRUE(ListNetworks().empty()) << "the scan of the radio's return is not done yet";
    computer->Advance(milliseconds(1));
    EXPECT_TRUE(IsListed("HomeNet"));
}

} // namespace calvix::simulation::scan_test
