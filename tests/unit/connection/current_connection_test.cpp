#include "support/edited_answers.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"
#include "unit/call_lines.h"

#include <algorithm>
#include <cstring>

namespace calvix::test::current_connection_test
{

using ::testing::ElementsAre;

namespace
{

class CurrentConnectionTest : public LibraryTest
{
};

/// A record that shows what was written to it.
WLAN_CONNECTION_ATTRIBUTES Marked()
{
    WLAN_CONNECTION_ATTRIBUTES record;
    std::memset(&record, 0x5A, sizeof record);
    return record;
}

bool IsMarked(const WLAN_CONNECTION_ATTRIBUTES& record, std::size_t from = 0)
{
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&record);
    return std::all_of(bytes + from, bytes + sizeof record, [](unsigned char byte) { return byte == 0x5A; });
}

std::string Ssid(const WLAN_CONNECTION_ATTRIBUTES& record)
{
    const DOT11_SSID& ssid = record.wlanAssociationAttributes.dot11Ssid;
    return {ssid.ucSSID, ssid.ucSSID + ssid.uSSIDLength};
}

void ExpectHomeNet(const WLAN_CONNECTION_ATTRIBUTES& record)
{
    EXPECT_EQ(wlan_interface_state_connected, record.isState);
    EXPECT_EQ(std::wstring(L"HomeNet"), record.strProfileName);
    EXPECT_EQ("HomeNet", Ssid(record));
    EXPECT_EQ(dot11_BSS_type_infrastructure, record.wlanAssociationAttributes.dot11BssType);
    EXPECT_TRUE(std::equal(kHomeNet24.begin(), kHomeNet24.end(), record.wlanAssociationAttributes.dot11Bssid));
    EXPECT_TRUE(record.wlanSecurityAttributes.bSecurityEnabled);
}

/// The service states another size for the record of the current connection.
AnswerChanges WithSize(DWORD stated)
{
    return {.query = [stated](WLAN_INTF_OPCODE, PVOID, DWORD& size) { size = stated; }};
}

AnswerChanges WithSsid(const DOT11_SSID& ssid)
{
    return {.currentConnection = [ssid](WLAN_CONNECTION_ATTRIBUTES& connection)
            { connection.wlanAssociationAttributes.dot11Ssid = ssid; }};
}

} // namespace

// --- GetCurrentConnection ---

TEST_F(CurrentConnectionTest, GivesTheWholeRecordOfTheNamedInterface)
{
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapterA, &record));
    ExpectHomeNet(record);
    EXPECT_EQ(100u, record.wlanAssociationAttributes.wlanSignalQuality);
    EXPECT_THAT(callLines(), ElementsAre(ConnectionQuery(), kRelease));
    ExpectSilence();
}

TEST_F(CurrentConnectionTest, GivesTheWholeRecordOfTheFirstInterface)
{
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    EXPECT_EQ(0, manager().GetCurrentConnection(&record));
    ExpectHomeNet(record);
    EXPECT_THAT(callLines(), ElementsAre(InterfacesLine(), ConnectionQuery(), kRelease, kRelease));
    ExpectSilence();
}

TEST_F(CurrentConnectionTest, CopiesAsManyBytesAsTheServiceStates)
{
    constexpr DWORD stated = offsetof(WLAN_CONNECTION_ATTRIBUTES, wlanSecurityAttributes);
    const EditedAnswers altered(WithSize(stated));
    WLAN_CONNECTION_ATTRIBUTES records[] = {Marked(), Marked(), Marked()};
    char ssid[33] = {};
    EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapterA, &records[0]));
    EXPECT_EQ(0, manager().GetCurrentConnection(&records[1]));
    EXPECT_EQ(0, manager().GetCurrentSSID(ssid, sizeof ssid, &records[2]));
    for (const auto& record : records)
    {
        EXPECT_EQ(std::wstring(L"HomeNet"), record.strProfileName);
        EXPECT_TRUE(IsMarked(record, stated));
    }
}

TEST_F(CurrentConnectionTest, MoreThanTheRecordHoldsIsFatal)
{
    const EditedAnswers altered(WithSize(sizeof(WLAN_CONNECTION_ATTRIBUTES) + 1));
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    char ssid[33] = {};
    ExpectFatal([&] { manager().GetCurrentConnection(&kAdapterA, &record); }, "GetCurrentConnection");
    ExpectFatal([&] { manager().GetCurrentConnection(&record); }, "GetCurrentConnection");
    ExpectFatal([&] { manager().GetCurrentSSID(ssid, sizeof ssid, &record); }, "GetCurrentSSID");
    EXPECT_TRUE(IsMarked(record));
}

