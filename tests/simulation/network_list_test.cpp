#include "service_fixture.h"

#include <algorithm>

namespace calvix::simulation::network_list_test
{

class NetworkList : public ServiceTest
{
protected:
    AdapterDescription& Adapter() { return scenario.adapters[0]; }

    void AddProfile(ProfileSettings settings) { Adapter().profiles.push_back({MakeProfileXml(settings)}); }
};

TEST_F(NetworkList, AnEntryDescribesItsWholeNetwork)
{
    scenario.accessPoints[1].phyType = 10;
    Start();
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 1u);
    const WLAN_AVAILABLE_NETWORK& home = networks[0];
    EXPECT_STREQ(home.strProfileName, L"HomeNet");
    EXPECT_EQ(TextOf(home.dot11Ssid), "HomeNet");
    EXPECT_EQ(home.dot11BssType, dot11_BSS_type_infrastructure);
    EXPECT_EQ(home.uNumberOfBssids, 2u);
    EXPECT_TRUE(home.bNetworkConnectable);
    EXPECT_EQ(home.wlanNotConnectableReason, WLAN_REASON_CODE_SUCCESS);
    EXPECT_EQ(home.uNumberOfPhyTypes, 2u);
    EXPECT_EQ(home.dot11PhyTypes[0], dot11_phy_type_ht);
    EXPECT_EQ(home.dot11PhyTypes[1], dot11_phy_type_he);
    EXPECT_FALSE(home.bMorePhyTypes);
    EXPECT_EQ(home.wlanSignalQuality, 100u) << "the strongest counts";
    EXPECT_TRUE(home.bSecurityEnabled);
    EXPECT_EQ(home.dot11DefaultAuthAlgorithm, DOT11_AUTH_ALGO_RSNA_PSK);
    EXPECT_EQ(home.dot11DefaultCipherAlgorithm, DOT11_CIPHER_ALGO_CCMP);
    EXPECT_EQ(home.dwFlags, WLAN_AVAILABLE_NETWORK_HAS_PROFILE);
}

TEST_F(NetworkList, IsEmptyWhenNothingIsHeard)
{
    scenario.accessPoints.clear();
    Start();
    EXPECT_TRUE(ListNetworks().empty());
}

TEST_F(NetworkList, SsidTypeAndSecurityMakeANetwork)
{
    Adapter().profiles.clear();
    for (const auto& [authentication, encryption] :
         {std::pair{"WPA3SAE", "AES"}, std::pair{"WPA2PSK", "TKIP"}, std::pair{"open", "none"}})
    {
        scenario.accessPoints.push_back(MakeAccessPoint("HomeNet", 9, -60));
        scenario.accessPoints.back().authentication = authentication;
        scenario.accessPoints.back().encryption = encryption;
    }
    scenario.accessPoints.push_back(MakeAccessPoint("HomeNet", 9, -60));
    scenario.accessPoints.back().bssType = 2;
    Start();
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 5u);
    EXPECT_EQ(networks[1].dot11DefaultAuthAlgorithm, DOT11_AUTH_ALGO_WPA3_SAE);
    EXPECT_EQ(networks[2].dot11DefaultCipherAlgorithm, DOT11_CIPHER_ALGO_TKIP);
    EXPECT_FALSE(networks[3].bSecurityEnabled);
    EXPECT_EQ(networks[4].dot11BssType, dot11_BSS_type_independent);
}

TEST_F(NetworkList, ThereIsAnEntryForEachFittingProfileInPreferenceOrder)
{
    AddProfile(MakeSettings("Other name", "HomeNet"));
    ProfileSettings unfit = MakeSettings("Unfit", "HomeNet");
    unfit.authentication = "WPA3SAE";
    AddProfile(unfit);
    Start();
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 2u);
    EXPECT_STREQ(networks[0].strProfileName, L"HomeNet");
    EXPECT_STREQ(networks[1].strProfileName, L"Other name");
}

TEST_F(NetworkList, ANetworkWithoutAProfileHasAnEmptyName)
{
    Adapter().profiles.clear();
    Start();
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 1u);
    EXPECT_STREQ(networks[0].strProfileName, L"");
    EXPECT_EQ(networks[0].dwFlags, 0u);
    EXPECT_TRUE(networks[0].bNetworkConnectable);
}

TEST_F(NetworkList, TheProfileInUseIsMarkedConnected)
{
    AddProfile(MakeSettings("Other name", "HomeNet"));
    Adapter().connection = simulation::Connection{"Other name", std::nullopt};
    Start();
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 2u);
    EXPECT_EQ(networks[0].dwFlags, WLAN_AVAILABLE_NETWORK_HAS_PROFILE);
    EXPECT_EQ(networks[1].dwFlags, WLAN_AVAILABLE_NETWORK_HAS_PROFILE | WLAN_AVAILABLE_NETWORK_CONNECTED);
}

TEST_F(NetworkList, SecurityThatTheAdapterCannotDoIsNotConnectable)
{
    scenario.accessPoints = {MakeAccessPoint("Odd", 1, -50)};
    scenario.accessPoints[0].authentication = "open";
    Start();
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 1u);
    EXPECT_FALSE(networks[0].bNetworkConnectable);
    EXPECT_EQ(networks[0].wlanNotConnectableReason, WLAN_REASON_CODE_UNSUPPORTED_SECURITY_SET);
}

