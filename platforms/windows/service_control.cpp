#include "windows/service_control.h"

namespace calvix::windows
{

SC_HANDLE ServiceControl::OpenSCManagerA(const char* machine, const char* database, DWORD access)
{
    return ::OpenSCManagerA(machine, database, access);
}

SC_HANDLE ServiceControl::OpenServiceA(SC_HANDLE manager, const char* name, DWORD access)
{
    return ::OpenServiceA(manager, name, access);
}

BOOL ServiceControl::QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status)
{
    return ::QueryServiceStatus(service, status);
}

BOOL ServiceControl::StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments)
{
    return ::StartServiceA(service, argumentCount, arguments);
}

BOOL ServiceControl::CloseServiceHandle(SC_HANDLE handle)
{
    return ::CloseServiceHandle(handle);
}

} // namespace calvix::windows
