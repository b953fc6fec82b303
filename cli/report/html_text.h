#pragma once

#include "output/facts.h"

#include <map>
#include <string>
#include <string_view>

namespace calvix::host
{

/// A text as it stands between tags and in quoted attributes: whatever it holds, it stays text. Control characters, which
/// no document may hold, become U+FFFD.
std::string EscapeHtml(std::string_view text);

/// An SSID for people, set apart so that its direction of writing does not reach its neighbours.
std::string SsidHtml(const SsidFacts& ssid);
/// The same as plain text, "(hidden)" for none.
std::string SsidName(const SsidFacts& ssid);

/// Puts the values in the place of "{{name}}". What the values hold is not looked at again.
std::string FillTemplate(std::string_view text, const std::map<std::string, std::string, std::less<>>& values);

/// A number as documents have it, with at most one digit after the point.
std::string DecimalText(double number);

} // namespace calvix::host
