#pragma once

#include "core/wlan_lists.h"

namespace calvix
{

/// The access point that a reconnection goes to: the last entry whose link quality is above the first entry's, or the
/// first entry when there is none. Deliberate: the first entry stays the reference, so this is no search for the best
/// quality; hosts count on its choices. The list holds at least one entry.
inline const WLAN_BSS_ENTRY& PickAccessPoint(const WLAN_BSS_LIST& entries)
{
    const auto items = Items(entries);
    const WLAN_BSS_ENTRY* pick = &items.front();
    for (const WLAN_BSS_ENTRY& entry : items)
    {
        if (entry.uLinkQuality > items.front().uLinkQuality)
            pick = &entry;
    }
    return *pick;
}

/// A desired-BSSID list of the one access point.
DOT11_BSSID_LIST DesireOnly(const WLAN_BSS_ENTRY& accessPoint);

} // namespace calvix
