#pragma once

#include "forms/address_text.h"
#include "forms/hex_text.h"

#include <calvix/platform_records.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace calvix::host
{

/// UTF-8 to the platform's wide text; bytes that are not UTF-8 become U+FFFD.
std::wstring Widen(std::string_view utf8);
/// Wide text to UTF-8; a surrogate without its partner becomes U+FFFD.
std::string Narrow(std::wstring_view wide);

/// Bytes for people: UTF-8 as it is; bytes that are not UTF-8, control characters and marks of direction as \xE9. A
/// backslash before an x is written \x5C, so that the text can be turned back.
std::string VisibleText(std::string_view bytes);
/// Whether no character of it needs such an escape.
bool IsVisible(std::string_view bytes);
/// The bytes that VisibleText shows.
std::string BytesOfVisibleText(std::string_view text);

std::string SsidBytes(const DOT11_SSID& ssid);
inline std::string SsidText(const DOT11_SSID& ssid)
{
    return VisibleText(SsidBytes(ssid));
}
/// An SSID record with these bytes, at most 32 of them.
DOT11_SSID MakeSsid(std::string_view bytes);

/// The bytes of pairs of hexadecimal digits; blanks, colons and hyphens do not matter. None for any other text.
std::optional<std::string> BytesOfHexText(std::string_view text);
/// An SSID as an argument has it: as VisibleText shows it, or "hex:" and its bytes. None for bad digits.
std::optional<std::string> BytesOfSsidArgument(std::string_view text);

using forms::HexText;
/// "00:1A:2B:3C:4D:5E"
inline std::string MacText(const DOT11_MAC_ADDRESS& address)
{
    return forms::AddressText(address);
}

/// Columns that UTF-8 text takes on a terminal.
std::size_t DisplayWidth(std::string_view utf8);

} // namespace calvix::host
