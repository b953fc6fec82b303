#include <calvix/wireless_manage.h>

#include "autoconnect/connection_walk.h"
#include "autoconnect/ranked_connection.h"

using namespace calvix;

namespace
{

constexpr ProfileAndNetworkCodes kAutoConnectCodes{
    .notOpened = -1, .profilesFailed = -4, .noProfile = -5, .networksFailed = -6, .noNetwork = -7};

} // namespace

int CWirelessManage::AutoConnect(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    ProfilesAndNetworks lists;
    if (const int code = ListProfilesAndNetworks(hClient, pInterfaceGuid, lists, trace, kAutoConnectCodes))
        return code;
    NetworksByProfile networksByProfile;
    if (networksByProfile.Take(*lists.networks) != 0)
        return kAutoConnectCodes.networksFailed;
    // Deliberate: a walk on which every request was refused reports success.
    return WalkProfiles(hClient, pInterfaceGuid, *lists.profiles, networksByProfile, trace) == WalkEnd::noMatch ? -9
                                                                                                                : 0;
}

int CWirelessManage::AutoConnectEx(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    return ConnectRanked(
        hClient, pInterfaceGuid, trace, [](const WLAN_PROFILE_INFO&) { return true; },
        [](const WLAN_AVAILABLE_NETWORK&) { return true; });
}
