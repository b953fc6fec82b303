// A program in C++ as anybody would write it by the documentation of the WLAN API: it lists what can be seen, and follows
// the notifications. What it expects is the home of the gallery: one adapter, not connected, and a network "Lindenhof"
// with a stored profile.

#include "check.h"
#include "news.h"

#include <cstring>
#include <cwchar>
#include <memory>
#include <string>

namespace
{

struct FreesMemory
{
    void operator()(void* memory) const { WlanFreeMemory(memory); }
};

template <typename Record>
using Owned = std::unique_ptr<Record, FreesMemory>;

constexpr char networkName[] = "Lindenhof";
constexpr wchar_t profileName[] = L"Lindenhof";

bool IsNamed(const DOT11_SSID& ssid)
{
    return std::string(reinterpret_cast<const char*>(ssid.ucSSID), ssid.uSSIDLength) == networkName;
}

class Watcher
{
public:
    Watcher()
    {
        DWORD version = 0;
        DWORD previous = 1;
        CHECK_ANSWER(ERROR_SUCCESS, WlanOpenHandle(2, nullptr, &version, &m_client));
        CHECK(version == 2);
        CHECK_ANSWER(ERROR_SUCCESS, WlanRegisterNotification(m_client, WLAN_NOTIFICATION_SOURCE_ACM, FALSE, &News::Hear,
                                                             &m_news, nullptr, &previous));
        CHECK(previous == WLAN_NOTIFICATION_SOURCE_NONE);
    }

    ~Watcher()
    {
        DWORD previous = 0;
        CHECK_ANSWER(ERROR_SUCCESS, WlanRegisterNotification(m_client, WLAN_NOTIFICATION_SOURCE_NONE, FALSE, nullptr,
                                                             nullptr, nullptr, &previous));
        CHECK(previous == WLAN_NOTIFICATION_SOURCE_ACM);
        CHECK_ANSWER(ERROR_SUCCESS, WlanCloseHandle(m_client, nullptr));
        CHECK_ANSWER(ERROR_INVALID_HANDLE, WlanCloseHandle(m_client, nullptr));
    }

    bool FindAdapter()
    {
        PWLAN_INTERFACE_INFO_LIST found = nullptr;
        CHECK_ANSWER(ERROR_SUCCESS, WlanEnumInterfaces(m_client, nullptr, &found));
        const Owned<WLAN_INTERFACE_INFO_LIST> list(found);
        if (list == nullptr || list->dwNumberOfItems != 1)
            return false;
        CHECK(std::wcsstr(list->InterfaceInfo[0].strInterfaceDescription, L"Wi-Fi") != nullptr);
        CHECK(list->InterfaceInfo[0].isState == wlan_interface_state_disconnected);
        m_adapter = list->InterfaceInfo[0].InterfaceGuid;
        return true;
    }

    void Scan()
    {
        const std::size_t before = m_news.Count();
        CHECK_ANSWER(ERROR_SUCCESS, WlanScan(m_client, &m_adapter, nullptr, nullptr, nullptr));
        const auto completed = m_news.Await(wlan_notification_acm_scan_complete, before);
        CHECK(completed && completed->thread != std::this_thread::get_id());
    }

    void ListNetworks()
    {
        PWLAN_AVAILABLE_NETWORK_LIST found = nullptr;
        CHECK_ANSWER(ERROR_SUCCESS, WlanGetAvailableNetworkList(m_client, &m_adapter, 0, nullptr, &found));
        const Owned<WLAN_AVAILABLE_NETWORK_LIST> list(found);
        CHECK(list != nullptr && list->dwNumberOfItems == 4);
        int named = 0;
        for (DWORD index = 0; list != nullptr && index < list->dwNumberOfItems; ++index)
        {
            const WLAN_AVAILABLE_NETWORK& network = list->Network[index];
            CHECK(network.wlanSignalQuality <= 100);
            if (!IsNamed(network.dot11Ssid))
                continue;
            ++named;
            constexpr DWORD hasProfile = 2; // and is not connected
            CHECK(std::wcscmp(network.strProfileName, profileName) == 0);
            CHECK(network.dwFlags == hasProfile);
            CHECK(network.bSecurityEnabled);
            CHECK(network.uNumberOfBssids == 3);
        }
        CHECK(named == 1);
    }

