#include <calvix/wireless_manage.h>

#include "core/copies.h"
#include "core/service_steps.h"

#include <cstddef>

using namespace calvix;

namespace
{

constexpr InterfaceListCodes kFirstInterface{.notOpened = -1, .enumerationFailed = -2, .none = -3};

} // namespace

int CWirelessManage::GetCurrentConnection(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes)
{
    SharedTrace trace;
    ConnectionAttributes connection;
    DWORD size = 0;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (QueryCurrentConnection(hClient, pInterfaceGuid, connection, kNothing, size, trace) != 0)
        return -4;
    StrictCopy(pAttributes, sizeof(*pAttributes), connection.get(), size, "GetCurrentConnection");
    return 0;
}

int CWirelessManage::GetCurrentConnection(WLAN_CONNECTION_ATTRIBUTES* pAttributes)
{
    SharedTrace trace;
    InterfaceList interfaces;
    if (const int code = ListInterfaces(hClient, interfaces, trace, kFirstInterface))
        return code;
    return GetCurrentConnection(&interfaces->InterfaceInfo[0].InterfaceGuid, pAttributes);
}

int CWirelessManage::GetCurrentSSID(char* ssid, int capacity)
{
    SharedTrace trace;
    InterfaceList interfaces;
    ConnectionAttributes connection;
    if (const int code = ListInterfaces(hClient, interfaces, trace, kFirstInterface))
        return code;
    if (QueryCurrentConnection(hClient, &interfaces->InterfaceInfo[0].InterfaceGuid, connection, kUpToAssociation,
                               trace) != 0)
        return -4;
    GetSSID(&connection->wlanAssociationAttributes.dot11Ssid, ssid, capacity);
    return 0;
}

int CWirelessManage::GetCurrentSSID(char* ssid, int capacity, WLAN_CONNECTION_ATTRIBUTES* pAttributes)
{
    SharedTrace trace;
    InterfaceList interfaces;
    ConnectionAttributes connection;
    DWORD size = 0;
    if (const int code = ListInterfaces(hClient, interfaces, trace, kFirstInterface))
        return code;
    if (QueryCurrentConnection(hClient, &interfaces->InterfaceInfo[0].InterfaceGuid, connection, kUpToAssociation, size,
                               trace) != 0)
        return -4;
    GetSSID(&connection->wlanAssociationAttributes.dot11Ssid, ssid, capacity);
    StrictCopy(pAttributes, sizeof(*pAttributes), connection.get(), size, "GetCurrentSSID");
    return 0;
}

int CWirelessManage::GetCurrentLinkInfo(
    const GUID* pInterfaceGuid, int* state, int* bssType, char* ssid, int ssidCapacity, char* bssid)
{
    LocalTrace<128> trace;
    ConnectionAttributes connection;
    // Deliberate: the platform's own error numbers, where the other queries give -1 and -4.
    if (const ErrorNumber error = OpenClient(hClient, trace))
        return static_cast<int>(error);
    if (const ErrorNumber error = QueryCurrentConnection(hClient, pInterfaceGuid, connection, kUpToAssociation, trace))
        return static_cast<int>(error);
    const WLAN_ASSOCIATION_ATTRIBUTES& association = connection->wlanAssociationAttributes;
    if (state != nullptr)
        *state = static_cast<int>(connection->isState);
    GetSSID(&association.dot11Ssid, ssid, ssidCapacity);
    StrictCopy(bssid, sizeof(association.dot11Bssid), association.dot11Bssid, sizeof(association.dot11Bssid),
               "GetCurrentLinkInfo");
    if (bssType != nullptr)
        *bssType = static_cast<int>(association.dot11BssType);
    return 0;
}

long CWirelessManage::GetCurrentWiFi(const GUID* pInterfaceGuid, WLAN_CONNECTION_ATTRIBUTES* pAttributes)
{
    if (pAttributes == nullptr)
        return -14;
    SharedTrace trace;
    BssList entries("WlanFreeMemory(pBssList)");
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ListConnectionBss(hClient, pInterfaceGuid, *pAttributes, entries, trace) != 0)
        return -4;
    return static_cast<long>(entries->dwNumberOfItems);
}

int CWirelessManage::GetWlanStatistics(const GUID* pInterfaceGuid, _WIFI_TXRX_COUNT* pCount)
{
    if (pCount == nullptr)
        return -13;
    SharedTrace trace;
    WlanMemory<WLAN_STATISTICS> statistics;
    DWORD size = 0;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (QueryInterface(hClient, pInterfaceGuid, wlan_intf_opcode_statistics, statistics,
                       offsetof(WLAN_STATISTICS, MacMcastCounters), size, trace) != 0)
        return -4;
    // Deliberate: the two spare counters keep what the caller put in.
    pCount->ullTransmitted = statistics->MacUcastCounters.ullTransmittedFrameCount;
    pCount->ullReceived = statistics->MacUcastCounters.ullReceivedFrameCount;
    return 0;
}
