#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace calvix::test::ap_lists_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using Entries = std::vector<WLAN_BSS_ENTRY>;
using Names = std::vector<std::wstring>;

/// A container as a caller reuses it.
template <typename Container>
Container Used()
{
    return Container(3);
}

std::vector<simulation::MacAddress> AddressesOf(const Entries& entries)
{
    std::vector<simulation::MacAddress> addresses(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i)
        std::copy_n(entries[i].dot11Bssid, 6, addresses[i].begin());
    return addresses;
}

class ApListsTest : public LibraryTest
{
public:
    Entries MatchingEntries()
    {
        Entries list = Used<Entries>();
        const int count = manager().GetMatchAPList(&kAdapterA, &list);
        EXPECT_EQ(static_cast<int>(list.size()), count);
        return list;
    }

    Entries ConnectableEntries(std::wstring name)
    {
        const std::wstring before = name;
        Entries list = Used<Entries>();
        const int count = manager().GetConnectableAPList(&kAdapterA, name.data(), &list);
        EXPECT_EQ(static_cast<int>(list.size()), count);
        EXPECT_EQ(before, name) << "the name is only read";
        return list;
    }

    Names MatchingNames(int mode)
    {
        Names names = Used<Names>();
        const int count = manager().GetMatchAPCount(&kAdapterA, &names, mode);
        EXPECT_EQ(static_cast<int>(names.size()), count);
        return names;
    }

    Names MatchingNames(const wchar_t* name, int mode)
    {
        Names names = Used<Names>();
        const int count = manager().GetMatchAPCount(&kAdapterA, &names, name, mode);
        EXPECT_EQ(static_cast<int>(names.size()), count);
        return names;
    }

    /// SSIDs of the BSS queries, in order.
    std::vector<std::string> QueriedNetworks() const
    {
        std::vector<std::string> ssids;
        for (std::size_t number = 1; number <= callCount("WlanGetNetworkBssList"); ++number)
            ssids.emplace_back(call("WlanGetNetworkBssList", number)["ssid"]);
        return ssids;
    }

    /// Profiles whose mode was asked for, in order.
    std::vector<std::string> ReadProfiles() const
    {
        std::vector<std::string> names;
        for (std::size_t number = 1; number <= callCount("WlanGetProfile"); ++number)
            names.emplace_back(call("WlanGetProfile", number)["name"]);
        return names;
    }
};

} // namespace

TEST_F(ApListsTest, ANullNameIsRefusedOnceTheContainerIsEmptied)
{
    ForgetClient();
    EXPECT_EQ(-13, manager().GetConnectableAPList(&kAdapterA, nullptr, nullptr));
    EXPECT_EQ(-13, manager().GetConnectableAPList(nullptr, nullptr));
    Entries list = Used<Entries>();
    EXPECT_EQ(-14, manager().GetConnectableAPList(&kAdapterA, nullptr, &list));
    EXPECT_THAT(list, IsEmpty());
    list = Used<Entries>();
    EXPECT_EQ(-14, manager().GetConnectableAPList(nullptr, &list));
    EXPECT_THAT(list, IsEmpty());
    EXPECT_TRUE(calls().empty());
    EXPECT_TRUE(traced().empty());
}

// --- GetMatchAPList ---------------------------------------------------------------------------------------------

TEST_F(ApListsTest, EveryMatchingNetworkIsAskedForInProfileOrder)
{
    EXPECT_THAT(AddressesOf(MatchingEntries()), ElementsAre(kHomeNet24, kHomeNet5, kHomeNet6, kOfficeNet, kAdHocNet));
    EXPECT_THAT(callLines(), ElementsAre(ProfilesLine(), NetworksLine(), NetworkBssLine("HomeNet"), kRelease,
                                         NetworkBssLine("OfficeNet"), kRelease,
                                         NetworkBssLine("AdHocNet", "independent"), kRelease, kRelease, kRelease));
    ExpectSilence();
}

TEST_F(ApListsTest, EntriesAreCopiedWhole)
{
    const Entries entries = MatchingEntries();
    const DOT11_SSID ssid = MakeSsid("HomeNet");
    WLAN_BSS_LIST* own = nullptr;
    ASSERT_EQ(0u, computer().wlan().WlanGetNetworkBssList(ManagerInternals::Client(), &kAdapterA, &ssid,
                                                          dot11_BSS_type_infrastructure, TRUE, nullptr, &own));
    EXPECT_EQ(3u, own->dwNumberOfItems);
    EXPECT_EQ(0, std::memcmp(own->wlanBssEntries, entries.data(), 3 * sizeof(WLAN_BSS_ENTRY)));
    computer().wlan().WlanFreeMemory(own);
}

