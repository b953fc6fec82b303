#include "support/contract_table.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "unit/autoconnect/small_worlds.h"
#include "unit/inventory/trace_texts.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string>
#include <vector>

namespace calvix::test::connect_test
{

using ::testing::ElementsAre;

namespace
{

constexpr const char* kNameError = "Profile Name error: %u";
constexpr const char* kConnectFailed = "WlanConnect failed with error: %u";
constexpr const char* kDisconnectFailed = "WlanDisconnect failed with error: %u";

const std::string kStart = std::string("(client=1, interface=") + kAdapterAText;
const std::string kListing = "WlanGetAvailableNetworkList" + kStart + ", flags=0, reserved=null, list=non-null)";
const std::string kConnectionQuery = "WlanQueryInterface" + kStart +
                                     ", opcode=current_connection, reserved=null, "
                                     "dataSize=sizeof(WLAN_CONNECTION_ATTRIBUTES), data=non-null, valueType=null)";

std::string ConnectLine(const std::string& profile, const std::string& bssids, const std::string& bssType)
{
    return "WlanConnect" + kStart + ", parameters={mode=profile, profile=\"" + profile +
           "\", ssid=null, bssids=" + bssids + ", bssType=" + bssType + ", flags=0}, reserved=null)";
}

class ConnectTest : public LibraryTest
{
public:
    int Link(const std::string& name)
    {
        std::string text = name;
        return manager().LinkProfile(&kAdapterA, text.data());
    }
};

long long LinkHomeNet(CWirelessManage& manager)
{
    char name[] = "HomeNet";
    return manager.LinkProfile(&kAdapterA, name);
}

long long DisconnectA(CWirelessManage& manager)
{
    return manager.Disconnect(&kAdapterA);
}

long long ResetA(CWirelessManage& manager)
{
    return manager.ResetConnection(&kAdapterA);
}

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

const ReconnectForm kReconnectForms[] = {{"Reconnect(attributes)",
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
                                          }}};

long long RecoverHomeNet(CWirelessManage& manager)
{
    auto record = kHome.Attributes();
    return manager.RecoverConnection(&kAdapterA, &record);
}

/// HomeNet, heard from as many access points as there are link qualities; the n-th has the address 02:00:00:00:00:0n.
simulation::Scenario HomeNetFrom(std::size_t accessPoints)
{
    return WorldOf({MakeProfile("HomeNet")},
                   std::vector<simulation::AccessPoint>(accessPoints, Heard("HomeNet", 2412000, -60)));
}

} // namespace

// --- LinkProfile ------------------------------------------------------------------------------------------------

TEST_F(ConnectTest, LinkProfileConnectsToTheNetworkThatCarriesTheProfile)
{
    EXPECT_EQ(0, Link("OfficeNet"));
    EXPECT_THAT(callLines(), ElementsAre(kListing,
                                         "MultiByteToWideChar(codePage=0, flags=9, source=\"OfficeNet\", "
                                         "sourceLength=-1, destination=non-null, destinationLength=256)",
                                         ConnectLine("OfficeNet", "null", "infrastructure"), kRelease));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ConnectTest, LinkProfileStartsTheConnectionAndDoesNotWaitForIt)
{
    UseWorld(DisconnectedWorld());
    EXPECT_EQ(0, Link("OfficeNet"));
    EXPECT_EQ(0, manager().WiFiIsConnected(&kAdapterA));
    Advance(std::chrono::seconds(5));
    EXPECT_EQ(1, manager().WiFiIsConnected(&kAdapterA));
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
    UseWorld(SilentWorld());
    EXPECT_EQ(-2, Link("HomeNet")) << "nothing in view at all";
    EXPECT_EQ(0u, callCount("WlanConnect"));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ConnectTest, LinkProfileComparesWholeNamesExactly)
{
    for (const char* name : {"homenet", "HOMENET", "HomeNe", "HomeNet ", "HomeNet5"})
        EXPECT_EQ(-2, Link(name)) << name;
    EXPECT_EQ(0u, callCount("WlanConnect"));
}

