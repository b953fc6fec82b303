#include <calvix/wireless_manage.h>

#include "autoconnect/ranked_connection.h"
#include "core/ssid.h"

#include <algorithm>

using namespace calvix;

namespace
{

/// Whether the list holds an SSID that begins with the network's.
bool Excludes(const std::vector<WLAN_BSS_ENTRY>& excluded, const WLAN_AVAILABLE_NETWORK& network)
{
    // Deliberate: compared over the network's length only, so that a longer excluded SSID rules the network out too.
    const auto begins = [&network](const WLAN_BSS_ENTRY& entry)
    { return SameSsidBytes(entry.dot11Ssid, network.dot11Ssid, SsidLength(network.dot11Ssid)); };
    return std::any_of(excluded.begin(), excluded.end(), begins);
}

bool IsNamed(const WLAN_PROFILE_INFO& profile, const wchar_t* name)
{
    return FixedText(profile.strProfileName) == name;
}

const auto everyProfile = [](const WLAN_PROFILE_INFO&) { return true; };

} // namespace

int CWirelessManage::ConnectBestAP(const GUID* pInterfaceGuid,
                                   std::vector<WLAN_BSS_ENTRY>* pExcluded,
                                   const wchar_t* excludedName)
{
    if (pExcluded == nullptr)
        return -13;
    if (excludedName == nullptr)
        return -14;
    SharedTrace trace;
    return ConnectRanked(
        hClient, pInterfaceGuid, trace,
        [excludedName](const WLAN_PROFILE_INFO& profile) { return !IsNamed(profile, excludedName); },
        [&](const WLAN_AVAILABLE_NETWORK& network)
        { return IsAutoConnMode2(pInterfaceGuid, network.strProfileName) == 1 && !Excludes(*pExcluded, network); });
}

int CWirelessManage::ConnectBestAP(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pExcluded)
{
    if (pExcluded == nullptr)
        return -13;
    SharedTrace trace;
    return ConnectRanked(hClient, pInterfaceGuid, trace, everyProfile,
                         [&](const WLAN_AVAILABLE_NETWORK& network) {
                             return IsAutoConnMode2(pInterfaceGuid, network.strProfileName) == 1 &&
                                    !Excludes(*pExcluded, network);
                         });
}

int CWirelessManage::ConnectBestAP(const GUID* pInterfaceGuid, const wchar_t* excludedName)
{
    if (excludedName == nullptr)
        return -14;
    std::vector<WLAN_BSS_ENTRY> nothing;
    return ConnectBestAP(pInterfaceGuid, &nothing, excludedName);
}

int CWirelessManage::ConnectBestAP(const GUID* pInterfaceGuid)
{
    std::vector<WLAN_BSS_ENTRY> nothing;
    return ConnectBestAP(pInterfaceGuid, &nothing);
}
