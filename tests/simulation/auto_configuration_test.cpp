// When the service connects by itself, and to what.
#include "service_fixture.h"

namespace calvix::simulation::auto_configuration_test
{

using std::chrono::milliseconds;
using std::chrono::seconds;

class AutoConfiguration : public ServiceTest
{
protected:
    AutoConfiguration()
    {
        scenario.adapters[0].phys.resize(1);
        scenario.adapters[0].profiles = {
            {MakeProfile("Train", "Train")}, {MakeProfile("Second", "Second")}, {MakeProfile("Third", "Third")}};
        scenario.adapters[0].connection = simulation::Connection{"Train", std::nullopt};
        scenario.accessPoints = {MakeAccessPoint("Train", 1, -50), MakeAccessPoint("Third", 3, -40),
                                 MakeAccessPoint("Second", 2, -70)};
        scenario.accessPoints[0].timetable = {{0, -50}, {10'000, std::nullopt}, {100'000, -55}};
    }

    std::wstring ConnectedBy()
    {
        const auto connection = Connection();
        return connection ? connection->strProfileName : L"";
    }
};

TEST_F(AutoConfiguration, ALostConnectionIsReplacedByThePreferredOneInReach)
{
    Start();
    computer->Advance(milliseconds(9999));
    EXPECT_EQ(ConnectedBy(), L"Train");
    computer->Advance(milliseconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
    computer->Advance(seconds(3)); // a scan and the connection
    EXPECT_EQ(ConnectedBy(), L"Second") << "not Third, although it is stronger";
    EXPECT_EQ(Connection().value().wlanConnectionMode, wlan_connection_mode_auto);
}

TEST_F(AutoConfiguration, TheSameNetworkIsJoinedAgainWhenItReturns)
{
    scenario.accessPoints.resize(1);
    Start();
    computer->Advance(seconds(100));
    EXPECT_EQ(ConnectedBy(), L"");
    computer->Advance(seconds(23)); // the service's next scan begins after two minutes
    EXPECT_EQ(ConnectedBy(), L"Train");
}

TEST_F(AutoConfiguration, AFailingProfileIsPassedOver)
{
    scenario.accessPoints[2].key = "another horse";
    Start();
    computer->Advance(seconds(13));
    EXPECT_EQ(ConnectedBy(), L"");
    computer->Advance(seconds(1));
    EXPECT_EQ(ConnectedBy(), L"Third");
}

TEST_F(AutoConfiguration, ManualProfilesAreNotUsed)
{
    ProfileSettings settings = MakeSettings("Second", "Second");
    settings.mode = "manual";
    scenario.adapters[0].profiles[1] = {MakeProfileXml(settings)};
    Start();
    computer->Advance(seconds(13));
    EXPECT_EQ(ConnectedBy(), L"Third");
}

TEST_F(AutoConfiguration, NotWhileItIsSwitchedOff)
{
    Start();
    ASSERT_EQ(Set(wlan_intf_opcode_autoconf_enabled, BOOL{FALSE}), ERROR_SUCCESS);
    computer->Advance(seconds(90));
    EXPECT_EQ(ConnectedBy(), L"");
    EXPECT_FALSE(computer->Snapshot().adapters[0].autoConfiguration);
    ASSERT_EQ(Set(wlan_intf_opcode_autoconf_enabled, BOOL{TRUE}), ERROR_SUCCESS);
    computer->Advance(seconds(90));
    EXPECT_EQ(ConnectedBy(), L"Train");
}

TEST_F(AutoConfiguration, NotAfterARequestToDisconnect)
{
    Start();
    ASSERT_EQ(Wlan().WlanDisconnect(client, &first, nullptr), ERROR_SUCCESS);
    computer->Advance(seconds(200));
    EXPECT_EQ(ConnectedBy(), L"");
    ASSERT_EQ(Connect(L"Second"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    ASSERT_EQ(ConnectedBy(), L"Second");
    computer->SetRadio(0, 0, RadioSwitch::off, RadioSwitch::on);
    computer->SetRadio(0, 0, RadioSwitch::on, RadioSwitch::on);
    computer->Advance(seconds(3));
    EXPECT_EQ(ConnectedBy(), L"Train") << "from then on it does";
}

TEST_F(AutoConfiguration, AComputerThatStartsDisconnectedStaysSo)
{
    scenario.adapters[0].connection.reset();
    Start();
    computer->Advance(seconds(200));
    EXPECT_EQ(ConnectedBy(), L"");
}

TEST_F(AutoConfiguration, ADeletedProfileMakesRoomForTheNext)
{
    Start();
    ASSERT_EQ(Wlan().WlanDeleteProfile(client, &first, L"Train", nullptr), ERROR_SUCCESS);
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
    computer->Advance(seconds(63));
    EXPECT_EQ(ConnectedBy(), L"Second");
}

TEST_F(AutoConfiguration, AnotherAccessPointOfTheNetworkTakesOver)
{
    scenario.accessPoints.push_back(MakeAccessPoint("Train", 9, -80));
    Start();
    computer->Advance(seconds(10));
    EXPECT_EQ(ConnectedBy(), L"Train");
    EXPECT_EQ(Connection().value().wlanAssociationAttributes.dot11Bssid[5], 9);
}

TEST_F(AutoConfiguration, OnesThatDoNotAdmitTheAdapterDoNotTakeOver)
{
    for (std::uint8_t number = 9; number < 12; ++number)
        scenario.accessPoints.push_back(MakeAccessPoint("Train", number, -80));
    scenario.accessPoints[3].answers = false;
    scenario.accessPoints[4].key = "another horse";
    scenario.accessPoints[5].rssi = -95;
    Start();
    computer->Advance(seconds(10));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

} // namespace calvix::simulation::auto_configuration_test
