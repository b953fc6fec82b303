#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace calvix::simulation
{

/// Conversions between wide text and the narrow code pages other than UTF-8, by the converter that the machine this runs
/// on comes with.

/// Whether the converter knows the code page.
bool HasNarrowEncoding(std::uint32_t codePage);

/// Ill-formed bytes become the code page's replacement and set the flag, which is cleared otherwise.
std::wstring DecodeNarrow(std::uint32_t codePage, std::string_view bytes, bool& illFormed);

/// A character that the code page lacks becomes `replacement`, and sets the flag, which is cleared otherwise.
/// `exactOnly` keeps the converter from putting a similar character in its place; not every converter does that anyway.
std::string
EncodeNarrow(std::uint32_t codePage, std::wstring_view text, char replacement, bool exactOnly, bool& replaced);

} // namespace calvix::simulation
