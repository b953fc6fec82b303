#pragma once

#include <string>
#include <string_view>

namespace calvix::forms
{

/// Text as written in an element or an attribute, with the five entities that XML has by itself.
std::string EscapedXml(std::string_view text);

} // namespace calvix::forms
