#include "import/channel_frequency.h"

#include "forms/channel.h"

namespace calvix::host
{

namespace
{

/// What the system numbers as 5 GHz, less than the standard does.
bool IsListedAs5GHz(std::uint32_t channel)
{
    return channel >= 32 && channel <= 177;
}

} // namespace

std::string_view BandOfChannel(std::uint32_t channel)
{
    if (channel >= 1 && channel <= 14)
        return "2.4";
    return IsListedAs5GHz(channel) ? "5" : "";
}

std::optional<std::uint32_t> CapturedFrequency(std::string_view band, std::uint32_t channel)
{
    if (band == "5" && !IsListedAs5GHz(channel))
        return std::nullopt;
    return forms::ChannelFrequency(band, channel);
}

} // namespace calvix::host