TEST_F(CurrentConnectionTest, ANullRecordIsFatal)
{
    char ssid[33] = {};
    ExpectFatal([&] { manager().GetCurrentConnection(&kAdapterA, nullptr); }, "GetCurrentConnection");
    ExpectFatal([&] { manager().GetCurrentConnection(nullptr); }, "GetCurrentConnection");
    ExpectFatal([&] { manager().GetCurrentSSID(ssid, sizeof ssid, nullptr); }, "GetCurrentSSID");
}

TEST_F(CurrentConnectionTest, ANullRecordDoesNotMatterWithoutAConnection)
{
    UseScenario(DisconnectedScenario());
    EXPECT_EQ(-4, manager().GetCurrentConnection(&kAdapterA, nullptr));
    EXPECT_EQ(-4, manager().GetCurrentConnection(nullptr));
}

TEST_F(CurrentConnectionTest, LaterInterfacesAreNeverAsked)
{
    simulation::Scenario scenario = DisconnectedScenario();
    scenario.adapters[1].connection = simulation::Connection{"CafeNet", kCafeNet};
    UseScenario(scenario);
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    char ssid[33] = {};
    EXPECT_EQ(-4, manager().GetCurrentConnection(&record));
    EXPECT_EQ(-4, manager().GetCurrentSSID(ssid, sizeof ssid));
    EXPECT_EQ(-4, manager().GetCurrentSSID(ssid, sizeof ssid, &record));
    EXPECT_EQ(3u, callCount("WlanQueryInterface"));
    EXPECT_EQ(kAdapterAText, call("WlanQueryInterface", 3)["interface"]);
    EXPECT_TRUE(IsMarked(record));
    EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapterB, &record)) << "by its GUID it is found";
    EXPECT_EQ("CafeNet", Ssid(record));
}

// --- GetCurrentSSID ---

TEST_F(CurrentConnectionTest, GivesTheSsidAsText)
{
    char ssid[33];
    std::memset(ssid, '#', sizeof ssid);
    EXPECT_EQ(0, manager().GetCurrentSSID(ssid, sizeof ssid));
    EXPECT_STREQ("HomeNet", ssid);
    EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WlanQueryInterface", "MultiByteToWideChar",
                                     "WideCharToMultiByte", "WlanFreeMemory", "WlanFreeMemory"));
    EXPECT_EQ(ConnectionQuery(), callLines()[1]);
    ExpectSilence();
}

TEST_F(CurrentConnectionTest, GivesTheSsidAsTextAndTheRecord)
{
    char ssid[33] = {};
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    EXPECT_EQ(0, manager().GetCurrentSSID(ssid, sizeof ssid, &record));
    EXPECT_STREQ("HomeNet", ssid);
    ExpectHomeNet(record);
    EXPECT_THAT(calls(), ElementsAre("WlanEnumInterfaces", "WlanQueryInterface", "MultiByteToWideChar",
                                     "WideCharToMultiByte", "WlanFreeMemory", "WlanFreeMemory"));
}

TEST_F(CurrentConnectionTest, CutsTheSsidToTheRoomThereIs)
{
    char ssid[] = "#########";
    EXPECT_EQ(0, manager().GetCurrentSSID(ssid, 5));
    EXPECT_STREQ("Home", ssid);
    EXPECT_STREQ("####", ssid + 5) << "nothing past the terminator is written";

    EXPECT_EQ(0, manager().GetCurrentSSID(ssid, 0));
    EXPECT_STREQ("Home", ssid) << "no room, nothing written";
    EXPECT_EQ(0, manager().GetCurrentSSID(ssid, -1));
    EXPECT_STREQ("", ssid);
}

TEST_F(CurrentConnectionTest, TakesTheSsidAsUtf8)
{
    const EditedAnswers altered(WithSsid(MakeSsid("Caf\xC3\xA9")));
    char ssid[33] = {};
    EXPECT_EQ(0, manager().GetCurrentSSID(ssid, sizeof ssid));
    EXPECT_STREQ("Caf\xE9", ssid) << "in the active code page, 1252";
}

TEST_F(CurrentConnectionTest, AnSsidThatCannotBeConvertedIsNotAFailure)
{
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    for (const char* operation : {"MultiByteToWideChar", "WideCharToMultiByte"})
    {
        ClearFailures();
        FailOn(operation);
        char ssid[8] = "marked";
        EXPECT_EQ(0, manager().GetCurrentSSID(ssid, sizeof ssid)) << operation;
        EXPECT_EQ(0, manager().GetCurrentSSID(ssid, sizeof ssid, &record)) << operation;
        EXPECT_STREQ("marked", ssid);
        EXPECT_EQ(2u, InjectedFailures());
        ExpectHomeNet(record);
    }
    EXPECT_TRUE(traced().empty());
}

TEST_F(CurrentConnectionTest, ANullSsidBufferIsLeftAlone)
{
    EXPECT_EQ(0, manager().GetCurrentSSID(nullptr, 33));
}

} // namespace calvix::test::current_connection_test
