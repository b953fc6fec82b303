#include "service_fixture.h"

#include <algorithm>

namespace calvix::simulation::connection_test
{

using std::chrono::milliseconds;
using std::chrono::seconds;

class Connecting : public ServiceTest
{
protected:
    std::uint8_t ConnectedBssid() { return Connection().value().wlanAssociationAttributes.dot11Bssid[5]; }

    DWORD ConnectWith(const WLAN_CONNECTION_PARAMETERS& parameters)
    {
        return Wlan().WlanConnect(client, &first, &parameters, nullptr);
    }

    WLAN_CONNECTION_PARAMETERS Right() const
    {
        WLAN_CONNECTION_PARAMETERS parameters{};
        parameters.wlanConnectionMode = wlan_connection_mode_profile;
        parameters.strProfile = L"HomeNet";
        parameters.dot11BssType = dot11_BSS_type_infrastructure;
        return parameters;
    }
};

TEST_F(Connecting, TakesItsTimeThroughAllStates)
{
    Start();
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    EXPECT_EQ(InterfaceState(), wlan_interface_state_associating);
    computer->Advance(milliseconds(500));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_authenticating);
    computer->Advance(milliseconds(499));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_authenticating);
    EXPECT_EQ(ErrorOf(wlan_intf_opcode_current_connection), ERROR_INVALID_STATE);
    computer->Advance(milliseconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
}

TEST_F(Connecting, EndsAtTheStrongestAccessPoint)
{
    std::swap(scenario.accessPoints[0], scenario.accessPoints[1]);
    Start();
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    const auto connection = Connection().value();
    EXPECT_EQ(connection.isState, wlan_interface_state_connected);
    EXPECT_EQ(connection.wlanConnectionMode, wlan_connection_mode_profile);
    EXPECT_STREQ(connection.strProfileName, L"HomeNet");
    EXPECT_EQ(TextOf(connection.wlanAssociationAttributes.dot11Ssid), "HomeNet");
    EXPECT_EQ(connection.wlanAssociationAttributes.dot11BssType, dot11_BSS_type_infrastructure);
    EXPECT_EQ(connection.wlanAssociationAttributes.dot11Bssid[5], 1);
    EXPECT_EQ(connection.wlanAssociationAttributes.dot11PhyType, dot11_phy_type_ht);
    EXPECT_EQ(connection.wlanAssociationAttributes.wlanSignalQuality, 100u);
    EXPECT_TRUE(connection.wlanSecurityAttributes.bSecurityEnabled);
    EXPECT_FALSE(connection.wlanSecurityAttributes.bOneXEnabled);
    EXPECT_EQ(connection.wlanSecurityAttributes.dot11AuthAlgorithm, DOT11_AUTH_ALGO_RSNA_PSK);
    EXPECT_EQ(connection.wlanSecurityAttributes.dot11CipherAlgorithm, DOT11_CIPHER_ALGO_CCMP);
}

TEST_F(Connecting, KeepsToTheDesiredAccessPoint)
{
    Start();
    DOT11_BSSID_LIST desired{};
    desired.uNumOfEntries = desired.uTotalNumOfEntries = 1;
    const MacAddress& bssid = scenario.accessPoints[1].bssid;
    std::copy(bssid.begin(), bssid.end(), desired.BSSIDs[0]);
    WLAN_CONNECTION_PARAMETERS parameters = Right();
    parameters.pDesiredBssidList = &desired;
    ASSERT_EQ(ConnectWith(parameters), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    EXPECT_EQ(ConnectedBssid(), 2);

    desired.BSSIDs[0][5] = 77;
    ASSERT_EQ(ConnectWith(parameters), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected) << "no such access point";
}

TEST_F(Connecting, OutOfRangeEndsDisconnected)
{
    scenario.accessPoints.clear();
    Start();
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(milliseconds(999));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_associating);
    computer->Advance(milliseconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

TEST_F(Connecting, AHiddenNetworkIsFoundWhenItIsLookedFor)
{
    scenario.accessPoints.resize(1);
    scenario.accessPoints[0].hidden = true;
    Start();
    WLAN_CONNECTION_PARAMETERS parameters = Right();
    parameters.dwFlags = WLAN_CONNECTION_HIDDEN_NETWORK;
    ASSERT_EQ(ConnectWith(parameters), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
    EXPECT_EQ(TextOf(ListNetworks().at(0).dot11Ssid), "HomeNet");
}

TEST_F(Connecting, AnAccessPointThatNoScanHeardYetIsFound)
{
    scenario.accessPoints.clear();
    Start();
    computer->air().push_back(MakeAccessPoint("HomeNet", 1, -60));
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
    EXPECT_EQ(ListStations().size(), 1u) << "it is heard from then on";
}

TEST_F(Connecting, ANewRequestTakesDownTheOldConnectionFirst)
{
    scenario.adapters[0].profiles.push_back({MakeProfile("Gone", "Gone")});
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    Start();
    ASSERT_EQ(InterfaceState(), wlan_interface_state_connected);
    ASSERT_EQ(Connect(L"Gone"), ERROR_SUCCESS);
    EXPECT_EQ(InterfaceState(), wlan_interface_state_associating);
    computer->Advance(seconds(1));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected) << "there is no way back";
}

TEST_F(Connecting, ANewRequestReplacesTheOneThatIsBeingTried)
{
    Start();
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(milliseconds(900));
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->Advance(milliseconds(900));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_authenticating);
    computer->Advance(milliseconds(100));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
}

TEST_F(Connecting, RefusesWhatItCannotUse)
{
    const std::wstring longName(256, L'x');
    DOT11_SSID other = SsidOf("Other");
    constexpr auto byProfile = wlan_connection_mode_profile;
    constexpr auto byTemporary = wlan_connection_mode_temporary_profile;
    constexpr auto infrastructure = dot11_BSS_type_infrastructure;
    const struct
    {
        const char* what;
        WLAN_CONNECTION_MODE mode;
        const wchar_t* profile;
        DOT11_SSID* ssid;
        DOT11_BSS_TYPE bssType;
        DWORD error = ERROR_INVALID_PARAMETER;
    } cases[] = {
        {"null name", byProfile, nullptr, nullptr, infrastructure},
        {"empty name", byProfile, L"", nullptr, infrastructure},
        {"long name", byProfile, longName.c_str(), nullptr, infrastructure},
        {"unknown name", byProfile, L"homenet", nullptr, infrastructure, ERROR_NOT_FOUND},
        {"automatic mode", wlan_connection_mode_auto, L"HomeNet", nullptr, infrastructure},
        {"invalid mode", wlan_connection_mode_invalid, L"HomeNet", nullptr, infrastructure},
        {"temporary profile that is none", byTemporary, L"HomeNet", nullptr, infrastructure, ERROR_BAD_PROFILE},
        {"no temporary profile", byTemporary, nullptr, nullptr, infrastructure},
        {"discovery with a profile", wlan_connection_mode_discovery_secure, L"HomeNet", &other, infrastructure},
        {"discovery of no network", wlan_connection_mode_discovery_unsecure, nullptr, nullptr, infrastructure},
        {"another BSS type", byProfile, L"HomeNet", nullptr, dot11_BSS_type_independent},
        {"any BSS type", byProfile, L"HomeNet", nullptr, dot11_BSS_type_any},
        {"another SSID", byProfile, L"HomeNet", &other, infrastructure},
    };
    Start();
    for (const auto& each : cases)
    {
        WLAN_CONNECTION_PARAMETERS parameters{};
        parameters.wlanConnectionMode = each.mode;
        parameters.strProfile = each.profile;
        parameters.pDot11Ssid = each.ssid;
        parameters.dot11BssType = each.bssType;
        EXPECT_EQ(ConnectWith(parameters), each.error) << each.what;
        EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected) << each.what;
    }
}

