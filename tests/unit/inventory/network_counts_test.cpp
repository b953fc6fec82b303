#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/inventory/trace_texts.h"

#include <algorithm>
#include <cwchar>

namespace calvix::test::network_counts_test
{

using ::testing::ElementsAre;

namespace
{

class NetworkCountsTest : public LibraryTest
{
};

long long CountNetworks(CWirelessManage& manager)
{
    return manager.GetAvailableNetworkCount(&kAdapterA);
}

long long CountBss(CWirelessManage& manager)
{
    return manager.GetNetworkBssCount();
}

long long CountConnectable(CWirelessManage& manager)
{
    return manager.GetConnectableNetworkCount(&kAdapterA);
}

void UseNoAdapter(LibraryTest& test)
{
    test.UseWorld(NoAdapterWorld());
}

void UseNoProfile(LibraryTest& test)
{
    test.UseWorld(NoProfileWorld());
}

void UseSilence(LibraryTest& test)
{
    test.UseWorld(SilentWorld());
}

template <typename Record>
void Name(Record& record, const wchar_t* profile)
{
    std::copy_n(profile, std::wcslen(profile) + 1, record.strProfileName);
}

/// Profile names of the entries from the first on; the other entries get none.
std::function<void(WLAN_AVAILABLE_NETWORK_LIST&)> NameNetworks(std::vector<const wchar_t*> names)
{
    return [names](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        ASSERT_LE(names.size(), list.dwNumberOfItems);
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
            Name(list.Network[i], i < names.size() ? names[i] : L"");
    };
}

/// A profile list that is cut to these names.
std::function<void(WLAN_PROFILE_INFO_LIST&)> NameProfiles(std::vector<const wchar_t*> names)
{
    return [names](WLAN_PROFILE_INFO_LIST& list)
    {
        ASSERT_LE(names.size(), list.dwNumberOfItems);
        list.dwNumberOfItems = static_cast<DWORD>(names.size());
        for (std::size_t i = 0; i < names.size(); ++i)
            Name(list.ProfileInfo[i], names[i]);
    };
}

} // namespace

// --- Available networks ---

TEST_F(NetworkCountsTest, CountsTheAvailableNetworksUnfiltered)
{
    // HomeNet, OfficeNet, AdHocNet, HomeNet5G, CafeNet, and the hidden one without a name.
    EXPECT_EQ(6, manager().GetAvailableNetworkCount(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre("WlanGetAvailableNetworkList(client=1, interface=" +
                                             std::string(kAdapterAText) + ", flags=0, reserved=null, list=non-null)",
                                         kRelease));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(NetworkCountsTest, CountsANetworkOnceForEachMatchingProfile)
{
    simulation::Scenario world = RichWorld();
    simulation::ProfileSettings again;
    again.name = "HomeNet again";
    again.ssid = {'H', 'o', 'm', 'e', 'N', 'e', 't'};
    again.key = "HomeNet key";
    world.adapters[0].profiles.push_back({simulation::MakeProfileXml(again)});
    UseWorld(world);
    EXPECT_EQ(7, manager().GetAvailableNetworkCount(&kAdapterA));
}

TEST_F(NetworkCountsTest, AnEmptyAirspaceIsNotAFailure)
{
    UseWorld(SilentWorld());
    EXPECT_EQ(0, manager().GetAvailableNetworkCount(&kAdapterA));
    EXPECT_EQ(0, manager().GetNetworkBssCount());
    EXPECT_TRUE(traced().empty());
}

// --- BSS entries ---

TEST_F(NetworkCountsTest, CountsEveryBssOfEveryNetworkOnTheFirstAdapter)
{
    EXPECT_EQ(8, manager().GetNetworkBssCount());
    EXPECT_THAT(callLines(),
                ElementsAre("WlanEnumInterfaces(client=1, reserved=null, list=non-null)",
                            "WlanGetNetworkBssList(client=1, interface=" + std::string(kAdapterAText) +
                                ", ssid=null, bssType=any, securityEnabled=false, reserved=null, list=non-null)",
                            kRelease, kRelease));
    EXPECT_TRUE(traced().empty());
}

// --- Networks with a stored profile ---

TEST_F(NetworkCountsTest, CountsVisibleNetworksWithAStoredProfile)
{
    // HomeNet, OfficeNet and AdHocNet; HiddenNet is listed without its name, and GoneNet is not on the air.
    EXPECT_EQ(3, manager().GetConnectableNetworkCount(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre("WlanGetProfileList(client=1, interface=" + std::string(kAdapterAText) +
                                             ", reserved=null, list=non-null)",
                                         "WlanGetAvailableNetworkList(client=1, interface=" +
                                             std::string(kAdapterAText) + ", flags=0, reserved=null, list=non-null)",
                                         kRelease, kRelease));
    EXPECT_TRUE(traced().empty());

    EXPECT_EQ(1, manager().GetConnectableNetworkCount(&kAdapterB)) << "CafeNet, which adapter B alone has a profile of";
}

TEST_F(NetworkCountsTest, CountsAProfileNameOnceForEachOfItsEntries)
{
    const EditedAnswers altered({.networks = NameNetworks({L"Twin", L"Other", L"Twin", L"", L"Twin"}),
                                 .profiles = NameProfiles({L"Twin", L"Elsewhere"})});
    EXPECT_EQ(3, manager().GetConnectableNetworkCount(&kAdapterA));
}

TEST_F(NetworkCountsTest, CountsEveryPairOfEqualNames)
{
    const EditedAnswers altered({.networks = NameNetworks({L"Twin", L"Twin", L"Other"}),
                                 .profiles = NameProfiles({L"Twin", L"Other", L"Twin"})});
    EXPECT_EQ(5, manager().GetConnectableNetworkCount(&kAdapterA));
}

TEST_F(NetworkCountsTest, ComparesProfileNamesExactly)
{
    const EditedAnswers altered({.networks = NameNetworks({L"homenet", L"HomeNe", L"HomeNet ", L"HomeNet"}),
                                 .profiles = NameProfiles({L"HomeNet"})});
    EXPECT_EQ(1, manager().GetConnectableNetworkCount(&kAdapterA));
}

TEST_F(NetworkCountsTest, NeitherSsidNorConnectableFlagDecides)
{
    const auto strange = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
        {
            Name(list.Network[i], L"HomeNet");
            list.Network[i].bNetworkConnectable = FALSE;
        }
    };
    const EditedAnswers altered({.networks = strange});
    EXPECT_EQ(6, manager().GetConnectableNetworkCount(&kAdapterA));
}

TEST_F(NetworkCountsTest, NoMatchIsNotAFailure)
{
    const EditedAnswers altered({.networks = NameNetworks({})});
    EXPECT_EQ(0, manager().GetConnectableNetworkCount(&kAdapterA));
    EXPECT_TRUE(traced().empty());
}

// --- Failures ---

TEST_F(NetworkCountsTest, EveryWayToFail)
{
    const auto local = TraceBuffer::local;
    CheckFailures(
        *this, {
                   {"GetAvailableNetworkCount", CountNetworks, "WlanOpenHandle", -2, {kOpenFailed}},
                   {"GetAvailableNetworkCount", CountNetworks, "WlanGetAvailableNetworkList", -5, {kNetworksFailed}},
                   {"GetNetworkBssCount", CountBss, "WlanOpenHandle", -2, {kOpenFailed}, local},
                   {"GetNetworkBssCount", CountBss, "WlanEnumInterfaces", -3, {kEnumFailed}, local},
                   {.method = "GetNetworkBssCount",
                    .call = CountBss,
                    .expected = -4,
                    .traced = {kNoAdapterText},
                    .buffer = local,
                    .prepare = UseNoAdapter},
                   {"GetNetworkBssCount", CountBss, "WlanGetNetworkBssList", -5, {kBssFailed}, local},
                   {"GetConnectableNetworkCount", CountConnectable, "WlanOpenHandle", -2, {kOpenFailed}, local},
                   {"GetConnectableNetworkCount", CountConnectable, "WlanGetProfileList", -5, {kProfilesFailed}, local},
                   {"GetConnectableNetworkCount",
                    CountConnectable,
                    "WlanGetAvailableNetworkList",
                    -7,
                    {kNetworksFailed},
                    local},
               });
}

// Deliberate: the number in these two lines is the method's own code, printed as an unsigned number.
TEST_F(NetworkCountsTest, EmptyListsAreTracedWithTheirCode)
{
    CheckFailures(*this, {
                             {.method = "GetConnectableNetworkCount without profiles",
                              .call = CountConnectable,
                              .expected = -6,
                              .traced = {"No network profile: 4294967290"},
                              .buffer = TraceBuffer::local,
                              .prepare = UseNoProfile},
                             {.method = "GetConnectableNetworkCount in silence",
                              .call = CountConnectable,
                              .expected = -8,
                              .traced = {"No available network: 4294967288"},
                              .buffer = TraceBuffer::local,
                              .prepare = UseSilence},
                         });
}

TEST_F(NetworkCountsTest, WithoutProfilesTheNetworksAreNotAskedFor)
{
    UseWorld(NoProfileWorld());
    EXPECT_EQ(-6, manager().GetConnectableNetworkCount(&kAdapterA));
    EXPECT_THAT(calls(), ElementsAre("WlanGetProfileList", "WlanFreeMemory"));
}

TEST_F(NetworkCountsTest, OnlyTheFirstAdapterCountsForBss)
{
    computer().SetRadio(0, 0, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    computer().SetRadio(0, 1, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    computer().SetRadio(0, 2, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    EXPECT_EQ(-5, manager().GetNetworkBssCount()) << "adapter B could still be asked";
    EXPECT_THAT(traced(), ElementsAre("WlanGetNetworkBssList failed with error: 2150899714"));
}

TEST_F(NetworkCountsTest, ANullInterfaceIsTheServicesToRefuse)
{
    EXPECT_EQ(-5, manager().GetAvailableNetworkCount(nullptr));
    EXPECT_EQ(-5, manager().GetConnectableNetworkCount(nullptr));
    EXPECT_THAT(traced(), ElementsAre("WlanGetAvailableNetworkList failed with error: 87",
                                      "WlanGetProfileList failed with error: 87"));
}

} // namespace calvix::test::network_counts_test
