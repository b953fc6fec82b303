// The worked examples of docs/automatic-connection.md, in its order and with its numbers.
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/requests.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace calvix::test::automatic_connection_test
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

using simulation::AccessPoint;
using simulation::Scenario;

constexpr GUID kAdapter = {0x5CA1AB1E, 0x000D, 0x4000, {0x80, 0x00, 0x00, 0xCA, 0x1F, 0x1C, 0x00, 0x0D}};
constexpr simulation::MacAddress kHarbour1 = {0x02, 0xA7, 0x00, 0x02, 0x00, 0x01};
constexpr simulation::MacAddress kHarbour2 = {0x02, 0xA7, 0x00, 0x02, 0x00, 0x02};
constexpr simulation::MacAddress kHarbour3 = {0x02, 0xA7, 0x00, 0x02, 0x00, 0x03};

constexpr DWORD kAccessDenied = 5;
constexpr std::size_t kHarbourProfile = 2;

Scenario HarbourFront()
{
    return simulation::LoadScenario(std::string(CALVIX_SOURCE_DIR) + "/scenarios/automatic.json");
}

Scenario LinkedTo(const simulation::MacAddress& bssid)
{
    Scenario world = HarbourFront();
    world.adapters[0].connection->bssid = bssid;
    return world;
}

Scenario ListedLast(const std::string& ssid)
{
    Scenario world = HarbourFront();
    std::stable_partition(world.accessPoints.begin(), world.accessPoints.end(),
                          [&ssid](const AccessPoint& point)
                          { return std::string(point.ssid.begin(), point.ssid.end()) != ssid; });
    return world;
}

Scenario HarbourPreferred()
{
    Scenario world = HarbourFront();
    auto& profiles = world.adapters[0].profiles;
    std::rotate(profiles.begin(), profiles.begin() + kHarbourProfile, profiles.begin() + kHarbourProfile + 1);
    return world;
}

class AutomaticConnectionExample : public LibraryTest
{
public:
    AutomaticConnectionExample() : LibraryTest(HarbourFront()) {}

    /// Profiles asked for in the example so far, and nothing else.
    std::vector<std::string> requested() const { return RequestedProfiles(*this); }

    /// The whole of the latest request's parameters: profile, and the access points that it is pinned to.
    void ExpectLastRequest(const std::string& profile, const std::string& bssids) const
    {
        EXPECT_EQ("{mode=profile, profile=\"" + profile + "\", ssid=null, bssids=" + bssids +
                      ", bssType=infrastructure, flags=0}",
                  call("WlanConnect", callCount("WlanConnect"))["parameters"]);
    }

    std::vector<std::string> ProfileOrder()
    {
        WLAN_PROFILE_INFO_LIST* list = nullptr;
        EXPECT_EQ(0u, computer().wlan().WlanGetProfileList(ManagerInternals::Client(), &kAdapter, nullptr, &list));
        std::vector<std::string> names;
        for (DWORD index = 0; list != nullptr && index < list->dwNumberOfItems; ++index)
        {
            const std::wstring name = list->ProfileInfo[index].strProfileName;
            names.emplace_back();
            for (const wchar_t character : name)
                names.back() += static_cast<char>(character);
        }
        computer().wlan().WlanFreeMemory(list);
        return names;
    }
};

/// A platform that converts UTF-8 with the flags that Windows refuses.
EditedAnswers& Tolerant(EditedAnswers& edited)
{
    edited.conversion.takesAllFlagsForUtf8 = true;
    return edited;
}

WLAN_BSS_ENTRY EntryOf(const std::string& ssid)
{
    WLAN_BSS_ENTRY entry{};
    entry.dot11Ssid = MakeSsid(ssid);
    return entry;
}

} // namespace

