#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/small_worlds.h"

#include <algorithm>
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

constexpr const char* kBssFailed = "WlanGetNetworkBssList failed with error: %u";

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

struct Method
{
    const char* name;
    std::function<long long(CWirelessManage&)> callExpectingNothing;
    bool enumerates = false;
};

/// All methods of the family, called so that they collect nothing.
std::vector<Method> Methods()
{
    const auto collect = []<typename Container>(Container container, auto call) -> long long
    {
        const int result = call(container);
        EXPECT_THAT(container, IsEmpty());
        return result;
    };
    return {
        {"GetMatchAPList", [=](CWirelessManage& m)
         { return collect(Used<Entries>(), [&](auto& list) { return m.GetMatchAPList(&kAdapterA, &list); }); }},
        {"GetConnectableAPList",
         [=](CWirelessManage& m)
         {
             wchar_t name[] = L"HomeNet";
             return collect(Used<Entries>(),
                            [&](auto& list) { return m.GetConnectableAPList(&kAdapterA, name, &list); });
         }},
        {"GetConnectableAPList(no GUID)",
         [=](CWirelessManage& m)
         {
             wchar_t name[] = L"HomeNet";
             return collect(Used<Entries>(), [&](auto& list) { return m.GetConnectableAPList(name, &list); });
         },
         true},
        {"GetMatchAPCount", [=](CWirelessManage& m)
         { return collect(Used<Names>(), [&](auto& names) { return m.GetMatchAPCount(&kAdapterA, &names, 0); }); }},
        {"GetMatchAPCount(name)",
         [=](CWirelessManage& m) {
             return collect(Used<Names>(),
                            [&](auto& names) { return m.GetMatchAPCount(&kAdapterA, &names, L"HomeNet", 1); });
         }},
    };
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

// --- What all have in common ------------------------------------------------------------------------------------

TEST_F(ApListsTest, FailuresOfTheLists)
{
    for (const Method& method : Methods())
    {
        const auto& call = method.callExpectingNothing;
        CheckFailures(
            *this,
            {{method.name, call, "WlanOpenHandle", -2, {"WlanOpenHandle failed with error: %u"}, TraceBuffer::local},
             {method.name,
              call,
              "WlanGetProfileList",
              -5,
              {"WlanGetProfileList failed with error: %u"},
              TraceBuffer::local},
             {method.name,
              call,
              "WlanGetAvailableNetworkList",
              -7,
              {"WlanGetAvailableNetworkList failed with error: %u"},
              TraceBuffer::local}});
        // The codes are traced as unsigned numbers.
        CheckFailures(*this, {{.method = method.name,
                               .call = call,
                               .expected = -6,
                               .traced = {"No network profile: 4294967290"},
                               .buffer = TraceBuffer::local,
                               .prepare = [](auto& test) { test.UseWorld(NoProfileWorld()); }},
                              {.method = method.name,
                               .call = call,
                               .expected = -8,
                               .traced = {"No available network: 4294967288"},
                               .buffer = TraceBuffer::local,
                               .prepare = [](auto& test) { test.UseWorld(SilentWorld()); }}});
    }
}

TEST_F(ApListsTest, FailuresOfTheInterfaceList)
{
    const Method method = Methods()[2];
    ASSERT_TRUE(method.enumerates);
    CheckFailures(*this, {{method.name,
                           method.callExpectingNothing,
                           "WlanEnumInterfaces",
                           -3,
                           {"WlanEnumInterfaces failed with error: %u"},
                           TraceBuffer::local},
                          {.method = method.name,
                           .call = method.callExpectingNothing,
                           .expected = -4,
                           .traced = {"No valid WLAN adapter: 4294967292"},
                           .buffer = TraceBuffer::local,
                           .prepare = [](auto& test) { test.UseWorld(NoAdapterWorld()); }}});
}

TEST_F(ApListsTest, FailingBssQueriesContributeNothing)
{
    const std::vector<std::size_t> matches = {3, 1, 1, 3, 1};
    const std::vector<Method> methods = Methods();
    for (std::size_t i = 0; i < methods.size(); ++i)
        CheckFailure(*this, {methods[i].name, methods[i].callExpectingNothing, "WlanGetNetworkBssList", 0,
                             std::vector<std::string>(matches[i], kBssFailed), TraceBuffer::local});
}

TEST_F(ApListsTest, AnUnknownInterfaceFailsWithItsFirstQuery)
{
    Entries list;
    EXPECT_EQ(-5, manager().GetMatchAPList(&kNoAdapter, &list));
    EXPECT_EQ(-5, manager().GetMatchAPList(nullptr, &list));
    EXPECT_THAT(traced(),
                ElementsAre("WlanGetProfileList failed with error: 87", "WlanGetProfileList failed with error: 87"));
}

TEST_F(ApListsTest, ANullContainerIsRefusedBeforeAnything)
{
    ForgetClient();
    wchar_t name[] = L"HomeNet";
    EXPECT_EQ(-13, manager().GetMatchAPList(&kAdapterA, nullptr));
    EXPECT_EQ(-13, manager().GetConnectableAPList(&kAdapterA, name, nullptr));
    EXPECT_EQ(-13, manager().GetConnectableAPList(&kAdapterA, nullptr, nullptr));
    EXPECT_EQ(-13, manager().GetConnectableAPList(name, nullptr));
    EXPECT_EQ(-13, manager().GetConnectableAPList(nullptr, nullptr));
    EXPECT_EQ(-13, manager().GetMatchAPCount(&kAdapterA, nullptr, 0));
    EXPECT_EQ(-13, manager().GetMatchAPCount(&kAdapterA, nullptr, L"HomeNet", 1));
    EXPECT_TRUE(calls().empty()) << "not even the client is opened";
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ApListsTest, ANullNameIsRefusedOnceTheContainerIsEmptied)
{
    ForgetClient();
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
    EXPECT_THAT(calls(), ElementsAre("WlanGetProfileList", "WlanGetAvailableNetworkList", "WlanGetNetworkBssList",
                                     "WlanFreeMemory", "WlanGetNetworkBssList", "WlanFreeMemory",
                                     "WlanGetNetworkBssList", "WlanFreeMemory", "WlanFreeMemory", "WlanFreeMemory"));
    const std::string start = std::string("(client=1, interface=") + kAdapterAText;
    EXPECT_EQ("WlanGetProfileList" + start + ", reserved=null, list=non-null)", callLines()[0]);
    EXPECT_EQ("WlanGetAvailableNetworkList" + start + ", flags=0, reserved=null, list=non-null)", callLines()[1]);
    EXPECT_EQ("WlanGetNetworkBssList" + start +
                  ", ssid=\"HomeNet\"/7, bssType=infrastructure, securityEnabled=true, reserved=null, list=non-null)",
              callLines()[2]);
    EXPECT_EQ("WlanGetNetworkBssList" + start +
                  ", ssid=\"AdHocNet\"/8, bssType=independent, securityEnabled=false, reserved=null, list=non-null)",
              callLines()[6]);
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ApListsTest, EntriesAreCopiedWhole)
{
    const Entries entries = MatchingEntries();
    const DOT11_SSID ssid = MakeSsid("HomeNet");
    WLAN_BSS_LIST* own = nullptr;
    ASSERT_EQ(0u, computer().wlan().WlanGetNetworkBssList(ManagerInternals::Client(), &kAdapterA, &ssid,
                                                          dot11_BSS_type_infrastructure, TRUE, nullptr, &own));
    ASSERT_EQ(3u, own->dwNumberOfItems);
    for (std::size_t i = 0; i < 3; ++i)
    {
        const WLAN_BSS_ENTRY& expected = *(own->wlanBssEntries + i);
        EXPECT_EQ(expected.dot11Ssid.uSSIDLength, entries[i].dot11Ssid.uSSIDLength);
        EXPECT_TRUE(std::equal(ssid.ucSSID, ssid.ucSSID + 32, entries[i].dot11Ssid.ucSSID));
        EXPECT_EQ(expected.uPhyId, entries[i].uPhyId);
        EXPECT_EQ(expected.dot11BssType, entries[i].dot11BssType);
        EXPECT_EQ(expected.dot11BssPhyType, entries[i].dot11BssPhyType);
        EXPECT_EQ(expected.lRssi, entries[i].lRssi);
        EXPECT_EQ(expected.uLinkQuality, entries[i].uLinkQuality);
        EXPECT_EQ(expected.bInRegDomain, entries[i].bInRegDomain);
        EXPECT_EQ(expected.usBeaconPeriod, entries[i].usBeaconPeriod);
        EXPECT_EQ(expected.ullTimestamp, entries[i].ullTimestamp);
        EXPECT_EQ(expected.ullHostTimestamp, entries[i].ullHostTimestamp);
        EXPECT_EQ(expected.usCapabilityInformation, entries[i].usCapabilityInformation);
        EXPECT_EQ(expected.ulChCenterFrequency, entries[i].ulChCenterFrequency);
        EXPECT_EQ(expected.wlanRateSet.uRateSetLength, entries[i].wlanRateSet.uRateSetLength);
        EXPECT_EQ(expected.ulIeOffset, entries[i].ulIeOffset);
        EXPECT_EQ(expected.ulIeSize, entries[i].ulIeSize);
    }
    computer().wlan().WlanFreeMemory(own);
}

TEST_F(ApListsTest, ProfilesOfOneNetworkBringItsEntriesOnceEach)
{
    UseWorld(WorldOf({ProfileFor("Second", "Net"), ProfileFor("First", "Net")},
                     {Heard("Net", 2412000, -50), Heard("Net", 5180000, -60)}));
    EXPECT_EQ(4u, MatchingEntries().size());
    EXPECT_THAT(MatchingNames(0), ElementsAre(L"Second", L"First"));
}

TEST_F(ApListsTest, NamesThatDifferInCaseAreDifferentProfiles)
{
    UseWorld(WorldOf({ProfileFor("net", "Net"), ProfileFor("NET", "Other", "manual")},
                     {Heard("Net", 2412000, -50), Heard("Other", 2437000, -50)}));
    EXPECT_THAT(MatchingNames(0), ElementsAre(L"net", L"NET"));
    EXPECT_THAT(MatchingNames(L"Net", 1), ElementsAre(L"net")) << "NET is manual and not the one named";
    EXPECT_EQ(2u, MatchingEntries().size());
}

// The name that the service tagged the network with pairs them, not the SSID.
TEST_F(ApListsTest, ANetworkIsMatchedByItsProfileName)
{
    EditedAnswers edited;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        for (DWORD i = 0; i < list.dwNumberOfItems; ++i)
            (list.Network + i)->strProfileName[0] = L'\0';
        std::copy_n(L"GoneNet", 8, (list.Network + 1)->strProfileName); // OfficeNet's entry
    };
    EXPECT_THAT(AddressesOf(MatchingEntries()), ElementsAre(kOfficeNet));
    EXPECT_THAT(MatchingNames(0), ElementsAre(L"GoneNet"));
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

TEST_F(ApListsTest, TheOtherNetworksCountWhenOneFails)
{
    FailOn("WlanGetNetworkBssList", 5, 1, 1);
    EXPECT_THAT(AddressesOf(MatchingEntries()), ElementsAre(kOfficeNet, kAdHocNet));
    EXPECT_THAT(traced(), ElementsAre("WlanGetNetworkBssList failed with error: 5"));
    ClearFailures();
    FailOn("WlanGetNetworkBssList", 5, 2, 1);
    EXPECT_THAT(MatchingNames(0), ElementsAre(L"HomeNet", L"AdHocNet"));
    ClearFailures();
    FailOn("WlanGetNetworkBssList", 5, 3);
    EXPECT_THAT(AddressesOf(MatchingEntries()), ElementsAre(kHomeNet24, kHomeNet5, kHomeNet6, kOfficeNet));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ApListsTest, NothingMatchedIsASuccess)
{
    UseWorld(WorldOf({Profile("GoneNet")}, {Heard("Net", 2412000, -50)}));
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

TEST_F(ApListsTest, TheNameIsComparedExactly)
{
    EXPECT_THAT(AddressesOf(ConnectableEntries(L"officenet")), ElementsAre(kHomeNet24, kHomeNet5, kHomeNet6));
    EXPECT_THAT(AddressesOf(ConnectableEntries(L"OfficeNet ")), ElementsAre(kHomeNet24, kHomeNet5, kHomeNet6));
    EXPECT_THAT(AddressesOf(ConnectableEntries(L"")), ElementsAre(kHomeNet24, kHomeNet5, kHomeNet6));
}

TEST_F(ApListsTest, AFilteredPairIsPassedOverAfterReadingItsProfile)
{
    ConnectableEntries(L"GoneNet");
    EXPECT_THAT(calls(), ElementsAre("WlanGetProfileList", "WlanGetAvailableNetworkList", //
                                     "WlanGetProfile", "WlanFreeMemory",                  // HomeNet
                                     "WlanGetNetworkBssList", "WlanFreeMemory",           //
                                     "WlanGetProfile", "WlanFreeMemory",                  // OfficeNet
                                     "WlanGetProfile", "WlanFreeMemory",                  // AdHocNet
                                     "WlanFreeMemory", "WlanFreeMemory"));
}

TEST_F(ApListsTest, AProfileThatCannotBeReadIsNotConnectable)
{
    FailOn("WlanGetProfile", 5);
    EXPECT_THAT(AddressesOf(ConnectableEntries(L"OfficeNet")), ElementsAre(kOfficeNet));
    EXPECT_THAT(traced(), ElementsAre("WlanGetProfile failed with error: 5", "WlanGetProfile failed with error: 5"));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ApListsTest, WithoutAnInterfaceTheFirstOneIsUsed)
{
    wchar_t name[] = L"OfficeNet";
    Entries list = Used<Entries>();
    EXPECT_EQ(4, manager().GetConnectableAPList(name, &list));
    EXPECT_THAT(AddressesOf(list), ElementsAre(kHomeNet24, kHomeNet5, kHomeNet6, kOfficeNet));
    EXPECT_EQ("WlanEnumInterfaces", calls().front());
    EXPECT_EQ("null", call("WlanEnumInterfaces")["reserved"]);
    EXPECT_EQ(kAdapterAText, call("WlanGetProfileList")["interface"]);
    EXPECT_EQ(kAdapterAText, call("WlanGetAvailableNetworkList")["interface"]);
    EXPECT_EQ(kAdapterAText, call("WlanGetProfile")["interface"]);
    EXPECT_EQ(kAdapterAText, call("WlanGetNetworkBssList")["interface"]);
    EXPECT_TRUE(traced().empty());
    ExpectNothingHeld();

    simulation::Scenario swapped = RichWorld();
    std::swap(swapped.adapters[0], swapped.adapters[1]);
    UseWorld(swapped);
    wchar_t cafe[] = L"CafeNet";
    EXPECT_EQ(1, manager().GetConnectableAPList(cafe, &list));
    EXPECT_EQ(kAdapterBText, call("WlanGetNetworkBssList")["interface"]);
}

// --- GetMatchAPCount --------------------------------------------------------------------------------------------

TEST_F(ApListsTest, NamesComeOnceForEachNetworkWithAnAccessPoint)
{
    EXPECT_THAT(MatchingNames(0), ElementsAre(L"HomeNet", L"OfficeNet", L"AdHocNet"));
    EXPECT_THAT(ReadProfiles(), IsEmpty());
}

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

TEST_F(ApListsTest, InModeOneTheNamedProfileCountsAllTheSame)
{
    EXPECT_THAT(MatchingNames(L"AdHocNet", 1), ElementsAre(L"HomeNet", L"AdHocNet"));
    EXPECT_THAT(ReadProfiles(), ElementsAre("\"HomeNet\"", "\"OfficeNet\""));
    EXPECT_THAT(MatchingNames(L"adhocnet", 1), ElementsAre(L"HomeNet"));
    EXPECT_THAT(MatchingNames(L"GoneNet", 1), ElementsAre(L"HomeNet")) << "named, but not in view";
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
