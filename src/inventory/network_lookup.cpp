#include <calvix/wireless_manage.h>

#include "core/service_steps.h"
#include "core/ssid.h"
#include "core/wlan_lists.h"

#include <cstdint>

using namespace calvix;

int CWirelessManage::GetAP(const GUID* pInterfaceGuid, DOT11_SSID* pSsid)
{
    if (pSsid == nullptr)
        return -14;
    LocalTrace<128> trace;
    NetworkList networks("WlanFreeMemory(pAvailableList)");
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ListAvailableNetworks(hClient, pInterfaceGuid, networks, trace) != 0)
        return -3;
    // Deliberate: an empty SSID is never found, although hidden networks are listed with one.
    if (pSsid->uSSIDLength == 0)
        return -4;
    for (const WLAN_AVAILABLE_NETWORK& network : Items(*networks))
    {
        if (SameSsid(network.dot11Ssid, *pSsid))
            return 0;
    }
    return -4;
}

long CWirelessManage::GetNotConnectableReason(
    const GUID* pInterfaceGuid, DOT11_SSID* pSsid, unsigned long dwBssType, int& bConnectable, unsigned long& dwReason)
{
    if (pSsid == nullptr)
        return -14;
    LocalTrace<128> trace;
    NetworkList networks;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (ListAvailableNetworks(hClient, pInterfaceGuid, networks, trace) != 0)
        return -4;
    if (networks->dwNumberOfItems == 0)
        return -5;
    for (const WLAN_AVAILABLE_NETWORK& network : Items(*networks))
    {
        if (static_cast<std::uint32_t>(network.dot11BssType) != dwBssType)
            continue;
        if (!SameSsid(network.dot11Ssid, *pSsid))
            continue;
        bConnectable = network.bNetworkConnectable;
        dwReason = network.wlanNotConnectableReason;
        return 0;
    }
    return -6;
}