TEST_F(AutomaticConnectionExample, TheAirspaceIsAsTabled)
{
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    ASSERT_EQ(0u,
              computer().wlan().WlanGetAvailableNetworkList(ManagerInternals::Client(), &kAdapter, 0, nullptr, &list));
    std::vector<std::pair<std::string, unsigned>> networks;
    for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
    {
        const WLAN_AVAILABLE_NETWORK& network = list->Network[index];
        const auto* const ssid = reinterpret_cast<const char*>(network.dot11Ssid.ucSSID);
        networks.emplace_back(std::string(ssid, network.dot11Ssid.uSSIDLength),
                              static_cast<unsigned>(network.wlanSignalQuality));
    }
    computer().wlan().WlanFreeMemory(list);
    EXPECT_THAT(networks, ElementsAre(std::pair("Market", 80u), std::pair("Harbour", 88u), std::pair("Guesthouse", 62u),
                                      std::pair("Ferry", 40u), std::pair("Open Sea", 56u), std::pair("Pier", 78u)));
    EXPECT_THAT(ProfileOrder(), ElementsAre("Attic", "Guesthouse", "Harbour", "Market", "Ferry", "Pier"));
}

TEST_F(AutomaticConnectionExample, ConnectBestAPAsksForTheWeakestAutomaticNetworkFirst)
{
    EXPECT_EQ(0, manager().ConnectBestAP(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Market"));
    ExpectLastRequest("Market", "null");
    EXPECT_EQ("\"Pier\"/4", call("WlanGetNetworkBssList")["ssid"]);
    EXPECT_EQ(1u, callCount("WlanGetNetworkBssList"));
}

TEST_F(AutomaticConnectionExample, ConnectBestAPGivesUpOnlyWhenAllWereRefused)
{
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(-12, manager().ConnectBestAP(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Market", "Harbour", "Pier"));
}

TEST_F(AutomaticConnectionExample, ConnectBestAPGivesTheBonusToTheLastListedNetworkOnly)
{
    for (const char* last : {"Harbour", "Open Sea"})
    {
        UseWorld(ListedLast(last));
        FailOn("WlanConnect", kAccessDenied);
        EXPECT_EQ(-12, manager().ConnectBestAP(&kAdapter));
        EXPECT_THAT(requested(), ElementsAre("Pier", "Market", "Harbour")) << last;
    }
}

TEST_F(AutomaticConnectionExample, ConnectBestAPLeavesOutWhatTheCallerRulesOut)
{
    EXPECT_EQ(0, manager().ConnectBestAP(&kAdapter, L"Market"));
    EXPECT_THAT(requested(), ElementsAre("Harbour"));

    Restart();
    std::vector<WLAN_BSS_ENTRY> longer{EntryOf("Market Hall")};
    EXPECT_EQ(0, manager().ConnectBestAP(&kAdapter, &longer));
    EXPECT_THAT(requested(), ElementsAre("Harbour"));

    Restart();
    std::vector<WLAN_BSS_ENTRY> shorter{EntryOf("Mark")};
    EXPECT_EQ(0, manager().ConnectBestAP(&kAdapter, &shorter));
    EXPECT_THAT(requested(), ElementsAre("Market"));
}

TEST_F(AutomaticConnectionExample, AutoConnectTakesTheFirstProfileInView)
{
    EXPECT_EQ(0, manager().AutoConnect(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Guesthouse"));
    ExpectLastRequest("Guesthouse", "null");
}

TEST_F(AutomaticConnectionExample, AutoConnectReportsSuccessWhenAllWereRefused)
{
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(0, manager().AutoConnect(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Guesthouse", "Harbour", "Market", "Ferry", "Pier"));
    EXPECT_EQ(std::vector<std::string>(5, "WlanConnect failed with error: 5"), traced());
}

TEST_F(AutomaticConnectionExample, AutoConnectExRanksManualProfilesToo)
{
    EXPECT_EQ(0, manager().AutoConnectEx(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Ferry"));
    ExpectLastRequest("Ferry", "null");

    Restart();
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(-12, manager().AutoConnectEx(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Ferry", "Guesthouse", "Market", "Harbour", "Pier"));
}

TEST_F(AutomaticConnectionExample, ConnectAutoModeFindsNothingWhereTheSsidCannotBeConverted)
{
    EXPECT_EQ(-9, manager().ConnectAutoMode(&kAdapter));
    EXPECT_THAT(requested(), IsEmpty());
}

TEST_F(AutomaticConnectionExample, ConnectAutoModeWouldTakeTheFirstAutomaticProfileInView)
{
    EditedAnswers edited;
    Tolerant(edited);
    EXPECT_EQ(0, manager().ConnectAutoMode(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Harbour"));
    ExpectLastRequest("Harbour", "null");
}

TEST_F(AutomaticConnectionExample, ConnectAutoModeWouldReportSuccessWhenAllWereRefused)
{
    EditedAnswers edited;
    Tolerant(edited);
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(0, manager().ConnectAutoMode(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Harbour", "Market", "Pier"));
}

TEST_F(AutomaticConnectionExample, SmartConnectingMakesOneAttemptAndTellsTheName)
{
    char name[128] = "untouched";
    EXPECT_EQ(0, manager().SmartConnecting(&kNoAdapter, name));
    EXPECT_STREQ("Guesthouse", name);
    EXPECT_THAT(requested(), ElementsAre("Guesthouse"));
    ExpectLastRequest("Guesthouse", "null");
    EXPECT_EQ("{5CA1AB1E-000D-4000-8000-00CA1F1C000D}", call("WlanConnect")["interface"]);
}

TEST_F(AutomaticConnectionExample, SmartConnectingStopsAtARefusal)
{
    char name[128] = "untouched";
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(5, manager().SmartConnecting(&kAdapter, name));
    EXPECT_STREQ("untouched", name);
    EXPECT_THAT(requested(), ElementsAre("Guesthouse"));
}

TEST_F(AutomaticConnectionExample, SmartConnectingWithoutAnAdapterReportsSuccess)
{
    Scenario world = HarbourFront();
    world.adapters.clear();
    UseWorld(world);
    char name[128] = "untouched";
    EXPECT_EQ(0, manager().SmartConnecting(&kAdapter, name));
    EXPECT_STREQ("untouched", name);
    EXPECT_THAT(requested(), IsEmpty());
}

TEST_F(AutomaticConnectionExample, AutoSwitchPutsTheCurrentProfileLastAndTakesTheFirstInView)
{
    EXPECT_EQ(0, manager().AutoSwitch(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Guesthouse"));
    ExpectLastRequest("Guesthouse", "null");
    EXPECT_THAT(ProfileOrder(), ElementsAre("Attic", "Guesthouse", "Market", "Ferry", "Pier", "Harbour"));
}

TEST_F(AutomaticConnectionExample, AutoSwitchFromTheMostPreferredProfileComesBackToItOnce)
{
    UseWorld(HarbourPreferred());
    EXPECT_EQ(0, manager().AutoSwitch(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Harbour"));
    EXPECT_THAT(ProfileOrder(), ElementsAre("Attic", "Guesthouse", "Market", "Ferry", "Pier", "Harbour"));

    Advance(std::chrono::seconds(5));
    EXPECT_EQ(0, manager().AutoSwitch(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Harbour", "Guesthouse"));
}

TEST_F(AutomaticConnectionExample, AutoSwitchTakesAConnectionAndReportsSuccessWhenAllWereRefused)
{
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(0, manager().AutoSwitch(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Guesthouse", "Harbour", "Market", "Ferry", "Pier"));

    Scenario world = HarbourFront();
    world.adapters[0].connection.reset();
    UseWorld(world);
    EXPECT_EQ(-3, manager().AutoSwitch(&kAdapter));
    EXPECT_THAT(requested(), IsEmpty());
}

TEST_F(AutomaticConnectionExample, SmartSwitchFailsWhereTheSsidCannotBeConverted)
{
    EXPECT_EQ(1004, manager().SmartSwitch(&kAdapter));
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 1004"));
    EXPECT_THAT(requested(), IsEmpty());
}

TEST_F(AutomaticConnectionExample, SmartSwitchWouldTakeTheFirstBetterOneAndNoOther)
{
    EditedAnswers edited;
    Tolerant(edited);
    EXPECT_EQ(0, manager().SmartSwitch(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Guesthouse"));
    ExpectLastRequest("Guesthouse", "null");

    ClearCalls();
    Advance(std::chrono::seconds(5));
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(5, manager().SmartSwitch(&kAdapter)) << "from Guesthouse, 62";
    EXPECT_THAT(requested(), ElementsAre("Harbour"));
}

TEST_F(AutomaticConnectionExample, SmartSwitchWouldStayOnTheBestLink)
{
    UseWorld(LinkedTo(kHarbour2));
    EditedAnswers edited;
    Tolerant(edited);
    EXPECT_EQ(-2, manager().SmartSwitch(&kAdapter));
    EXPECT_THAT(requested(), IsEmpty());
}

TEST_F(AutomaticConnectionExample, PreRoamingOnlyAnswers)
{
    EXPECT_EQ(0, manager().PreRoaming(&kAdapter));
    EXPECT_THAT(requested(), IsEmpty());
}

TEST_F(AutomaticConnectionExample, RoamingGoesToTheLastThatBeatsTheFirst)
{
    EXPECT_EQ(0, manager().Roaming(&kAdapter));
    EXPECT_THAT(requested(), ElementsAre("Harbour"));
    ExpectLastRequest("Harbour", "[02:A7:00:02:00:03]");
}

TEST_F(AutomaticConnectionExample, RoamingStaysOnAGoodLinkAndOnThePick)
{
    for (const auto& [bssid, code] : {std::pair{kHarbour2, -5}, std::pair{kHarbour3, -8}})
    {
        UseWorld(LinkedTo(bssid));
        EXPECT_EQ(code, manager().PreRoaming(&kAdapter));
        EXPECT_EQ(code, manager().Roaming(&kAdapter));
        EXPECT_THAT(requested(), IsEmpty());
    }
}

TEST_F(AutomaticConnectionExample, RoamingReportsARefusal)
{
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(-9, manager().Roaming(&kAdapter));
    EXPECT_EQ(1u, callCount("WlanConnect"));
    WLAN_CONNECTION_ATTRIBUTES now{};
    EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapter, &now));
    EXPECT_EQ(0, std::memcmp(kHarbour1.data(), now.wlanAssociationAttributes.dot11Bssid, kHarbour1.size()));
}

TEST_F(AutomaticConnectionExample, ReconnectGoesBackByARecordWithoutAThreshold)
{
    WLAN_CONNECTION_ATTRIBUTES remembered{};
    ASSERT_EQ(0, manager().GetCurrentConnection(&kAdapter, &remembered));
    ASSERT_EQ(0, manager().Disconnect(&kAdapter));
    EXPECT_EQ(0, manager().Reconnect(&kAdapter, &remembered, 20));
    EXPECT_THAT(requested(), ElementsAre("Harbour"));
    ExpectLastRequest("Harbour", "[02:A7:00:02:00:03]");

    UseWorld(LinkedTo(kHarbour3));
    ASSERT_EQ(0, manager().GetCurrentConnection(&kAdapter, &remembered));
    EXPECT_EQ(0, manager().Reconnect(&kAdapter, &remembered, 20)) << "already there, asked for again";
    ExpectLastRequest("Harbour", "[02:A7:00:02:00:03]");
}

TEST_F(AutomaticConnectionExample, ReconnectReportsWhatIsGoneAndWhatIsRefusedAlike)
{
    WLAN_CONNECTION_ATTRIBUTES remembered{};
    ASSERT_EQ(0, manager().GetCurrentConnection(&kAdapter, &remembered));
    FailOn("WlanConnect", kAccessDenied);
    EXPECT_EQ(-6, manager().Reconnect(&kAdapter, &remembered, 20));
    EXPECT_THAT(requested(), ElementsAre("Harbour"));

    Scenario world = HarbourFront();
    world.adapters[0].connection.reset();
    std::erase_if(world.accessPoints, [](const AccessPoint& point) { return point.bssid[3] == kHarbour1[3]; });
    UseWorld(world);
    EXPECT_EQ(-6, manager().Reconnect(&kAdapter, &remembered, 20));
    EXPECT_THAT(requested(), IsEmpty()) << "nowhere to go, so nothing is asked";
}

} // namespace calvix::test::automatic_connection_test
