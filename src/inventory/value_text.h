#pragma once

#include <cstdint>
#include <span>

namespace calvix
{

/// What a listing calls one value of an enumeration.
struct ValueText
{
    std::uint32_t value;
    const char* text;
};

/// The text of a value, or `otherwise` for one that the table does not know.
inline const char* TextOf(std::span<const ValueText> table, std::uint32_t value, const char* otherwise)
{
    for (const ValueText& row : table)
    {
        if (row.value == value)
            return row.text;
    }
    return otherwise;
}

} // namespace calvix
