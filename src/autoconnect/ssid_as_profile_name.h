#pragma once

#include <calvix/platform_records.h>

namespace calvix
{

inline constexpr int kSsidTextCapacity = 128;

/// An SSID as text that can be compared with profile names, since profiles are named after their network; empty for a
/// record that states more than `longestStated` bytes. False, with the reason in the platform's last error, when it
/// cannot be converted. Deliberate: the flags are those for narrow code pages, which the platform refuses for UTF-8;
/// there no SSID converts, and hosts know the automatic methods so.
bool SsidAsProfileName(const DOT11_SSID& ssid, unsigned long longestStated, wchar_t (&text)[kSsidTextCapacity]);

} // namespace calvix
