#include "forms/hex_text.h"

namespace calvix::forms
{

std::string HexText(std::span<const std::uint8_t> bytes, Letters letters)
{
    const char* const digits = letters == Letters::capital ? "0123456789ABCDEF" : "0123456789abcdef";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes)
    {
        text += digits[byte >> 4];
        text += digits[byte & 0xF];
    }
    return text;
}

std::string HexText(std::string_view bytes, Letters letters)
{
    return HexText(std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()), letters);
}

std::optional<std::vector<std::uint8_t>> BytesFromHex(std::string_view text)
{
    if (text.size() % 2 != 0)
        return std::nullopt;
    std::vector<std::uint8_t> bytes;
    for (std::size_t at = 0; at < text.size(); at += 2)
    {
        const auto high = HexDigit(text[at]);
        const auto low = HexDigit(text[at + 1]);
        if (!high || !low)
            return std::nullopt;
        bytes.push_back(static_cast<std::uint8_t>(*high * 16 + *low));
    }
    return bytes;
}

std::optional<std::uint8_t> HexDigit(char digit)
{
    constexpr std::string_view digits = "0123456789ABCDEFabcdef";
    const std::size_t value = digits.find(digit);
    if (value == std::string_view::npos)
        return std::nullopt;
    return static_cast<std::uint8_t>(value < 16 ? value : value - 6);
}

} // namespace calvix::forms
