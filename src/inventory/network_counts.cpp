#include <calvix/wireless_manage.h>

#include "core/profile_network_match.h"
#include "core/service_steps.h"

using namespace calvix;

int CWirelessManage::GetAvailableNetworkCount(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    NetworkList networks;
    if (OpenClient(hClient, trace) != 0)
        return -2;
    if (ListAvailableNetworks(hClient, pInterfaceGuid, networks, trace) != 0)
        return -5;
    return static_cast<int>(networks->dwNumberOfItems);
}

int CWirelessManage::GetNetworkBssCount()
{
    LocalTrace<256> trace;
    InterfaceList interfaces;
    BssList entries;
    if (const int code =
            ListInterfaces(hClient, interfaces, trace, {.notOpened = -2, .enumerationFailed = -3, .none = -4}))
        return code;
    if (ListAllBss(hClient, &interfaces->InterfaceInfo[0].InterfaceGuid, entries, trace) != 0)
        return -5;
    return static_cast<int>(entries->dwNumberOfItems);
}

int CWirelessManage::GetConnectableNetworkCount(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ProfilesAndNetworks lists;
    if (const int code = ListProfilesAndNetworks(
            hClient, pInterfaceGuid, lists, trace,
            {.notOpened = -2, .profilesFailed = -5, .noProfile = -6, .networksFailed = -7, .noNetwork = -8}))
        return code;

    NetworksByProfile networksByProfile;
    if (networksByProfile.Take(*lists.networks) != 0)
        return -7;
    int pairs = 0;
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
        for ([[maybe_unused]] const WLAN_AVAILABLE_NETWORK* network : networksByProfile.Of(profile))
            ++pairs;
    return pairs;
}
