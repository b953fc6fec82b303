// Part of libcalvix.so: the one computer of the process, for libwlanapi.so.

#include "dropin/visible_service.h"
#include "platform/platform.h"
#include "simulation/computer.h"

namespace calvix::dropin
{

// A scenario that cannot be used leaves a computer with nothing in it, as for the class.
DWORD FindVisibleService(VisibleService& found)
{
    platform::Platform& platform = platform::DefaultPlatform();
    found = {&platform.wlan(), &static_cast<simulation::Computer&>(platform).service()};
    return ERROR_SUCCESS;
}

} // namespace calvix::dropin
