#include "forms/channel.h"

namespace calvix::forms
{

namespace
{

constexpr std::uint32_t kBase24 = 2407;
constexpr std::uint32_t kBase49 = 4000;
constexpr std::uint32_t kBase5 = 5000;
constexpr std::uint32_t kBase6 = 5950;

/// Apart from the others of its band.
constexpr std::uint32_t kChannel14 = 2484;
/// Channel 2 of 6 GHz lies below channel 1: it is an operating class of its own, with a base of its own.
constexpr std::uint32_t kChannel2Of6 = 5935;

} // namespace

std::uint32_t ChannelNumber(std::uint32_t frequencyKhz)
{
    const std::uint32_t mhz = frequencyKhz / 1000;
    if (mhz == kChannel14)
        return 14;
    if (mhz >= 4900 && mhz < 5000)
        return (mhz - kBase49) / 5;
    const bool is24 = mhz >= 2412 && mhz <= 2472;
    const bool is5 = mhz > kBase5 && mhz < 5925;
    const bool is6 = mhz == kChannel2Of6 || (mhz > kBase6 && mhz <= 7125);
    return is24 || is5 || is6 ? (mhz - ChannelBaseMhz(mhz)) / 5 : 0;
}

std::optional<std::uint32_t> ChannelFrequency(std::string_view band, std::uint32_t channel)
{
    if (band == "2.4" && channel == 14)
        return kChannel14 * 1000;
    if (band == "2.4" && channel >= 1 && channel <= 13)
        return (kBase24 + 5 * channel) * 1000;
    if (band == "5" && channel >= 7 && channel <= 181)
        return (kBase5 + 5 * channel) * 1000;
    if (band == "5" && channel >= 182 && channel <= 196)
        return (kBase49 + 5 * channel) * 1000;
    if (band == "6" && channel == 2)
        return kChannel2Of6 * 1000;
    if (band == "6" && channel >= 1 && channel <= 233)
        return (kBase6 + 5 * channel) * 1000;
    return std::nullopt;
}

std::uint32_t ChannelBaseMhz(std::uint32_t mhz)
{
    if (mhz < 3000)
        return kBase24;
    if (mhz < 5925)
        return kBase5;
    return mhz == kChannel2Of6 ? kChannel2Of6 - 10 : kBase6;
}

} // namespace calvix::forms
