#include "support/edited_answers.h"
#include "support/library_test.h"
#include "support/strict_copy_guard.h"
#include "unit/call_lines.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace calvix::test::saved_connection_test
{

using ::testing::ElementsAre;

namespace
{

template <typename Record>
bool IsZero(const Record& record)
{
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&record);
    return std::all_of(bytes, bytes + sizeof record, [](unsigned char byte) { return byte == 0; });
}

WLAN_CONNECTION_NOTIFICATION_DATA HomeNetNotification()
{
    WLAN_CONNECTION_NOTIFICATION_DATA data{};
    data.wlanConnectionMode = wlan_connection_mode_profile;
    std::copy_n(L"HomeNet", 8, data.strProfileName);
    data.dot11Ssid = MakeSsid("HomeNet");
    data.dot11BssType = dot11_BSS_type_infrastructure;
    data.bSecurityEnabled = TRUE;
    data.wlanReasonCode = 7;
    data.dwFlags = 9;
    data.strProfileXml[0] = L'<';
    return data;
}

simulation::Scenario ConnectedBy(const std::string& profile, const simulation::MacAddress& accessPoint)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[0].connection = simulation::Connection{profile, accessPoint};
    return scenario;
}

class SavedConnectionTest : public LibraryTest
{
public:
    WLAN_CONNECTION_ATTRIBUTES& Saved() { return ManagerInternals::SavedConnection(manager()); }
    WLAN_CONNECTION_NOTIFICATION_DATA& SavedNotification() { return ManagerInternals::SavedNotification(manager()); }
    int& SavedMode() { return ManagerInternals::SavedAutoConnMode(manager()); }
};

long long Save(CWirelessManage& manager)
{
    return manager.SaveCurrentConnectionAttributes(&kAdapterA);
}

long long Recover(CWirelessManage& manager)
{
    return manager.RecoverConnetionAttributes(&kAdapterA);
}

long long RecoverNotification(CWirelessManage& manager)
{
    return manager.RecoverConnNotificationData(&kAdapterA);
}

void SaveNotificationFirst(LibraryTest& test)
{
    auto data = HomeNetNotification();
    test.manager().SaveConnNotificationData(&data);
}

} // namespace

// --- SaveCurrentConnectionAttributes ----------------------------------------------------------------------------

TEST_F(SavedConnectionTest, TheMemoryIsEmptyAtFirst)
{
    EXPECT_TRUE(IsZero(Saved()));
    EXPECT_TRUE(IsZero(SavedNotification()));
    EXPECT_EQ(1, SavedMode());
}

TEST_F(SavedConnectionTest, SavesTheWholeRecordAndTheProfilesMode)
{
    SavedMode() = 0;
    EXPECT_EQ(0, Save(manager()));
    EXPECT_THAT(callLines(), ElementsAre(ConnectionQuery(), ReadProfileLine("HomeNet"), kRelease, kRelease));
    ExpectSilence();
    EXPECT_EQ(1, SavedMode());

    WLAN_CONNECTION_ATTRIBUTES current{};
    EXPECT_EQ(0, manager().GetCurrentConnection(&kAdapterA, &current));
    EXPECT_EQ(std::wstring(L"HomeNet"), current.strProfileName);
    EXPECT_EQ(0, std::memcmp(&current, &Saved(), sizeof current));
}

TEST_F(SavedConnectionTest, CopiesAsManyBytesAsTheServiceReturned)
{
    constexpr DWORD stated = offsetof(WLAN_CONNECTION_ATTRIBUTES, wlanAssociationAttributes);
    std::memset(&Saved(), 0x5A, sizeof Saved());
    const EditedAnswers altered({.query = [](WLAN_INTF_OPCODE, PVOID, DWORD& size) { size = stated; }});
    EXPECT_EQ(0, Save(manager()));
    EXPECT_EQ(std::wstring(L"HomeNet"), Saved().strProfileName);
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&Saved());
    EXPECT_TRUE(std::all_of(bytes + stated, bytes + sizeof Saved(), [](unsigned char byte) { return byte == 0x5A; }));
}

