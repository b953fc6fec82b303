#include "simulation/scenario_names.h"

namespace calvix::simulation
{

namespace
{

constexpr std::string_view kDigits = "0123456789abcdef";

std::optional<std::uint8_t> ByteFromHex(char high, char low)
{
    const auto digit = [](char character)
    { return kDigits.find(character >= 'A' && character <= 'F' ? static_cast<char>(character + 32) : character); };
    if (digit(high) == std::string_view::npos || digit(low) == std::string_view::npos)
        return std::nullopt;
    return static_cast<std::uint8_t>(digit(high) * 16 + digit(low));
}

} // namespace

std::string HexText(const Bytes& bytes)
{
    std::string text;
    for (const std::uint8_t byte : bytes)
    {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 0xF];
    }
    return text;
}

std::optional<Bytes> BytesFromHex(std::string_view text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    Bytes bytes;
    for (std::size_t position = 0; position < text.size(); position += 2)
    {
        const std::optional<std::uint8_t> byte = ByteFromHex(text[position], text[position + 1]);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
    }
    return bytes;
}

std::string AddressText(const MacAddress& address)
{
    std::string text;
    for (const std::uint8_t byte : address)
        text += (text.empty() ? "" : ":") + HexText({byte});
    return text;
}

std::optional<MacAddress> AddressFromText(std::string_view text)
{
    MacAddress address{};
    if (text.size() != address.size() * 3 - 1)
        return std::nullopt;
    for (std::size_t index = 0; index < address.size(); ++index)
    {
        const std::optional<std::uint8_t> byte = ByteFromHex(text[index * 3], text[index * 3 + 1]);
        if (!byte || (index > 0 && text[index * 3 - 1] != ':'))
            return std::nullopt;
        address[index] = *byte;
    }
    return address;
}

std::optional<std::uint32_t> ChannelFrequency(std::string_view band, std::uint32_t channel)
{
    if (band == "2.4" && channel == 14)
        return 2484000;
    if (band == "2.4" && channel >= 1 && channel <= 13)
        return 2407000 + 5000 * channel;
    if (band == "5" && channel >= 7 && channel <= 196)
        return 5000000 + 5000 * channel;
    // Channel 2 of 6 GHz lies below channel 1: it is an operating class of its own.
    if (band == "6" && channel == 2)
        return 5935000;
    if (band == "6" && channel >= 1 && channel <= 233)
        return 5950000 + 5000 * channel;
    return std::nullopt;
}

} // namespace calvix::simulation
