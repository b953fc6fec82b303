#pragma once

#include <calvix/platform_records.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace calvix
{

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
