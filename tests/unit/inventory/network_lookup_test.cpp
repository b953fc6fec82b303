#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"
#include "unit/inventory/trace_texts.h"

#include <cstring>

namespace calvix::test::network_lookup_test
{

using ::testing::ElementsAre;

namespace
{

constexpr unsigned long kInfrastructure = 1;
constexpr unsigned long kIndependent = 2;

class NetworkLookupTest : public LibraryTest
{
public:
    int Find(const std::string& ssid)
    {
        DOT11_SSID wanted = MakeSsid(ssid);
        return manager().GetAP(&kAdapterA, &wanted);
    }

    long Explain(const std::string& ssid, unsigned long bssType = kInfrastructure)
    {
        DOT11_SSID wanted = MakeSsid(ssid);
        return manager().GetNotConnectableReason(&kAdapterA, &wanted, bssType, m_connectable, m_reason);
    }

    bool OutputsUntouched() const { return m_connectable == 77 && m_reason == 78; }

    int m_connectable = 77;
    unsigned long m_reason = 78;
};

} // namespace

// --- GetAP ---

TEST_F(NetworkLookupTest, FindsAVisibleNetworkBySsid)
{
    EXPECT_EQ(0, Find("HomeNet"));
    EXPECT_THAT(callLines(), ElementsAre(NetworksLine(), kRelease));
    EXPECT_THAT(traced(), ElementsAre(kNetworksReleased));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(NetworkLookupTest, FindsNetworksOfEveryKind)
{
    EXPECT_EQ(0, Find("HomeNet5G")) << "no profile is needed";
    EXPECT_EQ(0, Find("AdHocNet"));
    EXPECT_EQ(0, Find("CafeNet")) << "the last entry of the list";
}

TEST_F(NetworkLookupTest, ComparesLengthAndBytesOfTheSsid)
{
    EXPECT_EQ(-4, Find("Home"));
    EXPECT_EQ(-4, Find("HomeNet5"));
    EXPECT_EQ(-4, Find("homenet"));
    EXPECT_EQ(-4, Find(std::string("HomeNet\0", 8))) << "a zero byte is a byte of the SSID";
    EXPECT_EQ(-4, Find("GoneNet"));
    EXPECT_EQ(-4, Find("HiddenNet")) << "its beacons do not contain the SSID";
}

// Deliberate: a hidden network is listed with an empty SSID, and is not to be taken for a match.
TEST_F(NetworkLookupTest, AnEmptySsidIsNeverFound)
{
    bool hasEmptySsid = false;
    const auto look = [&](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
            hasEmptySsid = hasEmptySsid || list.Network[i].dot11Ssid.uSSIDLength == 0;
    };
    const EditedAnswers altered({.networks = look});
    EXPECT_EQ(-4, Find(""));
    EXPECT_TRUE(hasEmptySsid);
    EXPECT_THAT(calls(), ElementsAre("WlanGetAvailableNetworkList", "WlanFreeMemory"));
}

TEST_F(NetworkLookupTest, AnSsidOf32BytesIsFoundAndALongerOneIsNot)
{
    const std::string longest(32, 'x');
    simulation::Scenario scenario = RichScenario();
    scenario.accessPoints.push_back(MakeAccessPoint(longest, {2, 0x77, 0, 0, 0, 1}, 2412000, -60));
    UseScenario(scenario);
    EXPECT_EQ(0, Find(longest));

    DOT11_SSID tooLong = MakeSsid(longest);
    tooLong.uSSIDLength = 4000;
    EXPECT_EQ(-4, manager().GetAP(&kAdapterA, &tooLong));
}

// --- GetNotConnectableReason ---

TEST_F(NetworkLookupTest, ReportsThatANetworkCanBeJoined)
{
    EXPECT_EQ(0, Explain("HomeNet"));
    EXPECT_EQ(1, m_connectable);
    EXPECT_EQ(0u, m_reason);
    EXPECT_THAT(callLines(), ElementsAre(NetworksLine(), kRelease));
    ExpectSilence();
}

TEST_F(NetworkLookupTest, ReportsTheServicesReason)
{
    const auto refuse = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
        {
            list.Network[i].bNetworkConnectable = FALSE;
            list.Network[i].wlanNotConnectableReason = 0x30000 + i;
        }
    };
    const EditedAnswers altered({.networks = refuse});
    EXPECT_EQ(0, Explain("OfficeNet"));
    EXPECT_EQ(0, m_connectable);
    EXPECT_EQ(0x30001u, m_reason) << "OfficeNet is the second network that was heard";
}

TEST_F(NetworkLookupTest, AnotherBssTypeIsAnotherNetwork)
{
    EXPECT_EQ(-6, Explain("HomeNet", kIndependent));
    EXPECT_TRUE(OutputsUntouched());
    EXPECT_EQ(-6, Explain("HomeNet", 3)) << "not even any type";
    EXPECT_TRUE(OutputsUntouched());
    EXPECT_EQ(0, Explain("AdHocNet", kIndependent));
    EXPECT_EQ(1, m_connectable);
}

TEST_F(NetworkLookupTest, TheBssTypeIsComparedAsANumber)
{
    constexpr unsigned long long sameInThirtyTwoBits = 0x100000000 + kInfrastructure;
    if constexpr (sizeof(unsigned long) > 4)
    {
        EXPECT_EQ(-6, Explain("HomeNet", static_cast<unsigned long>(sameInThirtyTwoBits)));
        EXPECT_TRUE(OutputsUntouched());
    }

    const EditedAnswers altered({.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
                                 { std::memset(&list.Network[0].dot11BssType, 0xFF, sizeof(DOT11_BSS_TYPE)); }});
    EXPECT_EQ(0, Explain("HomeNet", 0xFFFFFFFFUL));
}

TEST_F(NetworkLookupTest, AnotherSsidIsAnotherNetwork)
{
    for (const char* ssid : {"Home", "HomeNet5", "homenet", "GoneNet", "HiddenNet"})
    {
        EXPECT_EQ(-6, Explain(ssid)) << ssid;
        EXPECT_TRUE(OutputsUntouched()) << ssid;
    }
    EXPECT_TRUE(traced().empty()) << "not found is not traced";
}

TEST_F(NetworkLookupTest, TheFirstMatchingEntryCounts)
{
    const auto twins = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
        {
            list.Network[i].dot11Ssid = MakeSsid("Twin");
            list.Network[i].dot11BssType = i == 0 ? dot11_BSS_type_independent : dot11_BSS_type_infrastructure;
            list.Network[i].bNetworkConnectable = i == 1 ? TRUE : FALSE;
            list.Network[i].wlanNotConnectableReason = i;
        }
    };
    const EditedAnswers altered({.networks = twins});
    EXPECT_EQ(0, Explain("Twin"));
    EXPECT_EQ(1, m_connectable);
    EXPECT_EQ(1u, m_reason);
}

// Unlike GetAP, deliberately.
TEST_F(NetworkLookupTest, AnEmptySsidIsTheHiddenNetworks)
{
    EXPECT_EQ(0, Explain(""));
    EXPECT_FALSE(OutputsUntouched());
}

} // namespace calvix::test::network_lookup_test
