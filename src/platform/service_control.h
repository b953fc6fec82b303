#pragma once

#include "platform/operation.h"
#include "platform/records/system_records.h"

namespace calvix::platform
{

/// The service control manager. A failing operation gives null or FALSE and leaves its reason in GetLastError.
struct ServiceControl
{
    Operation<SC_HANDLE(const char* machine, const char* database, DWORD access)> OpenSCManagerA;
    Operation<SC_HANDLE(SC_HANDLE manager, const char* name, DWORD access)> OpenServiceA;
    Operation<BOOL(SC_HANDLE service, SERVICE_STATUS* status)> QueryServiceStatus;
    Operation<BOOL(SC_HANDLE service, DWORD argumentCount, const char** arguments)> StartServiceA;
    Operation<BOOL(SC_HANDLE handle)> CloseServiceHandle;
};

} // namespace calvix::platform
