#pragma once

#include "core/wlan_lists.h"

#include <cstring>

namespace calvix
{

/// Whether two interface identifiers are equal in all 16 bytes. A null one equals none.
inline bool SameInterface(const GUID& left, const GUID* right)
{
    return right != nullptr && std::memcmp(&left, right, sizeof(GUID)) == 0;
}

/// The last interface of the list with this identifier, null when there is none. Deliberate: with duplicates in the
/// service's list the last one decides.
inline const WLAN_INTERFACE_INFO* LastInterface(const WLAN_INTERFACE_INFO_LIST& list, const GUID* interfaceGuid)
{
    const WLAN_INTERFACE_INFO* last = nullptr;
    for (const WLAN_INTERFACE_INFO& info : Items(list))
    {
        if (SameInterface(info.InterfaceGuid, interfaceGuid))
            last = &info;
    }
    return last;
}

} // namespace calvix
