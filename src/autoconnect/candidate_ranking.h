#pragma once

#include <calvix/platform_records.h>

#include <vector>

namespace calvix
{

/// A visible network that may be joined.
struct Candidate
{
    explicit Candidate(const WLAN_AVAILABLE_NETWORK& candidate)
        : network(&candidate), score(candidate.wlanSignalQuality)
    {
    }

    const WLAN_AVAILABLE_NETWORK* network; ///< lies in the available-network list
    unsigned long score;                   ///< signal quality with the band bonus, 0 to 100
    unsigned bonusEntries = 0;             ///< BSS entries that earned the bonus
};

/// Raises each candidate's score by 10, up to 100, for every BSS entry of its SSID in the 5 GHz band. An entry belongs
/// to every candidate whose SSID begins with the entry's.
void AddBandBonus(std::vector<Candidate>& candidates, const WLAN_BSS_LIST& entries);

/// Sorts by score, the lowest first; equals keep their order.
void SortByScore(std::vector<Candidate>& candidates);

/// The candidate that SortByScore would put first, of at least one.
const Candidate& LowestScored(const std::vector<Candidate>& candidates);

} // namespace calvix
