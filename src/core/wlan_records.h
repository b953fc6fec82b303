#pragma once

#include <calvix/platform_records.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace calvix
{

/// The entries of a list record, whose array member only names the first of them.

inline std::span<const WLAN_INTERFACE_INFO> Items(const WLAN_INTERFACE_INFO_LIST& list)
{
    return {list.InterfaceInfo, list.dwNumberOfItems};
}

inline std::span<const WLAN_AVAILABLE_NETWORK> Items(const WLAN_AVAILABLE_NETWORK_LIST& list)
{
    return {list.Network, list.dwNumberOfItems};
}

inline std::span<const WLAN_PROFILE_INFO> Items(const WLAN_PROFILE_INFO_LIST& list)
{
    return {list.ProfileInfo, list.dwNumberOfItems};
}

inline std::span<const WLAN_BSS_ENTRY> Items(const WLAN_BSS_LIST& list)
{
    return {list.wlanBssEntries, list.dwNumberOfItems};
}

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
        if (SameInterface(info.InterfaceGuid, interfaceGuid))
            last = &info;
    return last;
}

/// The text in a fixed array of a platform record: up to its terminator, or the whole array where that is missing.
template <std::size_t Capacity>
std::wstring_view FixedText(const wchar_t (&text)[Capacity])
{
    const wchar_t* const end = std::char_traits<wchar_t>::find(text, Capacity, L'\0');
    return {text, end != nullptr ? static_cast<std::size_t>(end - text) : Capacity};
}

/// A name out of a platform record as the platform's operations take names, which is terminated: a name that fills its
/// array would drag what follows it in the record along. Lives no longer than the record.
template <std::size_t Capacity>
class TerminatedName
{
public:
    explicit TerminatedName(const wchar_t (&name)[Capacity]) : m_text(name)
    {
        if (FixedText(name).size() < Capacity)
            return;
        std::copy(name, name + Capacity, m_copy);
        m_copy[Capacity] = L'\0';
        m_text = m_copy;
    }
    TerminatedName(const TerminatedName&) = delete;
    TerminatedName& operator=(const TerminatedName&) = delete;

    operator const wchar_t*() const { return m_text; }

private:
    const wchar_t* m_text;
    wchar_t m_copy[Capacity + 1]; ///< of a full array only
};

/// Bytes that an SSID record really holds: its stated length, at most the 32 there is room for.
inline std::size_t SsidLength(const DOT11_SSID& ssid)
{
    return (std::min)(static_cast<std::size_t>(ssid.uSSIDLength), sizeof(ssid.ucSSID));
}

/// Whether the first `length` bytes of two SSIDs are equal, whatever their own lengths.
inline bool SameSsidBytes(const DOT11_SSID& left, const DOT11_SSID& right, std::size_t length)
{
    return std::memcmp(left.ucSSID, right.ucSSID, length) == 0;
}

/// Whether two SSIDs are equal in length and bytes.
inline bool SameSsid(const DOT11_SSID& left, const DOT11_SSID& right)
{
    return left.uSSIDLength == right.uSSIDLength && SameSsidBytes(left, right, SsidLength(left));
}

} // namespace calvix
