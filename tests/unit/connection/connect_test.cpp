#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/small_scenarios.h"
#include "unit/call_lines.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace calvix::test::connect_test
{

using ::testing::ElementsAre;

namespace
{

class ConnectTest : public LibraryTest
{
public:
    int Link(const std::string& name)
    {
        std::string text = name;
        return manager().LinkProfile(&kAdapterA, text.data());
    }
};

/// A network in both kinds of records. Their other members are not read.
struct Remembered
{
    std::string ssid = "HomeNet";
    DOT11_BSS_TYPE bssType = dot11_BSS_type_infrastructure;
    BOOL secured = TRUE;
    std::wstring profile = L"HomeNet";

    WLAN_CONNECTION_ATTRIBUTES Attributes() const
    {
        WLAN_CONNECTION_ATTRIBUTES record;
        std::memset(&record, 0x5A, sizeof record);
        record.wlanAssociationAttributes.dot11Ssid = MakeSsid(ssid);
        record.wlanAssociationAttributes.dot11BssType = bssType;
        record.wlanSecurityAttributes.bSecurityEnabled = secured;
        std::copy_n(profile.c_str(), profile.size() + 1, record.strProfileName);
        return record;
    }

    WLAN_CONNECTION_NOTIFICATION_DATA Notification() const
    {
        WLAN_CONNECTION_NOTIFICATION_DATA record;
        std::memset(&record, 0x5A, sizeof record);
        record.dot11Ssid = MakeSsid(ssid);
        record.dot11BssType = bssType;
        record.bSecurityEnabled = secured;
        std::copy_n(profile.c_str(), profile.size() + 1, record.strProfileName);
        return record;
    }
};

const Remembered kHome;
const Remembered kAdHoc{"AdHocNet", dot11_BSS_type_independent, FALSE, L"AdHocNet"};
/// By a profile that is not named after its network.
const Remembered kOtherName{"OfficeNet", dot11_BSS_type_infrastructure, TRUE, L"HomeNet"};

struct ReconnectForm
{
    const char* name;
    int (*call)(CWirelessManage&, const Remembered&, unsigned long unused);
};

const ReconnectForm kReconnectForms[] = {
    {"Reconnect(attributes)",
     [](CWirelessManage& m, const Remembered& network, unsigned long unused)
     {
         auto record = network.Attributes();
         return m.Reconnect(&kAdapterA, &record, unused);
     }},
    {"Reconnect(notification)",
     [](CWirelessManage& m, const Remembered& network, unsigned long unused)
     {
         auto record = network.Notification();
         return m.Reconnect(&kAdapterA, &record, unused);
     }},
    {"RecoverConnNotificationData",
     [](CWirelessManage& m, const Remembered& network, unsigned long)
     {
         auto record = network.Notification();
         m.SaveConnNotificationData(&record);
         return static_cast<int>(m.RecoverConnNotificationData(&kAdapterA));
     }},
};

/// HomeNet, heard from as many access points as there are link qualities; the n-th has the address 02:00:00:00:00:0n.
simulation::Scenario HomeNetFrom(std::size_t accessPoints)
{
    return ScenarioOf({MakeProfile("HomeNet")},
                      std::vector<simulation::AccessPoint>(accessPoints, Heard("HomeNet", 2412000, -60)));
}

} // namespace

// --- LinkProfile ------------------------------------------------------------------------------------------------

TEST_F(ConnectTest, LinkProfileConnectsToTheNetworkThatCarriesTheProfile)
{
    EXPECT_EQ(0, Link("OfficeNet"));
    EXPECT_THAT(callLines(), ElementsAre(NetworksLine(), NameLine("OfficeNet"), ConnectLine("OfficeNet"), kRelease));
    ExpectSilence();
}

TEST_F(ConnectTest, LinkProfileAsksForTheNetworksOwnBssType)
{
    EXPECT_EQ(0, Link("AdHocNet"));
    EXPECT_EQ(ConnectLine("AdHocNet", "null", "independent"), call("WlanConnect").line);
}

TEST_F(ConnectTest, LinkProfileOutOfRangeConnectsNothing)
{
    EXPECT_EQ(-2, Link("GoneNet")) << "stored, not in view";
    EXPECT_EQ(-2, Link("NoSuchNet"));
    EXPECT_EQ(-2, Link("HomeNet5G")) << "in view, without a profile";
    UseScenario(SilentScenario());
    EXPECT_EQ(-2, Link("HomeNet")) << "nothing in view at all";
    EXPECT_EQ(0u, callCount("WlanConnect"));
    ExpectSilence();
}

TEST_F(ConnectTest, LinkProfileComparesWholeNamesExactly)
{
    for (const char* name : {"homenet", "HOMENET", "HomeNe", "HomeNet ", "HomeNet5"})
        EXPECT_EQ(-2, Link(name)) << name;
    EXPECT_EQ(0u, callCount("WlanConnect"));
}

TEST_F(ConnectTest, LinkProfileGoesByTheProfileNotTheSsid)
{
    UseScenario(ScenarioOf({ProfileFor("Profile", "Net")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(-2, Link("Net"));
    EXPECT_EQ(0, Link("Profile"));
    EXPECT_EQ("{mode=profile, profile=\"Profile\", ssid=null, bssids=null, bssType=infrastructure, flags=0}",
              call("WlanConnect")["parameters"]);
}

TEST_F(ConnectTest, LinkProfileTakesTheFirstOfSeveralNetworks)
{
    EditedAnswers edited;
    edited.service.networks = [](WLAN_AVAILABLE_NETWORK_LIST& list)
    {
        std::copy_n(L"Same", 5, list.Network[1].strProfileName);
        std::copy_n(L"Same", 5, list.Network[3].strProfileName);
        list.Network[1].dot11BssType = dot11_BSS_type_independent;
        list.Network[3].dot11BssType = dot11_BSS_type_infrastructure;
    };
    EXPECT_EQ(1168, Link("Same")) << "no such profile is stored";
    EXPECT_EQ(1u, callCount("WlanConnect")) << "no other network is tried";
    EXPECT_EQ(ConnectLine("Same", "null", "independent"), call("WlanConnect").line);
}

// The first network without a profile is HiddenNet's.
TEST_F(ConnectTest, LinkProfileOfAnEmptyNameAsksForTheFirstNetworkWithoutAProfile)
{
    EXPECT_EQ(87, Link("")) << "the service wants a name";
    EXPECT_EQ(ConnectLine(""), call("WlanConnect").line);
    EXPECT_THAT(traced(), ElementsAre("WlanConnect failed with error: 87"));
}

TEST_F(ConnectTest, LinkProfileTakesNamesOfUpTo255Characters)
{
    EXPECT_EQ(-2, Link(std::string(255, 'n')));
    EXPECT_TRUE(traced().empty());
    EXPECT_EQ(122, Link(std::string(256, 'n')));
    EXPECT_EQ(122, Link(std::string(5000, 'n')));
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 122", "Profile Name error: 122"));
    EXPECT_EQ(0u, callCount("WlanConnect"));

    const std::string longest(255, 'n');
    UseScenario(ScenarioOf({ProfileFor(longest, "Net")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(0, Link(longest));
    EXPECT_EQ(-2, Link(longest.substr(1)));
}

// --- Disconnect -------------------------------------------------------------------------------------------------

TEST_F(ConnectTest, DisconnectEndsTheConnection)
{
    EXPECT_EQ(1, manager().WiFiIsConnected(&kAdapterA));
    ClearCalls();
    EXPECT_EQ(0, manager().Disconnect(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(CallForA("WlanDisconnect", "reserved=null")));
    ExpectSilence();
    EXPECT_EQ(0, manager().WiFiIsConnected(&kAdapterA));
}

// --- Reconnect --------------------------------------------------------------------------------------------------

TEST_F(ConnectTest, ReconnectAsksForTheAccessPointsOfTheRememberedNetwork)
{
    for (const auto& [name, reconnect] : kReconnectForms)
    {
        ClearCalls();
        EXPECT_EQ(0, reconnect(manager(), kHome, 20)) << name;
        EXPECT_THAT(callLines(),
                    ElementsAre(NetworkBssLine("HomeNet"), ConnectLine("HomeNet", "[02:11:00:00:24:06]"), kRelease))
            << name;
        ClearCalls();
        EXPECT_EQ(0, reconnect(manager(), kAdHoc, 20)) << name;
        EXPECT_THAT(callLines(), ElementsAre(NetworkBssLine("AdHocNet", "independent"),
                                             ConnectLine("AdHocNet", "[02:44:00:00:24:03]", "independent"), kRelease))
            << name;
        ClearCalls();
        EXPECT_EQ(0, reconnect(manager(), kOtherName, 20)) << name;
        EXPECT_EQ("\"OfficeNet\"/9", call("WlanGetNetworkBssList")["ssid"]) << name;
        EXPECT_EQ(ConnectLine("HomeNet", "[02:22:00:00:50:95]"), call("WlanConnect").line) << name;
        ExpectSilence();
    }
}

// Deliberate: the argument is there for hosts that pass it, and changes nothing.
TEST_F(ConnectTest, ReconnectIgnoresItsThirdArgument)
{
    for (const auto& [name, reconnect] : kReconnectForms)
    {
        std::vector<std::vector<std::string>> runs;
        for (const unsigned long unused : {0ul, 20ul, 0xFFFFFFFFul})
        {
            Restart();
            EXPECT_EQ(0, reconnect(manager(), kHome, unused)) << name;
            runs.push_back(callLines());
        }
        EXPECT_EQ(3u, runs[0].size());
        EXPECT_EQ(runs[0], runs[1]) << name;
        EXPECT_EQ(runs[0], runs[2]) << name;
    }
}

// Deliberate: the first access point's quality stays the reference, so that not the best one is chosen but the last one
// that is better than the first.
TEST_F(ConnectTest, ReconnectChoosesTheLastAccessPointThatBeatsTheFirst)
{
    struct Choice
    {
        std::vector<unsigned> qualities;
        unsigned chosen; ///< from 1
    };
    const Choice choices[] = {{{50, 40, 70, 45}, 3}, {{50, 80, 60, 55}, 4}, {{50, 80, 60, 50}, 3},
                              {{60, 60, 60}, 1},     {{90, 50, 60}, 1},     {{50}, 1},
                              {{0, 1}, 2},           {{50, 0x80000000}, 2}, {{49, 50, 49}, 2}};
    for (const auto& [qualities, chosen] : choices)
    {
        for (const auto& [name, reconnect] : kReconnectForms)
        {
            UseScenario(HomeNetFrom(qualities.size()));
            EditedAnswers edited;
            edited.service.bss = [&answers = qualities](WLAN_BSS_LIST& list)
            {
                ASSERT_EQ(answers.size(), list.dwNumberOfItems);
                for (std::size_t i = 0; i < answers.size(); ++i)
                    list.wlanBssEntries[i].uLinkQuality = answers[i];
            };
            EXPECT_EQ(0, reconnect(manager(), kHome, 20)) << name;
            EXPECT_EQ(ConnectLine("HomeNet", "[02:00:00:00:00:0" + std::to_string(chosen) + "]"),
                      call("WlanConnect").line)
                << name << " of " << ::testing::PrintToString(qualities);
        }
    }
}

TEST_F(ConnectTest, ReconnectDesiresExactlyOneAccessPoint)
{
    for (const auto& [name, reconnect] : kReconnectForms)
    {
        EditedAnswers edited;
        unsigned requests = 0;
        edited.service.connectRequest = [&requests](const WLAN_CONNECTION_PARAMETERS& parameters)
        {
            ++requests;
            const DOT11_BSSID_LIST& desired = *parameters.pDesiredBssidList;
            EXPECT_EQ(0x80, desired.Header.Type);
            EXPECT_EQ(1, desired.Header.Revision);
            EXPECT_EQ(sizeof(DOT11_BSSID_LIST), desired.Header.Size);
            EXPECT_EQ(1u, desired.uNumOfEntries);
            EXPECT_EQ(1u, desired.uTotalNumOfEntries);
            EXPECT_TRUE(std::equal(kHomeNet24.begin(), kHomeNet24.end(), desired.BSSIDs[0]));
        };
        EXPECT_EQ(0, reconnect(manager(), kHome, 20)) << name;
        EXPECT_EQ(1u, requests) << name;
    }
}

TEST_F(ConnectTest, ReconnectWithoutAnAccessPointRequestsNothing)
{
    for (const auto& [name, reconnect] : kReconnectForms)
    {
        EXPECT_EQ(-6, reconnect(manager(), {"GoneNet"}, 20)) << name;
        EXPECT_EQ(-6, reconnect(manager(), {"HomeNet", dot11_BSS_type_infrastructure, FALSE}, 20)) << name;
        EXPECT_EQ(0u, callCount("WlanConnect")) << name;
        EXPECT_TRUE(traced().empty()) << name;
        ExpectNothingHeld();
    }
}

// --- RecoverConnection ------------------------------------------------------------------------------------------

TEST_F(ConnectTest, RecoverConnectionRequestsAtOnce)
{
    auto home = kHome.Attributes();
    auto adHoc = kAdHoc.Attributes();
    EXPECT_EQ(0, manager().RecoverConnection(&kAdapterA, &home));
    EXPECT_EQ(0, manager().RecoverConnection(&kAdapterA, &adHoc));
    EXPECT_THAT(callLines(), ElementsAre(ConnectLine("HomeNet"), ConnectLine("AdHocNet", "null", "independent")));
    ExpectSilence();
}

// --- ResetConnection --------------------------------------------------------------------------------------------

TEST_F(ConnectTest, ResetConnectionAsksAgainForTheConnectionThatIsUp)
{
    EXPECT_EQ(0, manager().ResetConnection(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre(ConnectionQuery(), ConnectLine("HomeNet"), kRelease));
    ExpectSilence();
}

TEST_F(ConnectTest, ResetConnectionKeepsProfileAndBssType)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[0].connection = simulation::Connection{"AdHocNet", kAdHocNet};
    UseScenario(scenario);
    EXPECT_EQ(0, manager().ResetConnection(&kAdapterA));
    EXPECT_EQ(ConnectLine("AdHocNet", "null", "independent"), call("WlanConnect").line);
}

} // namespace calvix::test::connect_test