TEST_F(ConnectTest, LinkProfileGoesByTheProfileNotTheSsid)
{
    UseWorld(WorldOf({ProfileFor("Profile", "Net")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(-2, Link("Net"));
    EXPECT_EQ(0, Link("Profile"));
    EXPECT_EQ("{mode=profile, profile=\"Profile\", ssid=null, bssids=null, bssType=infrastructure, flags=0}",
              call("WlanConnect")["parameters"]);
}

TEST_F(ConnectTest, LinkProfileTakesTheFirstOfSeveralNetworks)
{
    EditedAnswers edited;
    edited.service.networkList = [](WLAN_AVAILABLE_NETWORK_LIST& list)
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
    EXPECT_EQ(ConnectLine("", "null", "infrastructure"), call("WlanConnect").line);
    EXPECT_THAT(traced(), ElementsAre("WlanConnect failed with error: 87"));
}

TEST_F(ConnectTest, LinkProfileTakesTheNameInTheActiveCodePage)
{
    simulation::Scenario world = WorldOf({Profile("Caf\xC3\xA9")}, {Heard("Caf\xC3\xA9", 2412000, -50)});
    UseWorld(world);
    EXPECT_EQ(0, Link("Caf\xE9")); // 1252
    EXPECT_EQ(ConnectLine("Caf\\u00E9", "null", "infrastructure"), call("WlanConnect").line);
    world.codePage = 932;
    UseWorld(world);
    EXPECT_EQ(1113, Link("Caf\xFF")) << "an invalid character";
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 1113"));
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
    UseWorld(WorldOf({ProfileFor(longest, "Net")}, {Heard("Net", 2412000, -50)}));
    EXPECT_EQ(0, Link(longest));
    EXPECT_EQ(-2, Link(longest.substr(1)));
}

TEST_F(ConnectTest, LinkProfileWithoutANameOrInterface)
{
    EXPECT_EQ(87, manager().LinkProfile(&kAdapterA, nullptr));
    EXPECT_THAT(traced(), ElementsAre("Profile Name error: 87"));
    char name[] = "HomeNet";
    EXPECT_EQ(87, manager().LinkProfile(nullptr, name));
    EXPECT_EQ(87, manager().LinkProfile(&kNoAdapter, name));
}

TEST_F(ConnectTest, LinkProfileFailures)
{
    const char* const name = "LinkProfile";
    CheckFailures(*this, {{name, LinkHomeNet, "WlanOpenHandle", -1, {kOpenFailed}, TraceBuffer::local},
                          {name, LinkHomeNet, "WlanGetAvailableNetworkList", 5, {kNetworksFailed}, TraceBuffer::local},
                          {name, LinkHomeNet, "MultiByteToWideChar", 5, {kNameError}, TraceBuffer::local},
                          {name, LinkHomeNet, "WlanConnect", 5, {kConnectFailed}, TraceBuffer::local}});
}

// --- Disconnect -------------------------------------------------------------------------------------------------

TEST_F(ConnectTest, DisconnectEndsTheConnection)
{
    EXPECT_EQ(1, manager().WiFiIsConnected(&kAdapterA));
    ClearCalls();
    EXPECT_EQ(0, manager().Disconnect(&kAdapterA));
    EXPECT_THAT(callLines(), ElementsAre("WlanDisconnect" + kStart + ", reserved=null)"));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
    EXPECT_EQ(0, manager().WiFiIsConnected(&kAdapterA));
}

// Deliberate: -1 for no failure here.
TEST_F(ConnectTest, DisconnectFailuresGiveThePlatformsErrors)
{
    CheckFailures(*this, {{"Disconnect", DisconnectA, "WlanOpenHandle", 5, {kOpenFailed}, TraceBuffer::local},
                          {"Disconnect", DisconnectA, "WlanDisconnect", 5, {kDisconnectFailed}, TraceBuffer::local},
                          {.method = "Disconnect(null)",
                           .call = [](auto& m) { return m.Disconnect(nullptr); },
                           .expected = 87,
                           .traced = {"WlanDisconnect failed with error: 87"},
                           .buffer = TraceBuffer::local},
                          {.method = "Disconnect without a service",
                           .call = DisconnectA,
                           .expected = 1062,
                           .traced = {"WlanOpenHandle failed with error: 1062"},
                           .buffer = TraceBuffer::local,
                           .prepare = [](auto& test)
                           {
                               test.ForgetClient();
                               test.computer().SetServiceRunning(false);
                           }}});
}

// --- Reconnect --------------------------------------------------------------------------------------------------

TEST_F(ConnectTest, ReconnectAsksForTheAccessPointsOfTheRememberedNetwork)
{
    for (const auto& [name, reconnect] : kReconnectForms)
    {
        ClearCalls();
        EXPECT_EQ(0, reconnect(manager(), kHome, 20)) << name;
        EXPECT_THAT(callLines(), ElementsAre("WlanGetNetworkBssList" + kStart +
                                                 ", ssid=\"HomeNet\"/7, bssType=infrastructure, securityEnabled=true, "
                                                 "reserved=null, list=non-null)",
                                             ConnectLine("HomeNet", "[02:11:00:00:24:06]", "infrastructure"), kRelease))
            << name;
        ClearCalls();
        EXPECT_EQ(0, reconnect(manager(), kAdHoc, 20)) << name;
        EXPECT_THAT(callLines(), ElementsAre("WlanGetNetworkBssList" + kStart +
                                                 ", ssid=\"AdHocNet\"/8, bssType=independent, securityEnabled=false, "
                                                 "reserved=null, list=non-null)",
                                             ConnectLine("AdHocNet", "[02:44:00:00:24:03]", "independent"), kRelease))
            << name;
        ClearCalls();
        EXPECT_EQ(0, reconnect(manager(), kOtherName, 20)) << name;
        EXPECT_EQ("\"OfficeNet\"/9", call("WlanGetNetworkBssList")["ssid"]) << name;
        EXPECT_EQ(ConnectLine("HomeNet", "[02:22:00:00:50:95]", "infrastructure"), call("WlanConnect").line) << name;
        EXPECT_TRUE(traced().empty());
        EXPECT_TRUE(sharedTraceUntouched());
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
            UseWorld(HomeNetFrom(qualities.size()));
            EditedAnswers edited;
            edited.service.bssList = [&answers = qualities](WLAN_BSS_LIST& list, unsigned)
            {
                ASSERT_EQ(answers.size(), list.dwNumberOfItems);
                for (std::size_t i = 0; i < answers.size(); ++i)
                    list.wlanBssEntries[i].uLinkQuality = answers[i];
            };
            EXPECT_EQ(0, reconnect(manager(), kHome, 20)) << name;
            EXPECT_EQ(ConnectLine("HomeNet", "[02:00:00:00:00:0" + std::to_string(chosen) + "]", "infrastructure"),
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

TEST_F(ConnectTest, ReconnectFailures)
{
    for (const auto& form : kReconnectForms)
    {
        const auto call = [form](CWirelessManage& m) { return form.call(m, kHome, 20); };
        CheckFailures(*this, {{form.name, call, "WlanOpenHandle", -1, {kOpenFailed}, TraceBuffer::local},
                              {form.name, call, "WlanGetNetworkBssList", -4, {kBssFailed}, TraceBuffer::local},
                              {form.name, call, "WlanConnect", -6, {kConnectFailed}, TraceBuffer::local}});
    }
}

// --- RecoverConnection ------------------------------------------------------------------------------------------

TEST_F(ConnectTest, RecoverConnectionRequestsAtOnce)
{
    EXPECT_EQ(0, RecoverHomeNet(manager()));
    auto adHoc = kAdHoc.Attributes();
    EXPECT_EQ(0, manager().RecoverConnection(&kAdapterA, &adHoc));
    EXPECT_THAT(callLines(), ElementsAre(ConnectLine("HomeNet", "null", "infrastructure"),
                                         ConnectLine("AdHocNet", "null", "independent")));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

// Deliberate: the only one of these methods that traces through the shared buffer.
TEST_F(ConnectTest, RecoverConnectionFailures)
{
    CheckFailures(*this, {{"RecoverConnection", RecoverHomeNet, "WlanOpenHandle", -1, {kOpenFailed}},
                          {"RecoverConnection", RecoverHomeNet, "WlanConnect", -4, {kConnectFailed}}});
}

// --- ResetConnection --------------------------------------------------------------------------------------------

TEST_F(ConnectTest, ResetConnectionAsksAgainForTheConnectionThatIsUp)
{
    EXPECT_EQ(0, ResetA(manager()));
    EXPECT_THAT(callLines(), ElementsAre(kConnectionQuery, ConnectLine("HomeNet", "null", "infrastructure"), kRelease));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(ConnectTest, ResetConnectionKeepsProfileAndBssType)
{
    simulation::Scenario world = RichWorld();
    world.adapters[0].connection = simulation::Connection{"AdHocNet", kAdHocNet};
    UseWorld(world);
    EXPECT_EQ(0, ResetA(manager()));
    EXPECT_EQ(ConnectLine("AdHocNet", "null", "independent"), call("WlanConnect").line);
}

TEST_F(ConnectTest, ResetConnectionFailures)
{
    CheckFailures(*this, {{"ResetConnection", ResetA, "WlanOpenHandle", -1, {kOpenFailed}, TraceBuffer::local},
                          {"ResetConnection", ResetA, "WlanQueryInterface", -4, {kQueryFailed}, TraceBuffer::local},
                          {"ResetConnection", ResetA, "WlanConnect", -5, {kConnectFailed}, TraceBuffer::local},
                          {.method = "ResetConnection, not connected",
                           .call = ResetA,
                           .expected = -4,
                           .traced = {kNotConnected},
                           .buffer = TraceBuffer::local,
                           .prepare = [](auto& test) { test.UseWorld(DisconnectedWorld()); }}});
}

// --- All --------------------------------------------------------------------------------------------------------

TEST_F(ConnectTest, LargeErrorNumbersComeThroughInAllTheirBits)
{
    FailOn("WlanConnect", 0x80342002);
    FailOn("WlanDisconnect", 0x80342002);
    const int expected = static_cast<int>(0x80342002u);
    EXPECT_EQ(expected, LinkHomeNet(manager()));
    EXPECT_EQ(expected, DisconnectA(manager()));
    EXPECT_EQ(-6, kReconnectForms[0].call(manager(), kHome, 20));
    EXPECT_EQ(-4, RecoverHomeNet(manager()));
    EXPECT_EQ(-5, ResetA(manager()));
    EXPECT_THAT(traced(),
                ElementsAre("WlanConnect failed with error: 2150899714", "WlanDisconnect failed with error: 2150899714",
                            "WlanConnect failed with error: 2150899714", "WlanConnect failed with error: 2150899714",
                            "WlanConnect failed with error: 2150899714"));
}

TEST_F(ConnectTest, ANullRecordIsRefusedBeforeAnything)
{
    ForgetClient();
    WLAN_CONNECTION_ATTRIBUTES* const noAttributes = nullptr;
    WLAN_CONNECTION_NOTIFICATION_DATA* const noData = nullptr;
    EXPECT_EQ(-14, manager().Reconnect(&kAdapterA, noAttributes, 20));
    EXPECT_EQ(-14, manager().Reconnect(&kAdapterA, noData, 20));
    EXPECT_EQ(-14, manager().RecoverConnection(&kAdapterA, noAttributes));
    EXPECT_TRUE(calls().empty());
    EXPECT_TRUE(traced().empty());
}

TEST_F(ConnectTest, ANullInterfaceIsTheServicesToRefuse)
{
    auto record = kHome.Attributes();
    EXPECT_EQ(-4, manager().Reconnect(nullptr, &record, 20));
    EXPECT_EQ(-4, manager().RecoverConnection(nullptr, &record));
    EXPECT_EQ(-4, manager().ResetConnection(nullptr));
    EXPECT_THAT(traced(), ElementsAre("WlanGetNetworkBssList failed with error: 87",
                                      "WlanConnect failed with error: 87", "WlanQueryInterface failed with error: 87"));
}

} // namespace calvix::test::connect_test
