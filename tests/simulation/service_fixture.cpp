#include "service_fixture.h"

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

ServiceTest::ServiceTest()
{
    AdapterDescription one;
    one.guid = "{A0000001-0001-0001-0101-010101010101}";
    one.description = "Adapter one";
    one.phys = {PhyDescription{7}, PhyDescription{8}};
    one.scanMilliseconds = 2000;
    one.connectMilliseconds = 1000;
    one.profiles.push_back({MakeProfile("HomeNet", "HomeNet")});
    one.statistics = {1234, 5678};
    AdapterDescription two;
    two.guid = "{B0000002-0002-0002-0202-020202020202}";
    two.description = "Adapter two";
    scenario.adapters = {one, two};
    scenario.accessPoints = {MakeAccessPoint("HomeNet", 1, -50), MakeAccessPoint("HomeNet", 2, -70)};
}

void ServiceTest::Start()
{
    TearDown();
    computer = std::make_unique<Computer>(scenario);
    DWORD version = 0;
    const DWORD error = Wlan().WlanOpenHandle(2, nullptr, &version, &client);
    ASSERT_EQ(error, scenario.serviceRunning ? ERROR_SUCCESS : ERROR_SERVICE_NOT_ACTIVE);
}

void ServiceTest::TearDown()
{
    if (computer == nullptr)
        return;
    if (client != nullptr)
        EXPECT_EQ(Wlan().WlanCloseHandle(std::exchange(client, nullptr), nullptr), ERROR_SUCCESS);
    const Accounts accounts = computer->Audit();
    EXPECT_EQ(accounts.liveBlocks, 0u);
    EXPECT_EQ(accounts.openClients, 0u);
    EXPECT_EQ(accounts.defects, std::vector<std::string>{});
}

ServiceTest::Networks ServiceTest::ListNetworks(DWORD flags)
{
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    EXPECT_EQ(Wlan().WlanGetAvailableNetworkList(client, &first, flags, nullptr, &list), ERROR_SUCCESS);
    Networks networks;
    if (list != nullptr)
        networks.assign(list->Network, list->Network + list->dwNumberOfItems);
    Wlan().WlanFreeMemory(list);
    return networks;
}

ServiceTest::Stations ServiceTest::ListStations(const DOT11_SSID* ssid, DOT11_BSS_TYPE bssType, bool secured)
{
    WLAN_BSS_LIST* list = nullptr;
    EXPECT_EQ(Wlan().WlanGetNetworkBssList(client, &first, ssid, bssType, secured ? TRUE : FALSE, nullptr, &list),
              ERROR_SUCCESS);
    Stations stations;
    if (list != nullptr)
        stations.assign(list->wlanBssEntries, list->wlanBssEntries + list->dwNumberOfItems);
    Wlan().WlanFreeMemory(list);
    return stations;
}

std::vector<std::wstring> ServiceTest::ProfileNames()
{
    WLAN_PROFILE_INFO_LIST* list = nullptr;
    EXPECT_EQ(Wlan().WlanGetProfileList(client, &first, nullptr, &list), ERROR_SUCCESS);
    std::vector<std::wstring> names;
    for (DWORD index = 0; list != nullptr && index < list->dwNumberOfItems; ++index)
        names.emplace_back(list->ProfileInfo[index].strProfileName);
    Wlan().WlanFreeMemory(list);
    return names;
}

std::wstring ServiceTest::ProfileXml(const wchar_t* name, DWORD flags)
{
    wchar_t* text = nullptr;
    EXPECT_EQ(Wlan().WlanGetProfile(client, &first, name, nullptr, &text, &flags, nullptr), ERROR_SUCCESS);
    const std::wstring xml = text != nullptr ? text : L"";
    Wlan().WlanFreeMemory(text);
    return xml;
}

DWORD ServiceTest::SetProfile(const std::string& xml, bool overwrite, DWORD flags)
{
    const std::wstring wide(xml.begin(), xml.end());
    DWORD reason = 0;
    return Wlan().WlanSetProfile(client, &first, flags, wide.c_str(), nullptr, overwrite ? TRUE : FALSE, nullptr,
                                 &reason);
}

