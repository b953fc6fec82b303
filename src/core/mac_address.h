#pragma once

#include <cstddef>

namespace calvix
{

inline constexpr std::size_t kAddressTextSize = 18;

/// Six address bytes as "00:1A:2B:3C:4D:5E", cut to `capacity` and terminated.
void FormatAddress(const unsigned char* address, char* text, std::size_t capacity);

} // namespace calvix
