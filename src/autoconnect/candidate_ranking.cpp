#include "autoconnect/candidate_ranking.h"

#include "core/wlan_records.h"
#include "inventory/signal.h"

#include <algorithm>

namespace calvix
{

namespace
{

constexpr unsigned long kBonus = 10;
constexpr unsigned long kBestScore = 100;
constexpr std::uint32_t kHighestTwoPointFourChannel = 14;

} // namespace

unsigned CountBonusEntries(const WLAN_AVAILABLE_NETWORK& network, const WLAN_BSS_LIST& entries)
{
    const auto items = Items(entries);
    // The network's stated length plays no part.
    const auto earnsBonus = [&network](const WLAN_BSS_ENTRY& entry)
    {
        return ChannelOfFrequency(entry.ulChCenterFrequency) > kHighestTwoPointFourChannel &&
               SameSsidBytes(network.dot11Ssid, entry.dot11Ssid, SsidLength(entry.dot11Ssid));
    };
    return static_cast<unsigned>(std::count_if(items.begin(), items.end(), earnsBonus));
}

void AddBandBonus(const Candidates& candidates, const WLAN_BSS_LIST& entries)
{
    for (WLAN_AVAILABLE_NETWORK* candidate : candidates)
        if (const unsigned count = CountBonusEntries(*candidate, entries))
            candidate->wlanSignalQuality = (std::min)(candidate->wlanSignalQuality + count * kBonus, kBestScore);
}

void SortByScore(Candidates& candidates)
{
    const auto hasLowerScore = [](const WLAN_AVAILABLE_NETWORK* left, const WLAN_AVAILABLE_NETWORK* right)
    { return left->wlanSignalQuality < right->wlanSignalQuality; };
    std::stable_sort(candidates.begin(), candidates.end(), hasLowerScore);
}

} // namespace calvix