DWORD ServiceTest::Connect(const wchar_t* profile)
{
    WLAN_CONNECTION_PARAMETERS parameters{};
    parameters.wlanConnectionMode = wlan_connection_mode_profile;
    parameters.strProfile = profile;
    parameters.dot11BssType = dot11_BSS_type_infrastructure;
    return Wlan().WlanConnect(client, &first, &parameters, nullptr);
}

void ServiceTest::Scan(std::chrono::milliseconds duration)
{
    ASSERT_EQ(Wlan().WlanScan(client, &first, nullptr, nullptr, nullptr), ERROR_SUCCESS);
    computer->Advance(duration);
}

DWORD ServiceTest::Register(DWORD sources, bool ignoreDuplicates, DWORD* previous)
{
    return Wlan().WlanRegisterNotification(client, sources, ignoreDuplicates ? TRUE : FALSE,
                                           &NotificationRecorder::Callback, &recorder, nullptr, previous);
}

ServiceTest::Lines ServiceTest::Told()
{
    computer->WaitForNotifications();
    return recorder.Take();
}

DWORD ServiceTest::SetSoftwareRadio(DWORD phy, DOT11_RADIO_STATE state)
{
    WLAN_PHY_RADIO_STATE record{};
    record.dwPhyIndex = phy;
    record.dot11SoftwareRadioState = state;
    return Set(wlan_intf_opcode_radio_state, record);
}

WLAN_INTERFACE_STATE ServiceTest::InterfaceState()
{
    return Query<WLAN_INTERFACE_STATE>(wlan_intf_opcode_interface_state).value();
}

std::optional<WLAN_CONNECTION_ATTRIBUTES> ServiceTest::Connection()
{
    return Query<WLAN_CONNECTION_ATTRIBUTES>(wlan_intf_opcode_current_connection);
}

DWORD ServiceTest::ErrorOf(WLAN_INTF_OPCODE opcode)
{
    DWORD size = 0;
    PVOID data = nullptr;
    const DWORD error = Wlan().WlanQueryInterface(client, &first, opcode, nullptr, &size, &data, nullptr);
    EXPECT_EQ(data, nullptr);
    return error;
}

Bytes BytesOf(const std::string& text)
{
    return {text.begin(), text.end()};
}

DOT11_SSID SsidOf(const std::string& text)
{
    DOT11_SSID ssid{};
    ssid.uSSIDLength = static_cast<ULONG>(text.size());
    std::copy(text.begin(), text.end(), ssid.ucSSID);
    return ssid;
}

std::string TextOf(const DOT11_SSID& ssid)
{
    return {ssid.ucSSID, ssid.ucSSID + ssid.uSSIDLength};
}

AccessPoint MakeAccessPoint(const std::string& ssid, std::uint8_t lastBssidByte, std::int32_t rssi)
{
    AccessPoint accessPoint;
    accessPoint.ssid = BytesOf(ssid);
    accessPoint.bssid = {2, 0, 0, 0, 0, lastBssidByte};
    accessPoint.rssi = rssi;
    return accessPoint;
}

AccessPoint MakeOpenPoint(const std::string& ssid, std::uint8_t lastBssidByte, std::int32_t rssi)
{
    AccessPoint accessPoint = MakeAccessPoint(ssid, lastBssidByte, rssi);
    accessPoint.authentication = "open";
    accessPoint.encryption = "none";
    return accessPoint;
}

ProfileSettings MakeSettings(const std::string& name, const std::string& ssid)
{
    ProfileSettings settings;
    settings.name = name;
    settings.ssid = BytesOf(ssid);
    settings.key = "correct horse";
    return settings;
}

std::string MakeProfile(const std::string& name, const std::string& ssid)
{
    return MakeProfileXml(MakeSettings(name, ssid));
}

} // namespace calvix::simulation
