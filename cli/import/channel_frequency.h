#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace calvix::host
{

/// The band of a channel number where the capture does not tell: "2.4" or "5", as systems that leave it out know nothing
/// of 6 GHz. Empty for a number that neither of them has.
std::string_view BandOfChannel(std::uint32_t channel);

/// Centre frequency in kHz of a channel of the band "2.4", "5" or "6". None for a channel that captures of the band cannot
/// hold.
std::optional<std::uint32_t> CapturedFrequency(std::string_view band, std::uint32_t channel);

} // namespace calvix::host
