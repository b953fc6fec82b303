#include <calvix/wireless_manage.h>

#include "core/copies.h"
#include "core/memory.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"

#include <iterator>

using namespace calvix;

namespace
{

/// Whether the interface is in this state; every failure reads as no.
int InterfaceIsInState(HANDLE& client, const GUID* interfaceGuid, WLAN_INTERFACE_STATE state, Trace& trace)
{
    InterfaceList interfaces;
    if (!HasInterface(client, interfaces, trace))
        return 0;
    const WLAN_INTERFACE_INFO* const found = LastInterface(*interfaces, interfaceGuid);
    return found != nullptr && found->isState == state ? 1 : 0;
}

} // namespace

int CWirelessManage::GetWlanStatus(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    InterfaceList interfaces;
    if (const int code =
            ListInterfaces(hClient, interfaces, trace, {.notOpened = -2, .enumerationFailed = -3, .none = -4}))
        return code;
    const WLAN_INTERFACE_INFO* const found = LastInterface(*interfaces, pInterfaceGuid);
    return found != nullptr ? static_cast<int>(found->isState) : -1;
}

bool CWirelessManage::GetWlanIsLink(const GUID* pInterfaceGuid)
{
    return GetWlanStatus(pInterfaceGuid) == wlan_interface_state_connected;
}

long CWirelessManage::GetWlanInterfaceGuid(const wchar_t* description, GUID& guid)
{
    SharedTrace trace;
    InterfaceList interfaces;
    if (const int code =
            ListInterfaces(hClient, interfaces, trace, {.notOpened = -1, .enumerationFailed = -2, .none = -3}))
        return code;
    for (const WLAN_INTERFACE_INFO& info : Items(*interfaces))
    {
        if (description != nullptr && FixedText(info.strInterfaceDescription) == description)
        {
            guid = info.InterfaceGuid;
            return 0;
        }
    }
    return -4;
}

char* CWirelessManage::GetWlanInterfaceDesc(const GUID* pInterfaceGuid)
{
    // Deliberate: the first description found is kept for good, and later calls get it whatever their GUID.
    if (m_szInterfaceDesc[0] != '\0')
        return m_szInterfaceDesc;

    LocalTrace<512> trace;
    InterfaceList interfaces;
    if (!HasInterface(hClient, interfaces, trace))
        return m_szInterfaceDesc;
    for (const WLAN_INTERFACE_INFO& info : Items(*interfaces))
    {
        if (!SameInterface(info.InterfaceGuid, pInterfaceGuid))
            continue;
        // A description may fill its array without a terminator.
        wchar_t terminated[WLAN_MAX_NAME_LENGTH + 1];
        CopyTruncating(terminated, std::size(terminated), info.strInterfaceDescription);
        // UnicodeToAnsi writes up to 1024 bytes, more than the member holds in a double-byte code page.
        char description[1024] = {};
        UnicodeToAnsi(terminated, description);
        CopyTruncating(m_szInterfaceDesc, sizeof(m_szInterfaceDesc), description);
        trace.Line("Wlan Interface Describe: %s", m_szInterfaceDesc);
    }
    return m_szInterfaceDesc;
}

int CWirelessManage::GetWiFiAdapterCount()
{
    LocalTrace<128> trace;
    InterfaceList interfaces("WlanFreeMemory(pIfList)");
    if (OpenClient(hClient, trace) != 0)
        return -2;
    if (EnumerateInterfaces(hClient, interfaces, trace) != 0)
        return -3;
    return static_cast<int>(interfaces->dwNumberOfItems);
}

long CWirelessManage::GetWlanInterface(std::vector<WLAN_INTERFACE_INFO>* pList)
{
    if (pList == nullptr)
        return -13;
    SharedTrace trace;
    InterfaceList interfaces;
    // Deliberate: a failure leaves the caller's vector as it was, also when there is no adapter.
    if (const int code =
            ListInterfaces(hClient, interfaces, trace, {.notOpened = -1, .enumerationFailed = -2, .none = -3}))
        return code;
    const auto items = Items(*interfaces);
    if (OutOfMemoryIn([&] { pList->reserve(items.size()); }))
        return -2;
    pList->assign(items.begin(), items.end());
    return 0;
}

int CWirelessManage::WiFiIsConnected(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    return InterfaceIsInState(hClient, pInterfaceGuid, wlan_interface_state_connected, trace);
}

int CWirelessManage::WiFiIsDisconnected(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    return InterfaceIsInState(hClient, pInterfaceGuid, wlan_interface_state_disconnected, trace);
}
