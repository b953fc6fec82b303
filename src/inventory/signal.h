#pragma once

#include <algorithm>
#include <cstdint>

namespace calvix
{

inline constexpr int kWeakestRssi = -100;

/// The dBm of a signal quality; the inverse of StrengthOfRssi except for the integer division.
inline int RssiOfQuality(unsigned long quality)
{
    return static_cast<int>(quality / 2) + kWeakestRssi;
}

/// 0..100 of dBm, linear from -100 to -50; computed in 32 bits.
inline int StrengthOfRssi(int rssi)
{
    const auto strength = static_cast<std::int32_t>(2U * static_cast<std::uint32_t>(rssi) + 200U);
    return std::clamp<int>(strength, 0, 100);
}

/// Channel number of a centre frequency, by the library's own rule (see CWirelessManage::GetChannel).
std::uint32_t ChannelOfFrequency(unsigned long frequency);

} // namespace calvix
