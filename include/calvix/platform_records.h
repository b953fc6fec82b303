// The platform records that the exported class speaks: on Windows the SDK's own, with the names that it may not have yet,
// elsewhere portable declarations of the same records under the same names, so that one host source compiles in both
// worlds. windows.h comes first, because the other two SDK headers lean on its types.
#pragma once

// clang-format off
#ifdef _WIN32

#include <windows.h>
#include <wlanapi.h>
#include <powrprof.h>

#include <calvix/records/media_notifications.h>
#include <calvix/records/newer_names.h>
#include <calvix/records/wlan_flags.h>
#include <calvix/records/wlan_reason_codes.h>

// Some SDKs know the notification record by its WLAN name only; where both exist they are one type and this
// repeats what the SDK says.
typedef WLAN_NOTIFICATION_DATA L2_NOTIFICATION_DATA;
typedef PWLAN_NOTIFICATION_DATA PL2_NOTIFICATION_DATA;

#else

#include <calvix/records/power_types.h>
#include <calvix/records/windows_types.h>
#include <calvix/records/wlan_notifications.h>
#include <calvix/records/wlan_reason_codes.h>
#include <calvix/records/wlan_types.h>

#endif
// clang-format on
