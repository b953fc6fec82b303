#pragma once

#include <cstddef>

namespace calvix
{

/// Copies terminated text into `capacity` characters, cutting what does not fit; always terminated. Without room
/// (capacity 0, or no destination) nothing is written.
template <typename Character>
void CopyTruncating(Character* destination, std::size_t capacity, const Character* source)
{
    if (destination == nullptr || capacity == 0)
        return;
    std::size_t length = 0;
    while (length + 1 < capacity && source[length] != 0)
    {
        destination[length] = source[length];
        ++length;
    }
    destination[length] = 0;
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
