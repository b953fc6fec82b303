#include "direct/hand_written.h"
#include "direct/lists.h"

#include <algorithm>
#include <cstring>

namespace calvix::benchmarks
{

using platform::wlan;

namespace
{

using Candidates = std::vector<WLAN_AVAILABLE_NETWORK*>;

bool IsExcluded(const std::vector<WLAN_BSS_ENTRY>& excluded, const DOT11_SSID& ssid)
{
    for (const WLAN_BSS_ENTRY& entry : excluded)
        if (std::memcmp(entry.dot11Ssid.ucSSID, ssid.ucSSID, ssid.uSSIDLength) == 0)
            return true;
    return false;
}

/// The score replaces the signal quality in the list, which is the program's own copy.
void PreferFiveGigahertz(HandWritten& side, Candidates& candidates, const WLAN_BSS_LIST& entries)
{
    for (WLAN_AVAILABLE_NETWORK* const candidate : candidates)
    {
        for (DWORD index = 0; index < entries.dwNumberOfItems; ++index)
        {
            const WLAN_BSS_ENTRY& entry = entries.wlanBssEntries[index];
            const bool same =
                std::memcmp(entry.dot11Ssid.ucSSID, candidate->dot11Ssid.ucSSID, entry.dot11Ssid.uSSIDLength) == 0;
            if (same && side.GetChannel(entry.ulChCenterFrequency) > 14)
                candidate->wlanSignalQuality = (std::min)(candidate->wlanSignalQuality + 10, 100UL);
        }
    }
}

/// Asks for the candidates from the lowest score upward until one is accepted.
template <typename Connect>
int ConnectInOrder(HandWritten& side, const GUID* adapter, const Lists& lists, Candidates& candidates, Connect connect)
{
    if (candidates.empty())
        return -9;
    WLAN_BSS_LIST* const entries =
        ReadEntries(HandWritten::client, adapter, lists.networks->Network[lists.networks->dwNumberOfItems - 1]);
    if (entries == nullptr)
        return -10;
    const bool none = entries->dwNumberOfItems == 0;
    PreferFiveGigahertz(side, candidates, *entries);
    wlan().WlanFreeMemory(entries);
    if (none)
        return -11;
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const WLAN_AVAILABLE_NETWORK* left, const WLAN_AVAILABLE_NETWORK* right)
                     { return left->wlanSignalQuality < right->wlanSignalQuality; });
    for (const WLAN_AVAILABLE_NETWORK* const candidate : candidates)
        if (connect(*candidate) == 0)
            return 0;
    return -12;
}

} // namespace

int HandWritten::ConnectBestAP(const GUID* adapter, std::vector<WLAN_BSS_ENTRY>* excluded, const wchar_t* excludedName)
{
    if (!Ready())
        return -1;
    const Lists lists(client, adapter);
    if (!lists.complete)
        return -4;
    Candidates candidates;
    VisitMatches(lists,
                 [&](const wchar_t* profile, WLAN_AVAILABLE_NETWORK& network)
                 {
                     const bool wanted = (excludedName == nullptr || std::wcscmp(profile, excludedName) != 0) &&
                                         IsAutoConnMode2(adapter, profile) == 1 &&
                                         (excluded == nullptr || !IsExcluded(*excluded, network.dot11Ssid));
                     if (wanted)
                         candidates.push_back(&network);
                     return false;
                 });
    return ConnectInOrder(*this, adapter, lists, candidates,
                          [&](const WLAN_AVAILABLE_NETWORK& network)
                          { return Connect(adapter, network.strProfileName, network.dot11BssType, nullptr); });
}

int HandWritten::ConnectBestAP(const GUID* adapter, std::vector<WLAN_BSS_ENTRY>* excluded)
{
    return ConnectBestAP(adapter, excluded, nullptr);
}

int HandWritten::ConnectBestAP(const GUID* adapter, const wchar_t* excludedName)
{
    return ConnectBestAP(adapter, nullptr, excludedName);
}

int HandWritten::ConnectBestAP(const GUID* adapter)
{
    return ConnectBestAP(adapter, nullptr, nullptr);
}

int HandWritten::AutoConnectEx(const GUID* adapter)
{
    if (!Ready())
        return -1;
    const Lists lists(client, adapter);
    if (!lists.complete)
        return -4;
    Candidates candidates;
    VisitMatches(lists,
                 [&](const wchar_t*, WLAN_AVAILABLE_NETWORK& network)
                 {
                     candidates.push_back(&network);
                     return false;
                 });
    return ConnectInOrder(*this, adapter, lists, candidates,
                          [&](const WLAN_AVAILABLE_NETWORK& network)
                          { return Connect(adapter, network.strProfileName, network.dot11BssType, nullptr); });
}

} // namespace calvix::benchmarks
