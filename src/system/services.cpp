#include <calvix/wireless_manage.h>

#include "platform/platform.h"

using namespace calvix::platform;

namespace
{

/// A host name that is reserved for examples and answers everywhere. Nothing is fetched from it.
constexpr const char* kProbeAddress = "https://www.example.com/";

} // namespace

void CWirelessManage::CheckAutoConfig()
{
    // Deliberate: no step is checked. A handle that could not be opened is passed on, and the service control manager
    // refuses it.
    const SC_HANDLE manager = services().OpenSCManagerA(nullptr, nullptr, SC_MANAGER_ALL_ACCESS);
    const SC_HANDLE service = services().OpenServiceA(manager, "WlanSvc", SERVICE_ALL_ACCESS);
    SERVICE_STATUS status{};
    services().QueryServiceStatus(service, &status);
    if (status.dwCurrentState != SERVICE_RUNNING)
    {
        services().StartServiceA(service, 0, nullptr);
        errors().GetLastError();
    }
    services().CloseServiceHandle(manager);
    services().CloseServiceHandle(service);
}

long CWirelessManage::OpenUrl()
{
    // Without a session handle the option is the whole process's.
    DWORD connectTimeout = 3000;
    internet().InternetSetOptionA(nullptr, INTERNET_OPTION_CONNECT_TIMEOUT, &connectTimeout, sizeof(connectTimeout));
    return internet().InternetCheckConnectionA(kProbeAddress, FLAG_ICC_FORCE_CONNECTION, 0) ? 0 : -1;
}
