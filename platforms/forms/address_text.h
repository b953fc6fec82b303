#pragma once

#include "forms/hex_text.h"

#include <array>

namespace calvix::forms
{

/// "02:CA:1F:00:00:01"
std::string AddressText(std::span<const std::uint8_t, 6> address, Letters letters = Letters::capital);

/// The reverse, of either case; nothing for other text.
std::optional<std::array<std::uint8_t, 6>> AddressFromText(std::string_view text);

} // namespace calvix::forms
