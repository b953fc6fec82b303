#include "support/altered_answers.h"
#include "support/contract_table.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"
#include "unit/inventory/trace_texts.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

namespace calvix::test::current_connection_test
{

using ::testing::ElementsAre;

namespace
{

const std::string kA = kAdapterAText;
const char* const kEnumeration = "WlanEnumInterfaces(client=1, reserved=null, list=non-null)";
const std::string kConnectionQuery =
    "WlanQueryInterface(client=1, interface=" + kA +
    ", opcode=current_connection, reserved=null, dataSize=sizeof(WLAN_CONNECTION_ATTRIBUTES), data=non-null, "
    "valueType=null)";

class CurrentConnectionTest : public LibraryTest
{
};

using CurrentConnectionDeathTest = CurrentConnectionTest;

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

// The calls of the failure tables: each has to leave its outputs alone.

long long Connection(CWirelessManage& manager)
{
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    const int code = manager.GetCurrentConnection(&kAdapterA, &record);
    EXPECT_TRUE(IsMarked(record));
    return code;
}

long long FirstConnection(CWirelessManage& manager)
{
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    const int code = manager.GetCurrentConnection(&record);
    EXPECT_TRUE(IsMarked(record));
    return code;
}

long long FirstSsid(CWirelessManage& manager)
{
    char ssid[8] = "marked";
    const int code = manager.GetCurrentSSID(ssid, sizeof ssid);
    EXPECT_STREQ("marked", ssid);
    return code;
}

long long FirstSsidAndRecord(CWirelessManage& manager)
{
    char ssid[8] = "marked";
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    const int code = manager.GetCurrentSSID(ssid, sizeof ssid, &record);
    EXPECT_STREQ("marked", ssid);
    EXPECT_TRUE(IsMarked(record));
    return code;
}

void UseNoConnection(LibraryTest& test)
{
    test.UseWorld(DisconnectedWorld());
}

void UseNoAdapter(LibraryTest& test)
{
    test.UseWorld(NoAdapterWorld());
}

/// Only the second of the two adapters is connected.
void UseSecondConnected(LibraryTest& test)
{
    simulation::Scenario world = DisconnectedWorld();
    world.adapters[1].connection = simulation::Connection{"CafeNet", kCafeNet};
    test.UseWorld(world);
}

/// The service states another size for the record of the current connection.
AnswerChanges WithSize(DWORD stated)
{
    return {.query = [stated](WLAN_INTF_OPCODE, PVOID, DWORD& size) { size = stated; }};
}

AnswerChanges WithSsid(const DOT11_SSID& ssid)
{
    return {.query = [ssid](WLAN_INTF_OPCODE, PVOID data, DWORD&)
            { static_cast<WLAN_CONNECTION_ATTRIBUTES*>(data)->wlanAssociationAttributes.dot11Ssid = ssid; }};
}

struct FirstInterfaceMethod
{
    const char* name;
    long long (*call)(CWirelessManage&);
};

const FirstInterfaceMethod kFirstInterfaceMethods[] = {{"GetCurrentConnection(record)", FirstConnection},
                                                       {"GetCurrentSSID(text)", FirstSsid},
                                                       {"GetCurrentSSID(text, record)", FirstSsidAndRecord}};

} // namespace

// --- GetCurrentConnection ---

TEST_F(CurrentConnectionTest, GivesTheWholeRecordOfTheNamedInterface)
{
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapterA, &record));
    ExpectHomeNet(record);
    EXPECT_EQ(100u, record.wlanAssociationAttributes.wlanSignalQuality);
    EXPECT_THAT(callLines(), ElementsAre(kConnectionQuery, kRelease));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(CurrentConnectionTest, GivesTheWholeRecordOfTheFirstInterface)
{
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
    EXPECT_EQ(0, manager().GetCurrentConnection(&record));
    ExpectHomeNet(record);
    EXPECT_THAT(callLines(), ElementsAre(kEnumeration, kConnectionQuery, kRelease, kRelease));
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
}

