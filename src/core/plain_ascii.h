#pragma once

namespace calvix
{

/// Whether a character is the same number in wide text and in the narrow text of every locale. Shift-JIS has other
/// characters in the places of the backslash and the tilde.
template <typename Character>
constexpr bool IsPlainAscii(Character character)
{
    return character > 0 && character < 0x7F && character != '\\' && character != '~';
}

} // namespace calvix