TEST_F(NetworkList, QualityIsLinearBetweenMinus100AndMinus50)
{
    const struct
    {
        std::int32_t rssi;
        ULONG quality;
    } cases[] = {{-120, 0}, {-100, 0}, {-99, 2}, {-75, 50}, {-51, 98}, {-50, 100}, {-20, 100}};
    for (const auto& each : cases)
    {
        scenario.accessPoints = {MakeAccessPoint("HomeNet", 1, each.rssi)};
        Start();
        EXPECT_EQ(ListNetworks().at(0).wlanSignalQuality, each.quality) << each.rssi;
        EXPECT_EQ(ListStations().at(0).uLinkQuality, each.quality) << each.rssi;
    }
}

TEST_F(NetworkList, PhyTypesAreListedUpToEight)
{
    for (const std::uint32_t count : {1u, 8u, 9u, 11u})
    {
        SCOPED_TRACE(count);
        scenario.accessPoints.clear();
        for (std::uint8_t phy = 1; phy <= count; ++phy)
        {
            scenario.accessPoints.push_back(MakeAccessPoint("HomeNet", phy, -60));
            scenario.accessPoints.back().phyType = phy;
        }
        Start();
        const WLAN_AVAILABLE_NETWORK network = ListNetworks().at(0);
        EXPECT_EQ(network.uNumberOfBssids, count);
        EXPECT_EQ(network.uNumberOfPhyTypes, std::min(count, 8u));
        EXPECT_EQ(network.bMorePhyTypes, count > 8 ? TRUE : FALSE);
    }
}

class HiddenNetworks : public NetworkList
{
protected:
    HiddenNetworks()
    {
        scenario.accessPoints.push_back(MakeAccessPoint("Secret", 9, -75));
        scenario.accessPoints.back().hidden = true;
        hidden.hidden = true;
    }

    ProfileSettings hidden = MakeSettings("My secret", "Secret");
};

TEST_F(HiddenNetworks, AreListedWithoutSsid)
{
    AddProfile(hidden);
    Start();
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 2u);
    EXPECT_EQ(networks[1].dot11Ssid.uSSIDLength, 0u);
    EXPECT_STREQ(networks[1].strProfileName, L"");
    EXPECT_EQ(networks[1].wlanSignalQuality, 50u);
}

TEST_F(HiddenNetworks, AreListedByTheirProfileOnRequest)
{
    AddProfile(hidden);
    Start();
    const auto networks = ListNetworks(WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_MANUAL_HIDDEN_PROFILES);
    ASSERT_EQ(networks.size(), 2u);
    EXPECT_EQ(TextOf(networks[1].dot11Ssid), "Secret");
    EXPECT_STREQ(networks[1].strProfileName, L"My secret");
    EXPECT_EQ(networks[1].uNumberOfBssids, 1u);
    EXPECT_TRUE(networks[1].bNetworkConnectable);
}

TEST_F(HiddenNetworks, AreListedByTheirProfileOnRequestThoughNotHeard)
{
    scenario.accessPoints.pop_back();
    AddProfile(hidden);
    Start();
    EXPECT_EQ(ListNetworks().size(), 1u);
    const auto networks = ListNetworks(WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_MANUAL_HIDDEN_PROFILES);
    ASSERT_EQ(networks.size(), 2u);
    EXPECT_STREQ(networks[1].strProfileName, L"My secret");
    EXPECT_EQ(networks[1].uNumberOfBssids, 0u);
    EXPECT_EQ(networks[1].wlanSignalQuality, 0u);
    EXPECT_FALSE(networks[1].bNetworkConnectable);
    EXPECT_EQ(networks[1].wlanNotConnectableReason, WLAN_REASON_CODE_NOT_VISIBLE);
}

TEST_F(HiddenNetworks, KeepTheirSecretFromProfilesOfOpenlyNamedNetworks)
{
    hidden.hidden = false;
    AddProfile(hidden);
    Start();
    const auto networks = ListNetworks(WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_MANUAL_HIDDEN_PROFILES);
    ASSERT_EQ(networks.size(), 2u);
    EXPECT_EQ(networks[1].dot11Ssid.uSSIDLength, 0u);
}

TEST_F(NetworkList, AdHocProfilesAreListedOnRequestThoughNotHeard)
{
    ProfileSettings game = MakeSettings("Game", "Game");
    game.bssType = 2;
    game.mode = "manual";
    game.authentication = "open";
    game.encryption = "none";
    game.key.clear();
    AddProfile(game);
    Start();
    EXPECT_EQ(ListNetworks().size(), 1u);
    const auto networks = ListNetworks(WLAN_AVAILABLE_NETWORK_INCLUDE_ALL_ADHOC_PROFILES);
    ASSERT_EQ(networks.size(), 2u);
    EXPECT_STREQ(networks[1].strProfileName, L"Game");
    EXPECT_EQ(networks[1].dot11BssType, dot11_BSS_type_independent);
    EXPECT_TRUE(networks[1].bNetworkConnectable) << "it can be formed";
}

TEST_F(NetworkList, AnySsidIsGoodForANetwork)
{
    std::string allBytes;
    for (int byte = 0; byte < 32; ++byte)
        allBytes += static_cast<char>(byte * 8);
    scenario.accessPoints = {MakeAccessPoint(allBytes, 1, -50), MakeAccessPoint("\xff\xfe", 2, -50)};
    Start();
    const auto networks = ListNetworks();
    ASSERT_EQ(networks.size(), 2u);
    EXPECT_EQ(TextOf(networks[0].dot11Ssid), allBytes);
    EXPECT_EQ(TextOf(networks[1].dot11Ssid), "\xff\xfe");
}

} // namespace calvix::simulation::network_list_test