    void ListAccessPoints()
    {
        DOT11_SSID ssid{};
        ssid.uSSIDLength = sizeof(networkName) - 1;
        std::memcpy(ssid.ucSSID, networkName, sizeof(networkName) - 1);
        CHECK(CountAccessPoints(nullptr, dot11_BSS_type_any) == 7);
        CHECK(CountAccessPoints(&ssid, dot11_BSS_type_infrastructure) == 3);
    }

    void Connect()
    {
        const std::size_t before = m_news.Count();
        CHECK_ANSWER(ERROR_INVALID_STATE, QueryConnection());
        WLAN_CONNECTION_PARAMETERS parameters{};
        parameters.wlanConnectionMode = wlan_connection_mode_profile;
        parameters.strProfile = profileName;
        parameters.dot11BssType = dot11_BSS_type_infrastructure;
        CHECK_ANSWER(ERROR_SUCCESS, WlanConnect(m_client, &m_adapter, &parameters, nullptr));
        CHECK(m_news.Await(wlan_notification_acm_connection_start, before).has_value());
        const auto completed = m_news.Await(wlan_notification_acm_connection_complete, before);
        CHECK(completed && completed->reason == 0);
        CHECK_ANSWER(ERROR_SUCCESS, QueryConnection());
    }

    void Disconnect()
    {
        const std::size_t before = m_news.Count();
        CHECK_ANSWER(ERROR_SUCCESS, WlanDisconnect(m_client, &m_adapter, nullptr));
        CHECK(m_news.Await(wlan_notification_acm_disconnected, before).has_value());
        CHECK_ANSWER(ERROR_INVALID_STATE, QueryConnection());
    }

private:
    DWORD CountAccessPoints(DOT11_SSID* ssid, DOT11_BSS_TYPE type)
    {
        PWLAN_BSS_LIST found = nullptr;
        CHECK_ANSWER(ERROR_SUCCESS, WlanGetNetworkBssList(m_client, &m_adapter, ssid, type, TRUE, nullptr, &found));
        const Owned<WLAN_BSS_LIST> list(found);
        for (DWORD index = 0; list != nullptr && index < list->dwNumberOfItems; ++index)
        {
            const WLAN_BSS_ENTRY& entry = list->wlanBssEntries[index];
            CHECK(ssid == nullptr || IsNamed(entry.dot11Ssid));
            CHECK(entry.lRssi < 0 && entry.ulChCenterFrequency > 2400000);
        }
        return list != nullptr ? list->dwNumberOfItems : 0;
    }

    DWORD QueryConnection()
    {
        DWORD size = 0;
        PVOID data = nullptr;
        const DWORD error = WlanQueryInterface(m_client, &m_adapter, wlan_intf_opcode_current_connection, nullptr,
                                               &size, &data, nullptr);
        if (error != ERROR_SUCCESS)
            return error;
        const Owned<WLAN_CONNECTION_ATTRIBUTES> connection(static_cast<WLAN_CONNECTION_ATTRIBUTES*>(data));
        CHECK(size == sizeof(*connection));
        CHECK(connection->isState == wlan_interface_state_connected);
        CHECK(std::wcscmp(connection->strProfileName, profileName) == 0);
        CHECK(IsNamed(connection->wlanAssociationAttributes.dot11Ssid));
        return error;
    }

    News m_news;
    HANDLE m_client = nullptr;
    GUID m_adapter{};
};

} // namespace

int main()
{
    {
        Watcher watcher;
        CHECK(watcher.FindAdapter());
        watcher.Scan();
        watcher.ListNetworks();
        watcher.ListAccessPoints();
        watcher.Connect();
        watcher.Disconnect();
    }
    wchar_t text[256] = L"";
    CHECK_ANSWER(ERROR_SUCCESS, WlanReasonCodeToString(0, 256, text, nullptr));
    CHECK(text[0] != L'\0');
    return CheckedExitCode();
}
