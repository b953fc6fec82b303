#pragma once

#include "platform/service_control.h"
#include "simulation/facility.h"

#include <map>

namespace calvix::simulation
{

/// A service manager that knows one service, WlanSvc. Everybody gets every right to it that is asked for by its own name;
/// generic rights have no meaning here.
class SimulatedServiceControl final : Facility
{
public:
    using Facility::Facility;

    SC_HANDLE OpenSCManagerA(const char* machine, const char* database, DWORD access);
    SC_HANDLE OpenServiceA(SC_HANDLE manager, const char* name, DWORD access);
    BOOL QueryServiceStatus(SC_HANDLE service, SERVICE_STATUS* status);
    BOOL StartServiceA(SC_HANDLE service, DWORD argumentCount, const char** arguments);
    BOOL CloseServiceHandle(SC_HANDLE handle);

private:
    /// Whether the handle was opened for this.
    bool MayDo(SC_HANDLE service, DWORD right) const;

    std::map<SC_HANDLE, DWORD> m_access; ///< of the services' handles
};

} // namespace calvix::simulation
