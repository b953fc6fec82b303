#pragma once

#include <cstdarg>
#include <cstddef>

namespace calvix
{

/// Formats as vsnprintf does, several times as fast, where the format has no conversions but
///
///   %u %d %i %x %X, with l before or a zero and a width in front of that (%08X), %s and %.*s
///
/// False, with the buffer in any state, for others, and for a null text. `length` receives what the whole text would
/// have. The capacity is not 0. The values stay where they are.
bool FormatSimply(char* buffer, std::size_t capacity, const char* format, std::va_list values, std::size_t& length);

} // namespace calvix
