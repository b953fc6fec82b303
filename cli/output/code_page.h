#pragma once

#include <string>
#include <string_view>

namespace calvix::host
{

/// The name in the active code page, in which some of the library's methods take it. A name with characters that the
/// code page lacks is a Failure; `advice` says what can be done instead.
std::string InActiveCodePage(const std::wstring& name, const std::string& advice);

/// Text in the active code page, as the library writes it, as UTF-8.
std::string FromActiveCodePage(std::string_view text);

} // namespace calvix::host
