#pragma once

#include <cstddef>
#include <string_view>

namespace calvix
{

inline constexpr std::size_t kAddressTextSize = 18;

/// Six address bytes as "00:1A:2B:3C:4D:5E", cut to `capacity` and terminated.
void FormatAddress(const unsigned char* address, char* text, std::size_t capacity);

/// The words for an interface's state; empty for an unknown number.
std::string_view InterfaceStateText(unsigned long state);

} // namespace calvix
