#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace calvix
{

/// The text in a fixed array of a platform record: up to its terminator, or the whole array where that is missing.
template <std::size_t Capacity>
std::wstring_view FixedText(const wchar_t (&text)[Capacity])
{
    return {text, static_cast<std::size_t>(std::find(text, text + Capacity, L'\0') - text)};
}

} // namespace calvix