TEST_F(ApListsTest, AProfileMayMatchSeveralNetworks)
{
    EditedAnswers edited;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
            std::copy_n(L"HomeNet", 8, (list.Network + i)->strProfileName);
    };
    EXPECT_THAT(MatchingNames(1), ElementsAre(L"HomeNet", L"HomeNet", L"HomeNet", L"HomeNet", L"HomeNet", L"HomeNet"));
    EXPECT_EQ(6u, callCount("WlanGetProfile")) << "the profile is asked about for each pair";
    EXPECT_THAT(QueriedNetworks(), ElementsAre("\"HomeNet\"/7", "\"OfficeNet\"/9", "\"\"/0", "\"AdHocNet\"/8",
                                               "\"HomeNet5G\"/9", "\"CafeNet\"/7"));
}

TEST_F(ApListsTest, NothingMatchedIsASuccess)
{
    UseScenario(ScenarioOf({Profile("GoneNet")}, {Heard("Net", 2412000, -50)}));
    EXPECT_THAT(MatchingEntries(), IsEmpty());
    EXPECT_THAT(MatchingNames(1), IsEmpty());
    EXPECT_EQ(0u, callCount("WlanGetProfile"));
    EXPECT_EQ(0u, callCount("WlanGetNetworkBssList"));
    EXPECT_TRUE(traced().empty());
}

// --- GetConnectableAPList ---------------------------------------------------------------------------------------

TEST_F(ApListsTest, AutomaticProfilesAndTheNamedOneAreConnectable)
{
    EXPECT_THAT(AddressesOf(ConnectableEntries(L"OfficeNet")),
                ElementsAre(kHomeNet24, kHomeNet5, kHomeNet6, kOfficeNet));
    EXPECT_THAT(ReadProfiles(), ElementsAre("\"HomeNet\"", "\"AdHocNet\"")) << "the named one is not asked about";
    EXPECT_THAT(QueriedNetworks(), ElementsAre("\"HomeNet\"/7", "\"OfficeNet\"/9"));
    EXPECT_TRUE(traced().empty());
}

// --- GetMatchAPCount --------------------------------------------------------------------------------------------

TEST_F(ApListsTest, OnlyModeOneAsksForAutomaticProfiles)
{
    EXPECT_THAT(MatchingNames(1), ElementsAre(L"HomeNet"));
    EXPECT_THAT(ReadProfiles(), ElementsAre("\"HomeNet\"", "\"OfficeNet\"", "\"AdHocNet\""));
    EXPECT_THAT(QueriedNetworks(), ElementsAre("\"HomeNet\"/7"));
    for (const int mode : {0, 2, -1, 257})
    {
        EXPECT_EQ(3u, MatchingNames(mode).size()) << mode;
        EXPECT_EQ(3u, MatchingNames(L"HomeNet", mode).size()) << mode;
    }
}

TEST_F(ApListsTest, InModeOneAProfileThatCannotBeReadDoesNotCount)
{
    FailOn("WlanGetProfile", 5, 1, 1);
    EXPECT_THAT(MatchingNames(1), IsEmpty());
    EXPECT_THAT(traced(), ElementsAre("WlanGetProfile failed with error: 5"));
}

TEST_F(ApListsTest, ANetworkWithoutAccessPointsIsTracedAndNotCounted)
{
    EditedAnswers edited;
    edited.service.bss = [number = 0u](WLAN_BSS_LIST& list) mutable
    {
        if (++number == 2)
            list.dwNumberOfItems = 0;
    };
    EXPECT_THAT(MatchingNames(0), ElementsAre(L"HomeNet", L"AdHocNet"));
    EXPECT_THAT(traced(), ElementsAre("No BSS: -10"));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ApListsTest, AnEmptyListAddsNoEntriesWithoutATrace)
{
    EditedAnswers edited;
    edited.service.bss = [](WLAN_BSS_LIST& list) { list.dwNumberOfItems = 0; };
    EXPECT_THAT(MatchingEntries(), IsEmpty());
    EXPECT_THAT(ConnectableEntries(L"HomeNet"), IsEmpty());
    EXPECT_TRUE(traced().empty());
}

} // namespace calvix::test::ap_lists_test
