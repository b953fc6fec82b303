#pragma once

#include <calvix/platform_records.h>

#include <optional>
#include <string>
#include <string_view>

namespace calvix::forms
{

/// The GUID of "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}"; nothing for any other text.
std::optional<GUID> GuidFromText(std::string_view text);

/// The reverse, in capitals.
std::string GuidText(const GUID& guid);

} // namespace calvix::forms
