#pragma once

#include "core/trace.h"
#include "core/wlan_memory.h"

namespace calvix
{

/// Reads a stored profile's XML, with its key in plain text where the caller may see it. 0, or the platform's error
/// number after tracing it.
ErrorNumber ReadProfile(HANDLE client, const GUID* interfaceGuid, const wchar_t* name, ProfileText& xml, Trace& trace);

} // namespace calvix
