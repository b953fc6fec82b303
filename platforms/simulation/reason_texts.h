#pragma once

#include <calvix/platform_records.h>

#include <string_view>

namespace calvix::simulation
{

/// What the service says of a reason code, in plain English; a general text for a code that it does not know.
std::wstring_view ReasonText(DWORD reasonCode);

} // namespace calvix::simulation
