#include <calvix/wireless_manage.h>

#include "autoconnect/candidate_ranking.h"
#include "autoconnect/profile_network_match.h"
#include "connection/connect_request.h"
#include "core/memory.h"
#include "core/service_steps.h"
#include "core/wlan_records.h"

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

/// Ranks the candidates and requests connections from the lowest score upward until a request is accepted. Returns 0,
/// or the code of ConnectBestAP.
int ConnectCandidates(HANDLE client,
                      const GUID* interfaceGuid,
                      const WLAN_AVAILABLE_NETWORK_LIST& networks,
                      Candidates& candidates,
                      Trace& trace)
{
    if (candidates.empty())
        return -9;

    // Deliberate: only the BSS entries of the last listed network, candidate or not, take part in the band bonus.
    BssList entries;
    if (ListNetworkBss(client, interfaceGuid, Items(networks).back(), entries, trace) != 0)
        return -10;
    if (entries->dwNumberOfItems == 0)
        return -11;

    AddBandBonus(candidates, *entries);
    SortByScore(candidates);
    // Deliberate: from the lowest score upward. The service accepts a request before it connects, so usually the first
    // request is the accepted one.
    for (const WLAN_AVAILABLE_NETWORK* candidate : candidates)
        if (RequestNetwork(client, interfaceGuid, *candidate, trace) == 0)
            return 0;
    return -12;
}

/// The same from the start: opens the client handle, lists profiles and networks, and takes as candidates the networks
/// of the profiles that `usesProfile(profile)` lets through, in profile order, then network order, as far as
/// `accepts(network)` does.
template <typename UsesProfile, typename Accepts>
int ConnectRanked(HANDLE& client, const GUID* interfaceGuid, Trace& trace, UsesProfile usesProfile, Accepts accepts)
{
    ProfilesAndNetworks lists;
    if (const int code = MatchProfilesAndNetworks(
            client, interfaceGuid, lists, trace,
            {.notOpened = -1, .profilesFailed = -4, .noProfile = -5, .networksFailed = -6, .noNetwork = -7}))
        return code;
    Candidates candidates;
    const auto gather = [&]
    {
        for (const WLAN_PROFILE_INFO& profile : Items(*lists.profiles))
        {
            if (!usesProfile(profile))
                continue;
            for (const WLAN_AVAILABLE_NETWORK* network : lists.networksByProfile.Of(profile))
                if (accepts(*network))
                    candidates.push_back(lists.networks->Network + (network - lists.networks->Network));
        }
    };
    if (OutOfMemoryIn(gather))
        return -6;
    return ConnectCandidates(client, interfaceGuid, *lists.networks, candidates, trace);
}

/// The implementation of all overloads; a null name excludes no profile.
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

int CWirelessManage::AutoConnectEx(const GUID* pInterfaceGuid)
{
    SharedTrace trace;
    return ConnectRanked(
        hClient, pInterfaceGuid, trace, [](const WLAN_PROFILE_INFO&) { return true; },
        [](const WLAN_AVAILABLE_NETWORK&) { return true; });
}
