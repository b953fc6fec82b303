#pragma once

#include <string>
#include <string_view>

namespace calvix
{

/// Wide text as narrow text of the current C locale, with '?' for each character that it lacks.
std::string NarrowInLocale(std::wstring_view wide);

} // namespace calvix
