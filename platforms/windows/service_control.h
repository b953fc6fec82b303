#pragma once

#include "platform/service_control.h"

namespace calvix::windows
{

/// The service control manager.
class ServiceControl final : public platform::ServiceControl
{
public:
    SC_HANDLE OpenSCManagerA(const char* machine, const char* database, DWORD access) override;
    SC_HANDLE OpenServiceA(SC_HANDLE manager, const char* name, DWORD access) override;
    BOOL QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status) override;
    BOOL StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments) override;
    BOOL CloseServiceHandle(SC_HANDLE handle) override;
};

} // namespace calvix::windows
