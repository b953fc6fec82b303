#pragma once

#include "core/trace.h"

namespace calvix
{

/// Room for a profile name with its terminator, as in the records of the WLAN service.
inline constexpr int kProfileNameCapacity = 256;

/// Converts a profile name from the active code page into `wide`. 0, or the platform's error number after tracing it:
/// an invalid character, or a name that does not fit.
ErrorNumber WidenProfileName(const char* name, wchar_t (&wide)[kProfileNameCapacity], Trace& trace);

} // namespace calvix
