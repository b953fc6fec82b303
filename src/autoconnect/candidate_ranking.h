#pragma once

#include <calvix/platform_records.h>

#include <vector>

namespace calvix
{

/// Visible networks that may be joined, each its entry of the network list, whose signal quality becomes its score. Two
/// profiles of one name share the entry, and what one of them earns the other has.
using Candidates = std::vector<WLAN_AVAILABLE_NETWORK*>;

/// How many of the BSS entries earn the network a bonus: those of its SSID in the 5 GHz band. An entry belongs to every
/// network whose SSID begins with the entry's.
unsigned CountBonusEntries(const WLAN_AVAILABLE_NETWORK& network, const WLAN_BSS_LIST& entries);

/// Raises each candidate's score by 10, up to 100, for every BSS entry that earns it a bonus.
void AddBandBonus(const Candidates& candidates, const WLAN_BSS_LIST& entries);

/// Sorts by score, the lowest first; equals keep their order.
void SortByScore(Candidates& candidates);

} // namespace calvix
