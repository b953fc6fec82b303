#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace calvix
{

/// Copies terminated text into `capacity` characters, cutting what does not fit; always terminated. Without room
/// (capacity 0, or no destination) nothing is written.
template <typename Character>
void CopyTruncating(Character* destination, std::size_t capacity, const Character* source)
{
    if (destination == nullptr || capacity == 0)
        return;
    using Traits = std::char_traits<Character>;
    const Character* const end = Traits::find(source, capacity - 1, Character{});
    const std::size_t length = end != nullptr ? static_cast<std::size_t>(end - source) : capacity - 1;
    Traits::copy(destination, source, length);
    destination[length] = 0;
}

/// The same for text of a known length.
template <std::size_t Capacity>
void CopyTruncating(char (&destination)[Capacity], std::string_view source)
{
    const std::size_t length = source.size() < Capacity ? source.size() : Capacity - 1;
    source.copy(destination, length);
    destination[length] = '\0';
}

/// The same for a capacity that a caller passed in as a signed number: a negative one gives the empty text.
template <typename Character>
void CopyTruncatingToCaller(Character* destination, int capacity, const Character* source)
{
    const Character nothing[1] = {0};
    if (capacity < 0)
        CopyTruncating(destination, 1, nothing);
    else
        CopyTruncating(destination, static_cast<std::size_t>(capacity), source);
}

} // namespace calvix
