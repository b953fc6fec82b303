#pragma once

#include "platform/service_control.h"
#include "simulation/handles.h"
#include "simulation/last_error_cell.h"

#include <map>

namespace calvix::simulation
{

/// A service manager that knows one service, WlanSvc. Everybody gets every right to it that is asked for by its own name;
/// generic rights have no meaning here.
class SimulatedServiceControl final
{
public:
    /// `lastError` receives the reason of a failure, `handles` the handles that are given out, `serviceRunning` says
    /// whether the service runs and is set when it is started; all outlive this object.
    SimulatedServiceControl(LastErrorCell& lastError, Handles& handles, bool& serviceRunning)
        : m_lastError(lastError), m_handles(handles), m_serviceRunning(serviceRunning)
    {
    }

    SC_HANDLE OpenSCManagerA(const char* machine, const char* database, DWORD access);
    SC_HANDLE OpenServiceA(SC_HANDLE manager, const char* name, DWORD access);
    BOOL QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status);
    BOOL StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments);
    BOOL CloseServiceHandle(SC_HANDLE handle);

private:
    BOOL Fail(DWORD error);
    /// Whether the handle was opened for this.
    bool MayDo(SC_HANDLE service, DWORD right) const;

    LastErrorCell& m_lastError;
    Handles& m_handles;
    bool& m_serviceRunning;
    std::map<SC_HANDLE, DWORD> m_access; ///< of the services' handles
};

} // namespace calvix::simulation
