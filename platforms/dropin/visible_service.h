#pragma once

#include <calvix/export.h>

#include "platform/wlan_service.h"

namespace calvix::simulation
{
class SimulatedWlanService;
} // namespace calvix::simulation

namespace calvix::dropin
{

/// The WLAN service of the process's one simulated computer.
struct VisibleService
{
    platform::WlanService* operations = nullptr;         ///< what the library calls, too
    simulation::SimulatedWlanService* service = nullptr; ///< all the rest
};

/// Finds the service at the present time, or says with an error number why there is none: ERROR_INVALID_DATA when the
/// scenario cannot be used, which standard error has reported once; ERROR_SHUTDOWN_IN_PROGRESS while the process ends.
/// On Windows the first call makes the computer, which stays as it is left until the process ends, as the real service
/// does. Elsewhere it is the one that libcalvix.so has, which exports this function for libwlanapi.so. Any thread may
/// call it.
CALVIX_API DWORD FindVisibleService(VisibleService& found);

} // namespace calvix::dropin
