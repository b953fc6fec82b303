#include "simulation/service_control.h"

#include "platform/records/error_numbers.h"
#include "simulation/ascii_case.h"

#include <cstring>

namespace calvix::simulation
{

namespace
{

constexpr DWORD kNoSuchMachine = 1722;
constexpr DWORD kNoSuchDatabase = 1065;
constexpr DWORD kInvalidName = 123;
constexpr DWORD kInvalidAddress = 487;
constexpr DWORD kAcceptsStopAndShutdown = 0x00000001 | 0x00000004;

bool GivenAndNot(const char* name, const char* expected)
{
    return name != nullptr && *name != '\0' && !SameButForCase(name, expected);
}

bool CanBeServiceName(const char* name)
{
    return *name != '\0' && std::strpbrk(name, "/\\") == nullptr;
}

} // namespace

BOOL SimulatedServiceControl::Fail(DWORD error)
{
    m_lastError = error;
    return FALSE;
}

SC_HANDLE SimulatedServiceControl::OpenSCManagerA(const char* machine, const char* database, DWORD)
{
    if (GivenAndNot(machine, "localhost"))
    {
        Fail(kNoSuchMachine);
        return nullptr;
    }
    if (GivenAndNot(database, "ServicesActive"))
    {
        Fail(SameButForCase(database, "ServicesFailed") ? kNoSuchDatabase : kInvalidName);
        return nullptr;
    }
    return static_cast<SC_HANDLE>(m_handles.Open(HandleKind::serviceManager));
}

SC_HANDLE SimulatedServiceControl::OpenServiceA(SC_HANDLE manager, const char* name, DWORD access)
{
    if (!m_handles.Use(manager, HandleKind::serviceManager, "OpenServiceA"))
    {
        Fail(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    if (name == nullptr || !CanBeServiceName(name) || !SameButForCase(name, "WlanSvc"))
    {
        Fail(name == nullptr ? kInvalidAddress : !CanBeServiceName(name) ? kInvalidName : ERROR_SERVICE_DOES_NOT_EXIST);
        return nullptr;
    }
    const SC_HANDLE service = static_cast<SC_HANDLE>(m_handles.Open(HandleKind::service));
    m_access.emplace(service, access);
    return service;
}

BOOL SimulatedServiceControl::QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status)
{
    if (!m_handles.Use(service, HandleKind::service, "QueryServiceStatus"))
        return Fail(ERROR_INVALID_HANDLE);
    if (status == nullptr)
        return Fail(kInvalidAddress);
    if (!MayDo(service, SERVICE_QUERY_STATUS))
        return Fail(ERROR_ACCESS_DENIED);
    *status = SERVICE_STATUS{};
    status->dwServiceType = SERVICE_WIN32_OWN_PROCESS;
    status->dwCurrentState = m_serviceRunning ? SERVICE_RUNNING : SERVICE_STOPPED;
    status->dwControlsAccepted = m_serviceRunning ? kAcceptsStopAndShutdown : 0;
    return TRUE;
}

BOOL SimulatedServiceControl::StartServiceA(SC_HANDLE service, DWORD, const char**)
{
    if (!m_handles.Use(service, HandleKind::service, "StartServiceA"))
        return Fail(ERROR_INVALID_HANDLE);
    if (!MayDo(service, SERVICE_START))
        return Fail(ERROR_ACCESS_DENIED);
    if (m_serviceRunning)
        return Fail(ERROR_SERVICE_ALREADY_RUNNING);
    m_serviceRunning = true;
    return TRUE;
}

BOOL SimulatedServiceControl::CloseServiceHandle(SC_HANDLE handle)
{
    const HandleKind kind =
        m_handles.IsOpen(handle, HandleKind::serviceManager) ? HandleKind::serviceManager : HandleKind::service;
    m_access.erase(handle);
    return m_handles.Close(handle, kind, "CloseServiceHandle") ? TRUE : Fail(ERROR_INVALID_HANDLE);
}

bool SimulatedServiceControl::MayDo(SC_HANDLE service, DWORD right) const
{
    const auto access = m_access.find(service);
    return access != m_access.end() && (access->second & right) != 0;
}

} // namespace calvix::simulation