class Connected : public Connecting
{
protected:
    Connected() { scenario.adapters[0].connection = simulation::Connection{"HomeNet", scenario.accessPoints[1].bssid}; }

    void SetUp() override { Start(); }
};

TEST_F(Connected, FromTheStartIfTheScenarioSaysSo)
{
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
    EXPECT_EQ(ConnectedBssid(), 2);
}

TEST_F(Connected, UntilDisconnected)
{
    EXPECT_EQ(Wlan().WlanDisconnect(client, &first, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
    EXPECT_EQ(ErrorOf(wlan_intf_opcode_current_connection), ERROR_INVALID_STATE);
    EXPECT_EQ(Wlan().WlanDisconnect(client, &first, nullptr), ERROR_SUCCESS);
}

TEST_F(Connected, DisconnectingGivesUpWhatIsBeingTried)
{
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    EXPECT_EQ(Wlan().WlanDisconnect(client, &first, nullptr), ERROR_SUCCESS);
    computer->Advance(seconds(5));
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

TEST_F(Connected, UntilTheLastPhyIsOff)
{
    EXPECT_EQ(SetSoftwareRadio(0, dot11_radio_state_off), ERROR_SUCCESS);
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
    EXPECT_EQ(SetSoftwareRadio(1, dot11_radio_state_off), ERROR_SUCCESS);
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

TEST_F(Connected, SurvivesOneScanThatDoesNotHearTheAccessPoint)
{
    computer->air().clear();
    Scan();
    EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
    EXPECT_TRUE(ListStations().empty());
    Scan();
    EXPECT_EQ(InterfaceState(), wlan_interface_state_disconnected);
}

TEST_F(Connected, StaysWhenTheAccessPointIsHeardAgain)
{
    for (int round = 0; round < 3; ++round)
    {
        const std::vector<AccessPoint> air = computer->air();
        computer->air().clear();
        computer->Advance(seconds(62));
        computer->air() = air;
        computer->Advance(seconds(60));
        EXPECT_EQ(InterfaceState(), wlan_interface_state_connected);
    }
}

TEST_F(Connected, SignalStrengthIsHeardAllTheTime)
{
    EXPECT_EQ(Query<std::int32_t>(wlan_intf_opcode_rssi), -70);
    computer->air()[1].rssi = -55;
    EXPECT_EQ(Query<std::int32_t>(wlan_intf_opcode_rssi), -55);
    EXPECT_EQ(Connection().value().wlanAssociationAttributes.wlanSignalQuality, 90u);
    computer->air().clear();
    EXPECT_EQ(Query<std::int32_t>(wlan_intf_opcode_rssi), -70) << "as when it was heard last";
}

TEST_F(Connected, StatesInPassingAreReportedAsDriversReportThem)
{
    computer->SetInterfaceState(0, wlan_interface_state_authenticating);
    EXPECT_EQ(InterfaceState(), wlan_interface_state_authenticating);
    EXPECT_EQ(Connection().value().isState, wlan_interface_state_authenticating);
    computer->SetInterfaceState(0, wlan_interface_state_disconnected);
    EXPECT_EQ(ErrorOf(wlan_intf_opcode_current_connection), ERROR_INVALID_STATE);
}

} // namespace calvix::simulation::connection_test
