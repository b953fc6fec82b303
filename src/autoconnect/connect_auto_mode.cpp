#include <calvix/wireless_manage.h>

#include "autoconnect/connection_walk.h"
#include "autoconnect/ssid_as_profile_name.h"
#include "core/fixed_text.h"
#include "core/service_steps.h"

using namespace calvix;

namespace
{

constexpr unsigned long kLongestListedSsid = 64;

/// Whether the network is the profile's: tagged with its name, or of an SSID that reads like it.
bool IsTarget(const WLAN_AVAILABLE_NETWORK& network, std::wstring_view profileName)
{
    // Deliberate: a network whose SSID cannot be converted is passed over, also when its tag would match.
    wchar_t ssid[kSsidTextCapacity];
    if (!SsidAsProfileName(network.dot11Ssid, kLongestListedSsid, ssid))
        return false;
    return FixedText(network.strProfileName) == profileName || ssid == profileName;
}

} // namespace

int CWirelessManage::ConnectAutoMode(const GUID* pInterfaceGuid)
{
    LocalTrace<128> trace;
    ProfilesAndNetworks lists;
    if (const int code = ListProfilesAndNetworks(
            hClient, pInterfaceGuid, lists, trace,
            {.notOpened = -1, .profilesFailed = -4, .noProfile = -5, .networksFailed = -6, .noNetwork = -7}))
        return code;
    // Deliberate: a walk on which every request was refused reports success.
    WalkEnd end = WalkEnd::noMatch;
    for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
    {
        wchar_t xml[1024];
        if (GetProfile(pInterfaceGuid, TerminatedName(profile.strProfileName), xml, 1024) != 0 ||
            IsAutoConnMode(xml) == 0)
            continue;
        for (const WLAN_AVAILABLE_NETWORK& network : Items(*lists.networks))
        {
            if (!IsTarget(network, FixedText(profile.strProfileName)))
                continue;
            // Deliberate: by the network's own profile name, which is empty, and refused, where only the SSID matched.
            if (RequestNetwork(hClient, pInterfaceGuid, network, trace) == 0)
                return 0;
            end = WalkEnd::refused;
        }
    }
    return end == WalkEnd::noMatch ? -9 : 0;
}
