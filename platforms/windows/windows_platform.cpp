#include "windows/windows_platform.h"

namespace calvix::windows
{

platform::WlanService& WindowsPlatform::wlan()
{
    return wlan_;
}

platform::ServiceControl& WindowsPlatform::services()
{
    return services_;
}

platform::Power& WindowsPlatform::power()
{
    return power_;
}

platform::Security& WindowsPlatform::security()
{
    return security_;
}

platform::Processes& WindowsPlatform::processes()
{
    return processes_;
}

platform::Internet& WindowsPlatform::internet()
{
    return internet_;
}

platform::Text& WindowsPlatform::text()
{
    return text_;
}

platform::Clock& WindowsPlatform::clock()
{
    return clock_;
}

platform::DebuggerOutput& WindowsPlatform::debugger()
{
    return debugger_;
}

platform::LastError& WindowsPlatform::errors()
{
    return errors_;
}

} // namespace calvix::windows
