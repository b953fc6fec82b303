#pragma once

#include "platform/wlan_service.h"

namespace calvix::dropin
{

/// The WLAN service of the process's one simulated computer, at the present time. The first call makes the computer;
/// it stays as it is left until the process ends, as the real service does. Null when there is none, because the
/// scenario cannot be used: why was told on standard error and to the debugger, once. Any thread may call it, but none
/// while the process is ending.
platform::WlanService* CurrentService();

} // namespace calvix::dropin
