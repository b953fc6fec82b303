#pragma once

#include "platform/records/service_records.h"

namespace calvix::platform
{

/// The service control manager. A failing operation gives null or FALSE and leaves its reason in GetLastError.
class ServiceControl
{
public:
    virtual ~ServiceControl() = default;

    virtual SC_HANDLE OpenSCManagerA(const char* machine, const char* database, DWORD access) = 0;
    virtual SC_HANDLE OpenServiceA(SC_HANDLE manager, const char* name, DWORD access) = 0;
    virtual BOOL QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status) = 0;
    virtual BOOL StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments) = 0;
    virtual BOOL CloseServiceHandle(SC_HANDLE handle) = 0;
};

} // namespace calvix::platform
