#include "methods/method.h"
#include "support/edited_answers.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"
#include "unit/call_lines.h"
#include "unit/inventory/trace_texts.h"

#include <algorithm>
#include <array>

namespace calvix::test::link_info_test
{

using ::testing::ElementsAre;

namespace
{

/// GetCurrentLinkInfo with outputs that show what was written.
struct LinkInfo
{
    int state = 77;
    int bssType = 78;
    char ssid[10] = "#########";
    std::array<char, 7> bssid = {'#', '#', '#', '#', '#', '#', '#'};

    int Ask(CWirelessManage& manager, const GUID* guid = &kAdapterA, int ssidCapacity = sizeof ssid)
    {
        return manager.GetCurrentLinkInfo(guid, &state, &bssType, ssid, ssidCapacity, bssid.data());
    }

    simulation::MacAddress Bssid() const
    {
        simulation::MacAddress address{};
        std::transform(bssid.begin(), bssid.begin() + 6, address.begin(),
                       [](char byte) { return static_cast<std::uint8_t>(byte); });
        return address;
    }
};

class LinkInfoTest : public LibraryTest
{
};

class CurrentWiFiTest : public LibraryTest
{
public:
    WLAN_CONNECTION_ATTRIBUTES Current()
    {
        WLAN_CONNECTION_ATTRIBUTES record{};
        EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapterA, &record));
        ClearCalls();
        return record;
    }
};

/// Attributes as a host keeps them: of a network, even if the adapter is not connected to it.
WLAN_CONNECTION_ATTRIBUTES KeptAttributes(const std::string& ssid = "HomeNet", BOOL secured = TRUE)
{
    WLAN_CONNECTION_ATTRIBUTES record = methods::ConnectionWith(ssid);
    record.wlanSecurityAttributes.bSecurityEnabled = secured;
    return record;
}

} // namespace

// --- GetCurrentLinkInfo ---

TEST_F(LinkInfoTest, SumsUpTheConnection)
{
    LinkInfo info;
    EXPECT_EQ(0, info.Ask(manager()));
    EXPECT_EQ(1, info.state) << "connected";
    EXPECT_EQ(1, info.bssType) << "infrastructure";
    EXPECT_STREQ("HomeNet", info.ssid);
    EXPECT_EQ(kHomeNet24, info.Bssid());
    EXPECT_EQ('#', info.bssid[6]) << "six bytes and no terminator";
    EXPECT_THAT(calls(),
                ElementsAre("WlanQueryInterface", "MultiByteToWideChar", "WideCharToMultiByte", "WlanFreeMemory"));
    EXPECT_EQ(ConnectionQuery(), callLines()[0]);
    ExpectSilence();
}

TEST_F(LinkInfoTest, ReportsStateAndBssTypeAsTheyAre)
{
    const EditedAnswers altered({.currentConnection = [](WLAN_CONNECTION_ATTRIBUTES& connection)
                                 {
                                     connection.isState = wlan_interface_state_authenticating;
                                     connection.wlanAssociationAttributes.dot11BssType = dot11_BSS_type_independent;
                                 }});
    LinkInfo info;
    EXPECT_EQ(0, info.Ask(manager()));
    EXPECT_EQ(7, info.state);
    EXPECT_EQ(2, info.bssType);
}

TEST_F(LinkInfoTest, CutsTheSsidToTheRoomThereIs)
{
    LinkInfo info;
    EXPECT_EQ(0, info.Ask(manager(), &kAdapterA, 5));
    EXPECT_STREQ("Home", info.ssid);
    EXPECT_STREQ("####", info.ssid + 5);
    EXPECT_EQ(kHomeNet24, info.Bssid());
}

TEST_F(LinkInfoTest, AnSsidThatCannotBeConvertedIsNotAFailure)
{
    FailOn("MultiByteToWideChar");
    LinkInfo info;
    EXPECT_EQ(0, info.Ask(manager()));
    EXPECT_STREQ("#########", info.ssid);
    EXPECT_EQ(1, info.state);
    EXPECT_EQ(1, info.bssType);
    EXPECT_EQ(kHomeNet24, info.Bssid());
}

TEST_F(LinkInfoTest, StateBssTypeAndSsidAreOptional)
{
    LinkInfo info;
    EXPECT_EQ(0, manager().GetCurrentLinkInfo(&kAdapterA, nullptr, nullptr, nullptr, 10, info.bssid.data()));
    EXPECT_EQ(kHomeNet24, info.Bssid());
}

// The order of the outputs shows: what comes before the BSSID is written, what comes after it is not.
TEST_F(LinkInfoTest, ANullBssidIsFatal)
{
    LinkInfo info;
    ExpectFatal(
        [&]
        { manager().GetCurrentLinkInfo(&kAdapterA, &info.state, &info.bssType, info.ssid, sizeof info.ssid, nullptr); },
        "GetCurrentLinkInfo");
    EXPECT_EQ(1, info.state);
    EXPECT_STREQ("HomeNet", info.ssid);
    EXPECT_EQ(78, info.bssType);
}

// --- GetCurrentWiFi ---

TEST_F(CurrentWiFiTest, CountsTheAccessPointsOfTheNetwork)
{
    WLAN_CONNECTION_ATTRIBUTES record = Current();
    EXPECT_EQ(3, manager().GetCurrentWiFi(&kAdapterA, &record));
    EXPECT_THAT(callLines(), ElementsAre(NetworkBssLine("HomeNet"), kRelease));
    EXPECT_THAT(traced(), ElementsAre(kBssReleased));
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(CurrentWiFiTest, TracesTheReleaseJustBeforeIt)
{
    WLAN_CONNECTION_ATTRIBUTES record = KeptAttributes();
    manager().GetCurrentWiFi(&kAdapterA, &record);
    const std::vector<std::string> lines = timeline();
    ASSERT_EQ(4u, lines.size());
    EXPECT_THAT(lines[1], ::testing::HasSubstr(kBssReleased));
    EXPECT_EQ(kRelease, lines[3]);
}

TEST_F(CurrentWiFiTest, TheNetworkIsThatOfTheRecord)
{
    WLAN_CONNECTION_ATTRIBUTES cafe = KeptAttributes("CafeNet", FALSE);
    EXPECT_EQ(1, manager().GetCurrentWiFi(&kAdapterB, &cafe));
    EXPECT_EQ("WlanGetNetworkBssList(client=1, interface=" + std::string(kAdapterBText) +
                  ", ssid=\"CafeNet\"/7, bssType=infrastructure, securityEnabled=false, reserved=null, list=non-null)",
              callLines()[0]);

    WLAN_CONNECTION_ATTRIBUTES adHoc = KeptAttributes("AdHocNet", FALSE);
    adHoc.wlanAssociationAttributes.dot11BssType = dot11_BSS_type_independent;
    EXPECT_EQ(1, manager().GetCurrentWiFi(&kAdapterA, &adHoc));
    EXPECT_EQ("independent", call("WlanGetNetworkBssList", 2)["bssType"]);
}

TEST_F(CurrentWiFiTest, OutOfRangeIsNotAFailure)
{
    WLAN_CONNECTION_ATTRIBUTES gone = KeptAttributes("GoneNet");
    EXPECT_EQ(0, manager().GetCurrentWiFi(&kAdapterA, &gone));
    EXPECT_THAT(traced(), ElementsAre(kBssReleased));
    EXPECT_TRUE(sharedTraceUntouched());
}

} // namespace calvix::test::link_info_test
