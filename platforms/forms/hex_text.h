#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::forms
{

enum class Letters
{
    capital,
    lower
};

/// "486F6D65"
std::string HexText(std::span<const std::uint8_t> bytes, Letters letters = Letters::capital);
std::string HexText(std::string_view bytes, Letters letters = Letters::capital);

/// The bytes of pairs of digits of either case; nothing for other text.
std::optional<std::vector<std::uint8_t>> BytesFromHex(std::string_view text);

/// The value of a hexadecimal digit of either case; nothing for other characters.
std::optional<std::uint8_t> HexDigit(char digit);

} // namespace calvix::forms
