#include "windows/windows_platform.h"

namespace calvix::platform
{

Platform& DefaultPlatform()
{
    // Never destroyed: a host may end its use of the library as late as in its own exit handlers.
    static Platform& operatingSystem = *new windows::WindowsPlatform;
    return operatingSystem;
}

} // namespace calvix::platform
