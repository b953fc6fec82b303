#include "direct/hand_written.h"

#include <cstdio>
#include <cstring>
#include <cwchar>

namespace calvix::benchmarks
{

using platform::services;
using platform::wlan;

void HandWritten::CheckAutoConfig()
{
    const SC_HANDLE manager = services().OpenSCManagerA(nullptr, nullptr, SC_MANAGER_ALL_ACCESS);
    const SC_HANDLE service = services().OpenServiceA(manager, "WlanSvc", SERVICE_ALL_ACCESS);
    SERVICE_STATUS status{};
    services().QueryServiceStatus(service, &status);
    if (status.dwCurrentState != SERVICE_RUNNING)
        services().StartServiceA(service, 0, nullptr);
    services().CloseServiceHandle(manager);
    services().CloseServiceHandle(service);
}

int HandWritten::GetWlanStatus(const GUID* adapter)
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -1;
    int state = -1;
    for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
    {
        const WLAN_INTERFACE_INFO& info = list->InterfaceInfo[index];
        if (std::memcmp(&info.InterfaceGuid, adapter, sizeof(GUID)) == 0)
            state = static_cast<int>(info.isState);
    }
    wlan().WlanFreeMemory(list);
    return state;
}

bool HandWritten::GetWlanIsLink(const GUID* adapter)
{
    return GetWlanStatus(adapter) == wlan_interface_state_connected;
}

int HandWritten::WiFiIsConnected(const GUID* adapter)
{
    return GetWlanStatus(adapter) == wlan_interface_state_connected ? 1 : 0;
}

int HandWritten::WiFiIsDisconnected(const GUID* adapter)
{
    return GetWlanStatus(adapter) == wlan_interface_state_disconnected ? 1 : 0;
}

char* HandWritten::GetWlanInterfaceState(unsigned long state)
{
    static const char* const names[] = {"not ready",    "connected",   "ad hoc network formed", "disconnecting",
                                        "disconnected", "associating", "discovering",           "authenticating"};
    if (state < 8)
        std::strcpy(m_state, names[state]);
    else
        std::snprintf(m_state, sizeof(m_state), "unknown(%lu)", state);
    return m_state;
}

long HandWritten::GetWlanInterfaceGuid(const wchar_t* description, GUID& guid)
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -1;
    long result = -4;
    for (DWORD index = 0; index < list->dwNumberOfItems && result != 0; ++index)
    {
        const WLAN_INTERFACE_INFO& info = list->InterfaceInfo[index];
        if (std::wcscmp(info.strInterfaceDescription, description) == 0)
        {
            guid = info.InterfaceGuid;
            result = 0;
        }
    }
    wlan().WlanFreeMemory(list);
    return result;
}

char* HandWritten::GUID2String(const GUID& guid)
{
    std::snprintf(m_guid, sizeof(m_guid), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                  static_cast<unsigned>(guid.Data1), guid.Data2, guid.Data3, guid.Data4[0], guid.Data4[1],
                  guid.Data4[2], guid.Data4[3], guid.Data4[4], guid.Data4[5], guid.Data4[6], guid.Data4[7]);
    return m_guid;
}

char* HandWritten::GetWlanInterfaceDesc(const GUID* adapter)
{
    if (m_description[0] != '\0')
        return m_description;
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return m_description;
    for (DWORD index = 0; index < list->dwNumberOfItems; ++index)
    {
        const WLAN_INTERFACE_INFO& info = list->InterfaceInfo[index];
        if (std::memcmp(&info.InterfaceGuid, adapter, sizeof(GUID)) == 0)
            UnicodeToAnsi(info.strInterfaceDescription, m_description);
    }
    wlan().WlanFreeMemory(list);
    return m_description;
}

int HandWritten::GetWiFiAdapterCount()
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -1;
    const int count = static_cast<int>(list->dwNumberOfItems);
    wlan().WlanFreeMemory(list);
    return count;
}

long HandWritten::GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>* result)
{
    WLAN_INTERFACE_INFO_LIST* list = nullptr;
    if (!Ready() || wlan().WlanEnumInterfaces(client, nullptr, &list) != 0)
        return -1;
    result->assign(list->InterfaceInfo, list->InterfaceInfo + list->dwNumberOfItems);
    wlan().WlanFreeMemory(list);
    return 0;
}

} // namespace calvix::benchmarks
