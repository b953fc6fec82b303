#include "simulation/service_control.h"

#include "platform/records/error_numbers.h"

namespace calvix::simulation
{

namespace
{

constexpr DWORD kNoSuchMachine = 1722;
constexpr DWORD kNoSuchDatabase = 1065;
constexpr DWORD kAcceptsStopAndShutdown = 0x00000001 | 0x00000004;

/// The manager compares names without regard to case.
bool SameName(const char* left, const char* right)
{
    const auto lower = [](char character)
    { return character >= 'A' && character <= 'Z' ? static_cast<char>(character + 32) : character; };
    for (; *left != '\0' && lower(*left) == lower(*right); ++left, ++right)
        ;
    return lower(*left) == lower(*right);
}

bool GivenAndNot(const char* name, const char* expected)
{
    return name != nullptr && *name != '\0' && !SameName(name, expected);
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
        Fail(kNoSuchDatabase);
        return nullptr;
    }
    return static_cast<SC_HANDLE>(m_handles.Open(HandleKind::serviceManager));
}

SC_HANDLE SimulatedServiceControl::OpenServiceA(SC_HANDLE manager, const char* name, DWORD)
{
    if (!m_handles.Use(manager, HandleKind::serviceManager, "OpenServiceA"))
    {
        Fail(ERROR_INVALID_HANDLE);
        return nullptr;
    }
    // Of a missing name the record says nothing; this machine calls it an invalid argument.
    if (name == nullptr)
    {
        Fail(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    if (!SameName(name, "WlanSvc"))
    {
        Fail(ERROR_SERVICE_DOES_NOT_EXIST);
        return nullptr;
    }
    return static_cast<SC_HANDLE>(m_handles.Open(HandleKind::service));
}

BOOL SimulatedServiceControl::QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status)
{
    if (!m_handles.Use(service, HandleKind::service, "QueryServiceStatus"))
        return Fail(ERROR_INVALID_HANDLE);
    if (status == nullptr)
        return Fail(ERROR_INVALID_PARAMETER);
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
    if (m_serviceRunning)
        return Fail(ERROR_SERVICE_ALREADY_RUNNING);
    m_serviceRunning = true;
    return TRUE;
}

BOOL SimulatedServiceControl::CloseServiceHandle(SC_HANDLE handle)
{
    const HandleKind kind =
        m_handles.IsOpen(handle, HandleKind::serviceManager) ? HandleKind::serviceManager : HandleKind::service;
    return m_handles.Close(handle, kind, "CloseServiceHandle") ? TRUE : Fail(ERROR_INVALID_HANDLE);
}

} // namespace calvix::simulation