TEST_F(SavedConnectionTest, AnythingButAutoIsNotAutomatic)
{
    for (const wchar_t* text : {L"", L"<connectionMode>Auto</connectionMode>", L"auto</connectionMode>",
                                L"<connectionMode> auto</connectionMode>"})
    {
        EditedAnswers edited;
        edited.service.SetProfileText(L"HomeNet", text);
        SavedMode() = 1;
        EXPECT_EQ(0, Save(manager()));
        EXPECT_EQ(0, SavedMode());
    }
}

TEST_F(SavedConnectionTest, EachSaveOverwritesTheOneBefore)
{
    simulation::Scenario scenario = RichScenario();
    scenario.adapters[1].connection = simulation::Connection{"CafeNet", kCafeNet};
    UseScenario(scenario);
    EXPECT_EQ(0, Save(manager()));
    EXPECT_EQ(0, manager().SaveCurrentConnectionAttributes(&kAdapterB));
    EXPECT_EQ(std::wstring(L"CafeNet"), Saved().strProfileName);
    EXPECT_EQ(0, SavedMode());
    EXPECT_EQ(0, Save(manager()));
    EXPECT_EQ(std::wstring(L"HomeNet"), Saved().strProfileName);
    EXPECT_EQ(1, SavedMode());
}

TEST_F(SavedConnectionTest, AFailingQueryKeepsWhatWasSaved)
{
    EXPECT_EQ(0, Save(manager()));
    SavedMode() = 0;
    manager().Disconnect(&kAdapterA);
    EXPECT_EQ(-4, Save(manager()));
    EXPECT_EQ(std::wstring(L"HomeNet"), Saved().strProfileName);
    EXPECT_EQ(0, SavedMode());
}

// Deliberate: the record is the new one, the mode is the former one.
TEST_F(SavedConnectionTest, AProfileDeletedMeanwhileIsSavedHalf)
{
    EditedAnswers edited;
    edited.service.currentConnection = [](WLAN_CONNECTION_ATTRIBUTES& connection)
    { std::copy_n(L"Deleted", 8, connection.strProfileName); };
    EXPECT_EQ(-5, Save(manager()));
    EXPECT_THAT(traced(), ElementsAre("WlanGetProfile failed with error: 1168"));
    EXPECT_EQ(std::wstring(L"Deleted"), Saved().strProfileName);
    EXPECT_EQ(1, SavedMode());
}

// --- RecoverConnetionAttributes ---------------------------------------------------------------------------------

TEST_F(SavedConnectionTest, RecoversTheSavedConnection)
{
    EXPECT_EQ(0, Save(manager()));
    EXPECT_EQ(0, manager().Disconnect(&kAdapterA));
    ClearCalls();
    EXPECT_EQ(0, Recover(manager()));
    EXPECT_THAT(callLines(), ElementsAre(NetworkBssLine("HomeNet"), ConnectLine("HomeNet"), kRelease))
        << "the service chooses the access point";
    ExpectSilence();
    Advance(std::chrono::seconds(5));
    EXPECT_EQ(1, manager().WiFiIsConnected(&kAdapterA));
}

TEST_F(SavedConnectionTest, RecoversWithTheSavedBssTypeAndSecurity)
{
    UseScenario(ConnectedBy("AdHocNet", kAdHocNet));
    EXPECT_EQ(0, Save(manager()));
    SavedMode() = 1;
    ClearCalls();
    EXPECT_EQ(0, Recover(manager()));
    EXPECT_THAT(callLines(), ElementsAre(NetworkBssLine("AdHocNet", "independent"),
                                         ConnectLine("AdHocNet", "null", "independent"), kRelease));
}

TEST_F(SavedConnectionTest, RecoveringOnlyReadsTheMemory)
{
    EXPECT_EQ(0, Save(manager()));
    const WLAN_CONNECTION_ATTRIBUTES before = Saved();
    EXPECT_EQ(0, Recover(manager()));
    EXPECT_EQ(0, Recover(manager()));
    EXPECT_EQ(0, std::memcmp(&before, &Saved(), sizeof before));
    EXPECT_EQ(1, SavedMode());
}

