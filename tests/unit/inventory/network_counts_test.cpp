#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/call_lines.h"

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
    EXPECT_THAT(callLines(), ElementsAre(NetworksLine(), kRelease));
    ExpectSilence();
}

TEST_F(NetworkCountsTest, CountsANetworkOnceForEachMatchingProfile)
{
    simulation::Scenario scenario = RichScenario();
    simulation::ProfileSettings again;
    again.name = "HomeNet again";
    again.ssid = {'H', 'o', 'm', 'e', 'N', 'e', 't'};
    again.key = "HomeNet key";
    scenario.adapters[0].profiles.push_back({simulation::MakeProfileXml(again)});
    UseScenario(scenario);
    EXPECT_EQ(7, manager().GetAvailableNetworkCount(&kAdapterA));
}

TEST_F(NetworkCountsTest, AnEmptyAirspaceIsNotAFailure)
{
    UseScenario(SilentScenario());
    EXPECT_EQ(0, manager().GetAvailableNetworkCount(&kAdapterA));
    EXPECT_EQ(0, manager().GetNetworkBssCount());
    EXPECT_TRUE(traced().empty());
}

// --- BSS entries ---

TEST_F(NetworkCountsTest, CountsEveryBssOfEveryNetworkOnTheFirstAdapter)
{
    EXPECT_EQ(8, manager().GetNetworkBssCount());
    EXPECT_THAT(callLines(), ElementsAre(InterfacesLine(), EveryBssLine(), kRelease, kRelease));
    EXPECT_TRUE(traced().empty());
}

// --- Networks with a stored profile ---

TEST_F(NetworkCountsTest, CountsVisibleNetworksWithAStoredProfile)
{
    // HomeNet, OfficeNet and AdHocNet; HiddenNet is listed without its name, and GoneNet is not on the air.
    EXPECT_EQ(3, manager().GetConnectableNetworkCount(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(ProfilesLine(), NetworksLine(), kRelease, kRelease));
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

TEST_F(NetworkCountsTest, OnlyTheFirstAdapterCountsForBss)
{
    computer().SetRadio(0, 0, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    computer().SetRadio(0, 1, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    computer().SetRadio(0, 2, simulation::RadioSwitch::off, simulation::RadioSwitch::on);
    EXPECT_EQ(-5, manager().GetNetworkBssCount()) << "adapter B could still be asked";
    EXPECT_THAT(traced(), ElementsAre("WlanGetNetworkBssList failed with error: 2150899714"));
}

} // namespace calvix::test::network_counts_test