TEST_F(CurrentConnectionTest, CopiesAsManyBytesAsTheServiceStates)
{
    constexpr DWORD stated = offsetof(WLAN_CONNECTION_ATTRIBUTES, wlanSecurityAttributes);
    const AlteredAnswers altered(WithSize(stated));
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
    const AlteredAnswers altered(WithSize(sizeof(WLAN_CONNECTION_ATTRIBUTES) + 1));
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
    UseWorld(DisconnectedWorld());
    EXPECT_EQ(-4, manager().GetCurrentConnection(&kAdapterA, nullptr));
    EXPECT_EQ(-4, manager().GetCurrentConnection(nullptr));
}

TEST_F(CurrentConnectionDeathTest, AFatalCallerErrorEndsTheProcessVisibly)
{
    EXPECT_DEATH(manager().GetCurrentConnection(&kAdapterA, nullptr), "GetCurrentConnection");
}

TEST_F(CurrentConnectionTest, EveryWayToFail)
{
    CheckFailures(*this, {{"GetCurrentConnection(guid)", Connection, "WlanOpenHandle", -1, {kOpenFailed}},
                          {"GetCurrentConnection(guid)", Connection, "WlanQueryInterface", -4, {kQueryFailed}},
                          {.method = "GetCurrentConnection(guid), not connected",
                           .call = Connection,
                           .expected = -4,
                           .traced = {kNotConnected},
                           .prepare = UseNoConnection},
                          {.method = "GetCurrentConnection(null guid)",
                           .call =
                               [](auto& m)
                           {
                               WLAN_CONNECTION_ATTRIBUTES record = Marked();
                               const GUID* const none = nullptr;
                               return m.GetCurrentConnection(none, &record);
                           },
                           .expected = -4,
                           .traced = {"WlanQueryInterface failed with error: 87"}}});
}

TEST_F(CurrentConnectionTest, EveryWayToFailOnTheFirstInterface)
{
    for (const auto& [name, call] : kFirstInterfaceMethods)
    {
        CheckFailures(
            *this,
            {{name, call, "WlanOpenHandle", -1, {kOpenFailed}},
             {name, call, "WlanEnumInterfaces", -2, {kEnumFailed}},
             {.method = name, .call = call, .expected = -3, .traced = {kNoAdapterText}, .prepare = UseNoAdapter},
             {name, call, "WlanQueryInterface", -4, {kQueryFailed}},
             {.method = name, .call = call, .expected = -4, .traced = {kNotConnected}, .prepare = UseNoConnection}});
    }
}

TEST_F(CurrentConnectionTest, LaterInterfacesAreNeverAsked)
{
    for (const auto& [name, call] : kFirstInterfaceMethods)
    {
        UseSecondConnected(*this);
        EXPECT_EQ(-4, call(manager())) << name;
        EXPECT_EQ(1u, callCount("WlanQueryInterface")) << name;
        EXPECT_EQ(kA, this->call("WlanQueryInterface")["interface"]) << name;
    }
    WLAN_CONNECTION_ATTRIBUTES record = Marked();
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
    EXPECT_EQ(kConnectionQuery, callLines()[1]);
    EXPECT_TRUE(traced().empty());
    EXPECT_TRUE(sharedTraceUntouched());
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
    const AlteredAnswers altered(WithSsid(MakeSsid("Caf\xC3\xA9")));
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

TEST_F(CurrentConnectionTest, AnSsidThatCannotBeIsFatal)
{
    DOT11_SSID tooLong = MakeSsid("HomeNet");
    tooLong.uSSIDLength = 65;
    const AlteredAnswers altered(WithSsid(tooLong));
    char ssid[33] = {};
    ExpectFatal([&] { manager().GetCurrentSSID(ssid, sizeof ssid); }, "GetSSID");
}

TEST_F(CurrentConnectionTest, ANullSsidBufferIsLeftAlone)
{
    EXPECT_EQ(0, manager().GetCurrentSSID(nullptr, 33));
}

// --- All ---

} // namespace calvix::test::current_connection_test
