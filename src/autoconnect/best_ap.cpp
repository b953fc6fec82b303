#include <calvix/wireless_manage.h>

#include "autoconnect/ranked_connection.h"
#include "core/fixed_text.h"
#include "core/ssid.h"

#include <algorithm>

using namespace calvix;

namespace
{

using ExcludedEntries = std::vector<WLAN_BSS_ENTRY>;

/// Whether the list holds an SSID that begins with the network's.
bool Excludes(const ExcludedEntries& excluded, const WLAN_AVAILABLE_NETWORK& network)
{
    // Deliberate: compared over the network's length only, so that a longer excluded SSID rules the network out too.
    const auto begins = [&network](const WLAN_BSS_ENTRY& entry)
    { return SameSsidBytes(entry.dot11Ssid, network.dot11Ssid, SsidLength(network.dot11Ssid)); };
    return std::any_of(excluded.begin(), excluded.end(), begins);
}

/// The one connection behind all overloads; a null name excludes no profile.
int ConnectBest(CWirelessManage& manager,
                HANDLE& client,
                const GUID* interfaceGuid,
                const ExcludedEntries& excluded,
                const wchar_t* excludedName)
{
    SharedTrace trace;
    const auto usesProfile = [excludedName](const WLAN_PROFILE_INFO& profile)
    { return excludedName == nullptr || FixedText(profile.strProfileName) != excludedName; };
    const auto accepts = [&](const WLAN_AVAILABLE_NETWORK& network)
    {
        return manager.IsAutoConnMode2(interfaceGuid, TerminatedName(network.strProfileName)) == 1 &&
               !Excludes(excluded, network);
    };
    return ConnectRanked(client, interfaceGuid, trace, usesProfile, accepts);
}

} // namespace

int CWirelessManage::ConnectBestAP(const GUID* pInterfaceGuid,
                                   std::vector<WLAN_BSS_ENTRY>* pExcluded,
                                   const wchar_t* excludedName)
{
    if (pExcluded == nullptr || excludedName == nullptr)
        return -14;
    return ConnectBest(*this, hClient, pInterfaceGuid, *pExcluded, excludedName);
}

int CWirelessManage::ConnectBestAP(const GUID* pInterfaceGuid, std::vector<WLAN_BSS_ENTRY>* pExcluded)
{
    if (pExcluded == nullptr)
        return -14;
    return ConnectBest(*this, hClient, pInterfaceGuid, *pExcluded, nullptr);
}

int CWirelessManage::ConnectBestAP(const GUID* pInterfaceGuid, const wchar_t* excludedName)
{
    if (excludedName == nullptr)
        return -14;
    return ConnectBest(*this, hClient, pInterfaceGuid, {}, excludedName);
}

int CWirelessManage::ConnectBestAP(const GUID* pInterfaceGuid)
{
    return ConnectBest(*this, hClient, pInterfaceGuid, {}, nullptr);
}
