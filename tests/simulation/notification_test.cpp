// The notifications of clients, and their order.
#include "service_fixture.h"

#include <algorithm>
#include <cstring>

namespace calvix::simulation::notification_test
{

namespace
{

using std::chrono::milliseconds;
using std::chrono::seconds;

class Notifications : public ServiceTest
{
protected:
    void StartListening(DWORD sources = WLAN_NOTIFICATION_SOURCE_ALL)
    {
        Start();
        ASSERT_EQ(Register(sources), ERROR_SUCCESS);
    }
};

const std::string cancelled = " reason " + std::to_string(WLAN_REASON_CODE_USER_CANCELLED);

TEST_F(Notifications, AConnectionGoesThroughAllItsStages)
{
    StartListening();
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    EXPECT_EQ(Told(), (Lines{"acm 9", "msm 1"}));
    computer->Advance(milliseconds(500));
    EXPECT_EQ(Told(), (Lines{"msm 2", "msm 3"}));
    computer->Advance(milliseconds(500));
    EXPECT_EQ(Told(), (Lines{"msm 4", "acm 10"}));
}

TEST_F(Notifications, AnOpenNetworkDoesNotAuthenticate)
{
    ProfileSettings settings;
    settings.name = "Cafe";
    settings.ssid = BytesOf("Cafe");
    settings.authentication = "open";
    settings.encryption = "none";
    scenario.adapters[0].profiles = {{MakeProfileXml(settings)}};
    scenario.accessPoints = {MakeOpenPoint("Cafe", 1, -50)};
    StartListening();
    ASSERT_EQ(Connect(L"Cafe"), ERROR_SUCCESS);
    computer->Advance(milliseconds(1000));
    EXPECT_EQ(Told(), (Lines{"acm 9", "msm 1", "msm 2", "msm 4", "acm 10"}));
}

TEST_F(Notifications, ANewConnectionTakesTheOldOneDownFirst)
{
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    StartListening(WLAN_NOTIFICATION_SOURCE_ACM);
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    EXPECT_EQ(Told(), (Lines{"acm 20" + cancelled, "acm 21" + cancelled, "acm 9"}));
    computer->Advance(seconds(1));
    EXPECT_EQ(Told(), Lines{"acm 10"});
}

TEST_F(Notifications, BothModulesReportADisconnection)
{
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    StartListening();
    ASSERT_EQ(Wlan().WlanDisconnect(client, &first, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(Told(), (Lines{"acm 20" + cancelled, "msm 9" + cancelled, "msm 10" + cancelled, "acm 21" + cancelled}));
    ASSERT_EQ(Wlan().WlanDisconnect(client, &first, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(Told(), Lines{}) << "there was nothing left to end";
}

TEST_F(Notifications, ScansAreReportedWhenTheyAreDone)
{
    StartListening();
    Scan(milliseconds(1999));
    EXPECT_EQ(Told(), Lines{});
    computer->Advance(milliseconds(1));
    EXPECT_EQ(Told(), Lines{"acm 7"});
}

TEST_F(Notifications, AScanThatTheRadioEndsHasFailed)
{
    scenario.adapters[0].phys.resize(1);
    StartListening(WLAN_NOTIFICATION_SOURCE_ACM);
    Scan(milliseconds(0));
    ASSERT_EQ(SetSoftwareRadio(0, dot11_radio_state_off), ERROR_SUCCESS);
    EXPECT_EQ(Told(), (Lines{"acm 8", "acm 26", "acm 18"}))
        << "the list is empty, and no network is available any more";
    ASSERT_EQ(SetSoftwareRadio(0, dot11_radio_state_on), ERROR_SUCCESS);
    computer->Advance(seconds(2));
    EXPECT_EQ(Told(), (Lines{"acm 7", "acm 26", "acm 19"}));
}

TEST_F(Notifications, SettingsAreReportedWhenTheyChange)
{
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", std::nullopt};
    StartListening();
    for (const BOOL enabled : {TRUE, FALSE, TRUE})
        ASSERT_EQ(Set(wlan_intf_opcode_autoconf_enabled, enabled), ERROR_SUCCESS);
    for (const BOOL enabled : {FALSE, TRUE})
        ASSERT_EQ(Set(wlan_intf_opcode_background_scan_enabled, enabled), ERROR_SUCCESS);
    computer->SetPowerSetting(wlan_power_setting_low_saving);
    ASSERT_EQ(SetSoftwareRadio(1, dot11_radio_state_off), ERROR_SUCCESS);
    EXPECT_EQ(Told(), (Lines{"acm 2", "acm 1", "acm 4", "acm 3", "acm 6", "msm 7"}));
}

TEST_F(Notifications, ProfileChangesAreReported)
{
    StartListening();
    ASSERT_EQ(SetProfile(MakeProfile("New", "New")), ERROR_SUCCESS);
    ASSERT_EQ(Wlan().WlanSetProfilePosition(client, &first, L"New", 1, nullptr), ERROR_SUCCESS);
    ASSERT_EQ(Wlan().WlanDeleteProfile(client, &first, L"New", nullptr), ERROR_SUCCESS);
    EXPECT_EQ(Wlan().WlanDeleteProfile(client, &first, L"New", nullptr), ERROR_NOT_FOUND);
    EXPECT_EQ(Told(), (Lines{"acm 15", "acm 15", "acm 15"}));
}

TEST_F(Notifications, SignalQualityIsReportedAsItChanges)
{
    scenario.accessPoints[0].timetable = {{0, -50}, {10'000, -60}};
    scenario.adapters[0].connection = simulation::Connection{"HomeNet", scenario.accessPoints[0].bssid};
    StartListening();
    computer->Advance(seconds(3));
    EXPECT_EQ(Told(), (Lines{"msm 8", "msm 8", "msm 8"}));
    computer->Advance(seconds(20));
    EXPECT_EQ(Told().size(), 7u) << "down to -60 and no further";
}

TEST_F(Notifications, AStoppedServiceReportsNothing)
{
    StartListening();
    computer->SetServiceRunning(false);
    computer->SetPowerSetting(wlan_power_setting_low_saving);
    computer->SetRadio(0, 1, RadioSwitch::off, RadioSwitch::on);
    EXPECT_EQ(Told(), Lines{});
}

TEST_F(Notifications, OnlyFromTheSourcesAskedFor)
{
    DWORD previous = 99;
    Start();
    EXPECT_EQ(Register(WLAN_NOTIFICATION_SOURCE_MSM, false, &previous), ERROR_SUCCESS);
    EXPECT_EQ(previous, 0u);
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    EXPECT_EQ(Told(), Lines{"msm 1"});
    EXPECT_EQ(Register(WLAN_NOTIFICATION_SOURCE_ACM, false, &previous), ERROR_SUCCESS);
    EXPECT_EQ(previous, WLAN_NOTIFICATION_SOURCE_MSM);
    computer->Advance(seconds(1));
    EXPECT_EQ(Told(), Lines{"acm 10"});
    EXPECT_EQ(Register(WLAN_NOTIFICATION_SOURCE_NONE, false, &previous), ERROR_SUCCESS);
    EXPECT_EQ(previous, WLAN_NOTIFICATION_SOURCE_ACM);
    ASSERT_EQ(Wlan().WlanDisconnect(client, &first, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(Told(), Lines{});
}

TEST_F(Notifications, DuplicatesAreLeftOutWhenAsked)
{
    Start();
    for (const bool ignored : {false, true})
    {
        ASSERT_EQ(Register(WLAN_NOTIFICATION_SOURCE_ACM, ignored), ERROR_SUCCESS);
        ASSERT_EQ(SetProfile(MakeProfile("New", "New"), true), ERROR_SUCCESS);
        ASSERT_EQ(SetProfile(MakeProfile("New", "New"), true), ERROR_SUCCESS);
        Scan();
        ASSERT_EQ(SetProfile(MakeProfile("New", "New"), true), ERROR_SUCCESS);
        EXPECT_EQ(Told(),
                  ignored ? (Lines{"acm 15", "acm 7", "acm 15"}) : (Lines{"acm 15", "acm 15", "acm 7", "acm 15"}));
    }
}

TEST_F(Notifications, EveryClientIsNotifiedSeparately)
{
    StartListening();
    DWORD version = 0;
    HANDLE other = nullptr;
    NotificationRecorder otherRecorder;
    ASSERT_EQ(Wlan().WlanOpenHandle(2, nullptr, &version, &other), ERROR_SUCCESS);
    ASSERT_EQ(Wlan().WlanRegisterNotification(other, WLAN_NOTIFICATION_SOURCE_ACM, FALSE,
                                              &NotificationRecorder::Callback, &otherRecorder, nullptr, nullptr),
              ERROR_SUCCESS);
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    EXPECT_EQ(Told(), (Lines{"acm 9", "msm 1"}));
    EXPECT_EQ(otherRecorder.Take(), Lines{"acm 9"});
    EXPECT_EQ(Wlan().WlanCloseHandle(other, nullptr), ERROR_SUCCESS);
    computer->Advance(seconds(1));
    computer->WaitForNotifications();
    EXPECT_EQ(otherRecorder.Take(), Lines{});
}

void WINAPI KeepRecords(L2_NOTIFICATION_DATA* data, PVOID context)
{
    const auto* const bytes = static_cast<const std::uint8_t*>(data->pData);
    static_cast<std::vector<Bytes>*>(context)->emplace_back(bytes, bytes + data->dwDataSize);
}

template <typename Record>
Record RecordOf(const Bytes& bytes)
{
    Record record{};
    EXPECT_EQ(bytes.size(), sizeof(record));
    std::memcpy(&record, bytes.data(), std::min(bytes.size(), sizeof(record)));
    return record;
}

TEST_F(Notifications, CarryTheRecordsOfTheirModules)
{
    std::vector<Bytes> records;
    Start();
    ASSERT_EQ(Wlan().WlanRegisterNotification(client, WLAN_NOTIFICATION_SOURCE_ALL, FALSE, &KeepRecords, &records,
                                              nullptr, nullptr),
              ERROR_SUCCESS);
    ASSERT_EQ(Connect(L"HomeNet"), ERROR_SUCCESS);
    computer->SetRadio(0, 1, RadioSwitch::off, RadioSwitch::on);
    computer->WaitForNotifications();
    EXPECT_EQ(Wlan().WlanCloseHandle(std::exchange(client, nullptr), nullptr), ERROR_SUCCESS);
    ASSERT_EQ(records.size(), 3u);

    const auto connection = RecordOf<WLAN_CONNECTION_NOTIFICATION_DATA>(records[0]);
    EXPECT_EQ(connection.wlanConnectionMode, wlan_connection_mode_profile);
    EXPECT_STREQ(connection.strProfileName, L"HomeNet");
    EXPECT_EQ(TextOf(connection.dot11Ssid), "HomeNet");
    EXPECT_EQ(connection.dot11BssType, dot11_BSS_type_infrastructure);
    EXPECT_TRUE(connection.bSecurityEnabled);

    const auto media = RecordOf<WLAN_MSM_NOTIFICATION_DATA>(records[1]);
    EXPECT_STREQ(media.strProfileName, L"HomeNet");
    EXPECT_EQ(media.dot11MacAddr[5], 1);
    EXPECT_EQ(media.wlanReasonCode, WLAN_REASON_CODE_SUCCESS);

    const auto radio = RecordOf<WLAN_PHY_RADIO_STATE>(records[2]);
    EXPECT_EQ(radio.dwPhyIndex, 1u);
    EXPECT_EQ(radio.dot11SoftwareRadioState, dot11_radio_state_off);
    EXPECT_EQ(radio.dot11HardwareRadioState, dot11_radio_state_on);
}

} // namespace

} // namespace calvix::simulation::notification_test
