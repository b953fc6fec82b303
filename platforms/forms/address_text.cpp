#include "forms/address_text.h"

namespace calvix::forms
{

std::string AddressText(std::span<const std::uint8_t, 6> address, Letters letters)
{
    std::string text = HexText(address, letters);
    for (std::size_t at = 2; at < text.size(); at += 3)
        text.insert(at, 1, ':');
    return text;
}

std::optional<std::array<std::uint8_t, 6>> AddressFromText(std::string_view text)
{
    std::array<std::uint8_t, 6> address{};
    if (text.size() != 3 * address.size() - 1)
        return std::nullopt;
    for (std::size_t index = 0; index < address.size(); ++index)
    {
        const auto byte = BytesFromHex(text.substr(3 * index, 2));
        if (!byte || (index > 0 && text[3 * index - 1] != ':'))
            return std::nullopt;
        address[index] = byte->front();
    }
    return address;
}

} // namespace calvix::forms
