#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace calvix::forms
{

/// The channel number that people use, 0 for a frequency that is no channel. The library's GetChannel differs from it in
/// the 2.4 GHz band, deliberately, and knows no 6 GHz channels.
std::uint32_t ChannelNumber(std::uint32_t frequencyKhz);

/// The centre frequency of a channel in kHz; nothing for a channel that the band ("2.4", "5" or "6") does not have.
std::optional<std::uint32_t> ChannelFrequency(std::string_view band, std::uint32_t channel);

/// From where the channels around a frequency are counted, in steps of 5 MHz.
std::uint32_t ChannelBaseMhz(std::uint32_t mhz);

} // namespace calvix::forms
