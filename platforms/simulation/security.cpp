#include "simulation/security.h"

#include "platform/records/error_numbers.h"

namespace calvix::simulation
{

BOOL SimulatedSecurity::Refuse()
{
    m_lastError = ERROR_CALL_NOT_IMPLEMENTED;
    return FALSE;
}

BOOL SimulatedSecurity::OpenProcessToken(HANDLE, DWORD, HANDLE*)
{
    return Refuse();
}

BOOL SimulatedSecurity::LookupPrivilegeValueA(const char*, const char*, LUID*)
{
    return Refuse();
}

BOOL SimulatedSecurity::AdjustTokenPrivileges(HANDLE, BOOL, TOKEN_PRIVILEGES*, DWORD, TOKEN_PRIVILEGES*, DWORD*)
{
    return Refuse();
}

} // namespace calvix::simulation
