#include "simulation/facility.h"

#include "platform/records/error_numbers.h"
#include "simulation/ascii_case.h"

#include <cstring>
#include <map>

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

/// A service manager that knows one service, WlanSvc. Everybody gets every right to it that is asked for by its own name;
/// generic rights have no meaning here.
class SimulatedServiceControl final : public Facility
{
public:
    using Facility::Facility;

    SC_HANDLE OpenSCManagerA(const char* machine, const char* database, DWORD)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (GivenAndNot(machine, "localhost"))
            return Fail(kNoSuchMachine);
        if (GivenAndNot(database, "ServicesActive"))
            return Fail(SameButForCase(database, "ServicesFailed") ? kNoSuchDatabase : kInvalidName);
        return static_cast<SC_HANDLE>(m_machine.handles.Open(HandleKind::serviceManager));
    }

    SC_HANDLE OpenServiceA(SC_HANDLE manager, const char* name, DWORD access)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (!m_machine.handles.Use(manager, HandleKind::serviceManager, "OpenServiceA"))
            return Fail(ERROR_INVALID_HANDLE);
        if (name == nullptr)
            return Fail(kInvalidAddress);
        if (!CanBeServiceName(name))
            return Fail(kInvalidName);
        if (!SameButForCase(name, "WlanSvc"))
            return Fail(ERROR_SERVICE_DOES_NOT_EXIST);
        const SC_HANDLE service = static_cast<SC_HANDLE>(m_machine.handles.Open(HandleKind::service));
        m_access.emplace(service, access);
        return service;
    }

    BOOL QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (!m_machine.handles.Use(service, HandleKind::service, "QueryServiceStatus"))
            return Fail(ERROR_INVALID_HANDLE);
        if (status == nullptr)
            return Fail(kInvalidAddress);
        if (!MayDo(service, SERVICE_QUERY_STATUS))
            return Fail(ERROR_ACCESS_DENIED);
        *status = SERVICE_STATUS{};
        status->dwServiceType = SERVICE_WIN32_OWN_PROCESS;
        status->dwCurrentState = m_machine.present.serviceRunning ? SERVICE_RUNNING : SERVICE_STOPPED;
        status->dwControlsAccepted = m_machine.present.serviceRunning ? kAcceptsStopAndShutdown : 0;
        return TRUE;
    }

    BOOL StartServiceA(SC_HANDLE service, DWORD, const char**)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (!m_machine.handles.Use(service, HandleKind::service, "StartServiceA"))
            return Fail(ERROR_INVALID_HANDLE);
        if (!MayDo(service, SERVICE_START))
            return Fail(ERROR_ACCESS_DENIED);
        if (m_machine.present.serviceRunning)
            return Fail(ERROR_SERVICE_ALREADY_RUNNING);
        m_machine.present.serviceRunning = true;
        return TRUE;
    }

    BOOL CloseServiceHandle(SC_HANDLE handle)
    {
        const std::lock_guard lock(m_machine.mutex);
        const HandleKind kind = m_machine.handles.IsOpen(handle, HandleKind::serviceManager)
                                    ? HandleKind::serviceManager
                                    : HandleKind::service;
        m_access.erase(handle);
        if (!m_machine.handles.Close(handle, kind, "CloseServiceHandle"))
            return Fail(ERROR_INVALID_HANDLE);
        return TRUE;
    }

private:
    /// Whether the handle was opened for this.
    bool MayDo(SC_HANDLE service, DWORD right) const
    {
        const auto access = m_access.find(service);
        return access != m_access.end() && (access->second & right) != 0;
    }

    std::map<SC_HANDLE, DWORD> m_access; ///< of the services' handles
};

} // namespace

platform::ServiceControl MakeServiceControl(Machine& machine, Parts& parts)
{
    auto& services = AddPart<SimulatedServiceControl>(machine, parts);
    return {
        .OpenSCManagerA = CallsTo<&SimulatedServiceControl::OpenSCManagerA>(services),
        .OpenServiceA = CallsTo<&SimulatedServiceControl::OpenServiceA>(services),
        .QueryServiceStatus = CallsTo<&SimulatedServiceControl::QueryServiceStatus>(services),
        .StartServiceA = CallsTo<&SimulatedServiceControl::StartServiceA>(services),
        .CloseServiceHandle = CallsTo<&SimulatedServiceControl::CloseServiceHandle>(services),
    };
}

} // namespace calvix::simulation
