#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace calvix::host
{

/// The small letter of a capital of the Latin, Greek or Cyrillic script; any other character as it is.
char32_t SmallLetter(char32_t letter);

inline bool IsCapital(char32_t letter)
{
    return SmallLetter(letter) != letter;
}

/// UTF-8 as code points; what is not UTF-8 becomes U+FFFD.
std::u32string CodePoints(std::string_view utf8);

/// A text as words are compared: small letters, one blank between words, none around hyphens, plain hyphens.
std::u32string ComparedText(std::string_view utf8);

} // namespace calvix::host