TEST_F(SavedConnectionTest, AManualConnectionIsNeverRecovered)
{
    UseScenario(ConnectedBy("OfficeNet", kOfficeNet));
    EXPECT_EQ(0, Save(manager()));
    ForgetClient();
    EXPECT_EQ(-99, Recover(manager()));
    EXPECT_EQ(-99, manager().RecoverConnetionAttributes(nullptr));
    EXPECT_TRUE(timeline().empty()) << "no platform call, no trace";
    EXPECT_TRUE(sharedTraceUntouched());
}

// Deliberate: an empty memory is not distinguished from a saved connection.
TEST_F(SavedConnectionTest, AnEmptyMemoryAsksForTheEmptySsid)
{
    EXPECT_EQ(-5, Recover(manager()));
    EXPECT_THAT(callLines(), ElementsAre(BssLine("\"\"/0", "0", "false"), kRelease));
    EXPECT_TRUE(traced().empty());
}

// --- SaveConnNotificationData -----------------------------------------------------------------------------------

TEST_F(SavedConnectionTest, SavesTheFixedPartOfANotification)
{
    struct
    {
        WLAN_CONNECTION_NOTIFICATION_DATA data = HomeNetNotification();
        wchar_t restOfTheXml[16] = L"?xml ...";
    } notification;
    const auto before = notification.data;
    manager().SaveConnNotificationData(&notification.data);
    EXPECT_EQ(0, std::memcmp(&before, &SavedNotification(), sizeof before));
    EXPECT_EQ(1, SavedMode()) << "its neighbour in the manager is not written over";
    EXPECT_TRUE(IsZero(Saved()));
    EXPECT_TRUE(timeline().empty()) << "no platform call, no trace";

    const WLAN_CONNECTION_NOTIFICATION_DATA nothing{};
    notification.data = nothing;
    manager().SaveConnNotificationData(&notification.data);
    EXPECT_TRUE(IsZero(SavedNotification()));
}

TEST_F(SavedConnectionTest, TheFixedPartEndsWithTheFirstCharacterOfTheXml)
{
    if constexpr (sizeof(wchar_t) != 2 || sizeof(unsigned long) != 4)
        GTEST_SKIP() << "the size is that of Windows; here the platform's records have other sizes";
    EXPECT_EQ(572u, sizeof(WLAN_CONNECTION_NOTIFICATION_DATA));
}

TEST_F(SavedConnectionTest, ANullNotificationEmptiesTheMemoryAndIsFatal)
{
    SaveNotificationFirst(*this);
    ASSERT_FALSE(IsZero(SavedNotification()));
    ExpectFatal([&] { manager().SaveConnNotificationData(nullptr); }, "SaveConnNotificationData");
    EXPECT_TRUE(IsZero(SavedNotification()));
    EXPECT_TRUE(timeline().empty());
}

// --- RecoverConnNotificationData --------------------------------------------------------------------------------

TEST_F(SavedConnectionTest, TheSavedModeDoesNotMatterToNotifications)
{
    SaveNotificationFirst(*this);
    SavedMode() = 0;
    EXPECT_EQ(0, RecoverNotification(manager()));
}

// Deliberate: nothing checks that anything was saved.
TEST_F(SavedConnectionTest, WithoutANotificationTheEmptySsidIsReconnected)
{
    EXPECT_EQ(-6, RecoverNotification(manager()));
    EXPECT_THAT(callLines(), ElementsAre(BssLine("\"\"/0", "0", "false"), kRelease));
}

TEST_F(SavedConnectionTest, TheMemoryIsTheInstances)
{
    EXPECT_EQ(0, Save(manager()));
    SaveNotificationFirst(*this);
    CWirelessManage::Delete();
    ManagerInternals::Client() = nullptr;
    CWirelessManage::Get();
    EXPECT_TRUE(IsZero(Saved()));
    EXPECT_TRUE(IsZero(SavedNotification()));
    EXPECT_EQ(1, SavedMode());
}

} // namespace calvix::test::saved_connection_test
