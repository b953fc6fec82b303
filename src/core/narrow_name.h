#pragma once

#include "core/fixed_text.h"

#include <string>

namespace calvix
{

/// A name in a trace line: a byte a character, as the C locale has it on Windows, and '?' for a character without one,
/// for which the C runtimes would drop the whole line.
template <std::size_t Capacity>
std::string NarrowName(const wchar_t (&name)[Capacity])
{
    std::string narrow;
    for (const wchar_t character : FixedText(name))
        narrow += character <= 0xFF ? static_cast<char>(character) : '?';
    return narrow;
}

} // namespace calvix
