#include "service_fixture.h"

#include <algorithm>

namespace calvix::simulation::bss_list_test
{

using std::chrono::seconds;

class BssList : public ServiceTest
{
protected:
    /// The information elements of each entry, read where the entries say they are.
    std::vector<Bytes> ListElements()
    {
        WLAN_BSS_LIST* list = nullptr;
        EXPECT_EQ(Wlan().WlanGetNetworkBssList(client, &first, nullptr, dot11_BSS_type_any, FALSE, nullptr, &list),
                  ERROR_SUCCESS);
        std::vector<Bytes> all;
        const auto* const end = reinterpret_cast<const std::uint8_t*>(list) + list->dwTotalSize;
        for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
        {
            const WLAN_BSS_ENTRY& entry = list->wlanBssEntries[index];
            const auto* const begin = reinterpret_cast<const std::uint8_t*>(&entry) + entry.ulIeOffset;
            EXPECT_LE(begin + entry.ulIeSize, end);
            all.emplace_back(begin, begin + entry.ulIeSize);
        }
        Wlan().WlanFreeMemory(list);
        return all;
    }
};

TEST_F(BssList, AnEntryDescribesItsAccessPoint)
{
    AccessPoint& point = scenario.accessPoints[1];
    point.frequencyKhz = 5180000;
    point.phyType = 8;
    point.beaconPeriod = 200;
    Start();
    const auto stations = ListStations();
    ASSERT_EQ(stations.size(), 2u);
    const WLAN_BSS_ENTRY& entry = stations[1];
    EXPECT_EQ(TextOf(entry.dot11Ssid), "HomeNet");
    EXPECT_EQ(entry.uPhyId, 1u);
    EXPECT_TRUE(std::equal(point.bssid.begin(), point.bssid.end(), entry.dot11Bssid));
    EXPECT_EQ(entry.dot11BssType, dot11_BSS_type_infrastructure);
    EXPECT_EQ(entry.dot11BssPhyType, dot11_phy_type_vht);
    EXPECT_EQ(entry.lRssi, -70);
    EXPECT_EQ(entry.uLinkQuality, 60u);
    EXPECT_TRUE(entry.bInRegDomain);
    EXPECT_EQ(entry.usBeaconPeriod, 200);
    EXPECT_EQ(entry.ulChCenterFrequency, 5180000u);
    EXPECT_EQ(entry.usCapabilityInformation, 0x11) << "ESS and privacy";
    EXPECT_EQ(entry.wlanRateSet.uRateSetLength, 8u * sizeof(USHORT));
    EXPECT_EQ(entry.wlanRateSet.usRateSet[0], 0x8000 | 12);
}

TEST_F(BssList, EntriesCarryTheTimeOfTheirScan)
{
    constexpr std::uint64_t kJanuary2026 = 134'116'992'000'000'000; // in units of 100 ns since 1601
    Start();
    EXPECT_EQ(ListStations().at(0).ullHostTimestamp, kJanuary2026);
    computer->Advance(seconds(5));
    Scan(seconds(10));
    EXPECT_EQ(ListStations().at(0).ullHostTimestamp, kJanuary2026 + 70'000'000);
    EXPECT_EQ(ListStations().at(0).ullTimestamp, 7'000'000u);
}

TEST_F(BssList, TheFiltersNarrowIt)
{
    scenario.accessPoints.push_back(MakeOpenPoint("HomeNet", 3, -60));
    scenario.accessPoints.push_back(MakeAccessPoint("HomeNet", 4, -60));
    scenario.accessPoints.back().bssType = 2;
    scenario.accessPoints.push_back(MakeAccessPoint("Other", 5, -60));
    Start();
    const DOT11_SSID home = SsidOf("HomeNet");
    const DOT11_SSID prefix = SsidOf("Home");
    EXPECT_EQ(ListStations().size(), 5u);
    EXPECT_EQ(ListStations(nullptr, dot11_BSS_type_independent, true).size(), 5u) << "no SSID: the rest is ignored";
    EXPECT_EQ(ListStations(&home, dot11_BSS_type_infrastructure, true).size(), 2u);
    EXPECT_EQ(ListStations(&home, dot11_BSS_type_infrastructure, false).size(), 1u);
    EXPECT_EQ(ListStations(&home, dot11_BSS_type_independent, true).size(), 1u);
    EXPECT_EQ(ListStations(&home, dot11_BSS_type_any, true).size(), 0u) << "an SSID with any type finds nothing";
    EXPECT_EQ(ListStations(&prefix, dot11_BSS_type_infrastructure, true).size(), 0u);
}

TEST_F(BssList, RefusesAnSsidThatIsTooLong)
{
    Start();
    DOT11_SSID ssid{};
    ssid.uSSIDLength = 33;
    WLAN_BSS_LIST* list = nullptr;
    EXPECT_EQ(Wlan().WlanGetNetworkBssList(client, &first, &ssid, dot11_BSS_type_infrastructure, TRUE, nullptr, &list),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(list, nullptr);
}

TEST_F(BssList, AHiddenNetworkShowsItsSsidOnlyWhileConnected)
{
    scenario.accessPoints = {MakeAccessPoint("Secret", 9, -60)};
    scenario.accessPoints[0].hidden = true;
    ProfileSettings settings = MakeSettings("Secret", "Secret");
    settings.hidden = true;
    scenario.adapters[0].profiles = {{MakeProfileXml(settings)}};
    Start();
    EXPECT_EQ(ListStations().at(0).dot11Ssid.uSSIDLength, 0u);
    ASSERT_EQ(Connect(L"Secret"), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    EXPECT_EQ(TextOf(ListStations().at(0).dot11Ssid), "Secret");
}

TEST_F(BssList, InformationElementsAreTheScenarios)
{
    scenario.accessPoints[0].informationElements = {0, 1, 'x'};
    scenario.accessPoints[1].informationElements = Bytes(3000, 0xdd);
    Start();
    const auto elements = ListElements();
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[0], (Bytes{0, 1, 'x'}));
    EXPECT_EQ(elements[1], Bytes(2324, 0xdd)) << "no more than the service passes on";
}

TEST_F(BssList, InformationElementsAreMadeUpWhereTheScenarioHasNone)
{
    scenario.accessPoints = {MakeAccessPoint("AB", 1, -50)};
    scenario.accessPoints[0].frequencyKhz = 2437000;
    Start();
    const Bytes expected = {0,    2,    'A',  'B',                                    // SSID
                            1,    8,    0x82, 0x84, 0x8b, 0x96, 12,   18,   24,   36, // rates
                            50,   4,    48,   72,   96,   108,                        // and the rest of them
                            3,    1,    6,                                            // channel
                            48,   20,   1,    0,    0x00, 0x0f, 0xac, 4,    1,    0,  // RSN
                            0x00, 0x0f, 0xac, 4,    1,    0,    0x00, 0x0f, 0xac, 2,  0, 0};
    EXPECT_EQ(ListElements(), std::vector<Bytes>{expected});
}

TEST_F(BssList, MadeUpElementsOfAnOpenHiddenNetworkAt5GHz)
{
    scenario.accessPoints = {MakeOpenPoint("AB", 1, -50)};
    scenario.accessPoints[0].hidden = true;
    scenario.accessPoints[0].frequencyKhz = 5180000;
    Start();
    const Bytes expected = {0, 0, 1, 8, 0x8c, 18, 0x98, 36, 0xb0, 72, 96, 108};
    EXPECT_EQ(ListElements(), std::vector<Bytes>{expected});
}

} // namespace calvix::simulation::bss_list_test
