#include <calvix/wireless_manage.h>

#include "autoconnect/connection_walk.h"
#include "autoconnect/ssid_as_profile_name.h"
#include "core/fixed_text.h"
#include "core/service_steps.h"

using namespace calvix;
using platform::wlan;

namespace
{

constexpr unsigned long kLongestSwitchedSsid = 256;

} // namespace

int CWirelessManage::AutoSwitch(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ConnectionAttributes connection;
    ProfilesAndNetworks lists;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (QueryCurrentConnection(hClient, pInterfaceGuid, connection, kUpToProfileName, trace) != 0)
        return -3;
    if (ListProfiles(hClient, pInterfaceGuid, lists.profiles, trace) != 0)
        return -4;
    if (lists.profiles->dwNumberOfItems > 1)
    {
        const DWORD last = lists.profiles->dwNumberOfItems - 1;
        if (trace.Failed(wlan().WlanSetProfilePosition(hClient, pInterfaceGuid,
                                                       TerminatedName(connection->strProfileName), last, nullptr),
                         "WlanSetProfilePosition failed with error: %u"))
            return -5;
    }
    if (ListAvailableNetworks(hClient, pInterfaceGuid, lists.networks, trace) != 0)
        return -6;
    NetworksByProfile networksByProfile;
    if (networksByProfile.Take(*lists.networks) != 0)
        return -6;
    // Deliberate: the walk follows the order from before the move, and a refused-only walk reports success.
    return WalkProfiles(hClient, pInterfaceGuid, *lists.profiles, networksByProfile, trace) == WalkEnd::noMatch ? -7
                                                                                                                : 0;
}

int CWirelessManage::SmartSwitch(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ConnectionAttributes connection;
    ProfilesAndNetworks lists;
    if (OpenClient(hClient, trace) != 0)
        return -1;
    if (const ErrorNumber error = QueryCurrentConnection(hClient, pInterfaceGuid, connection, kUpToAssociation, trace))
        return static_cast<int>(error);
    const WLAN_ASSOCIATION_ATTRIBUTES& current = connection->wlanAssociationAttributes;
    wchar_t currentSsid[kSsidTextCapacity];
    if (!SsidAsProfileName(current.dot11Ssid, kLongestSwitchedSsid, currentSsid))
    {
        const DWORD error = platform::errors().GetLastError();
        trace.Line("Profile Name error: %u", static_cast<unsigned>(error));
        return static_cast<int>(error);
    }
    if (const ErrorNumber error = ListProfiles(hClient, pInterfaceGuid, lists.profiles, trace))
        return static_cast<int>(error);
    if (const ErrorNumber error = ListAvailableNetworks(hClient, pInterfaceGuid, lists.networks, trace))
        return static_cast<int>(error);
    NetworksByProfile networksByProfile;
    if (const ErrorNumber error = networksByProfile.Take(*lists.networks))
        return static_cast<int>(error);
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
    {
        for (const WLAN_AVAILABLE_NETWORK* network : networksByProfile.Of(profile))
        {
            // Deliberate: the profile's name is compared with the SSID, as profiles are named after their network.
            if (FixedText(network->strProfileName) != currentSsid &&
                current.wlanSignalQuality < network->wlanSignalQuality)
                return static_cast<int>(RequestNetwork(hClient, pInterfaceGuid, *network, trace));
        }
    }
    return -2;
}
