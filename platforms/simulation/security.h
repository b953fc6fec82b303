#pragma once

#include "platform/security.h"
#include "simulation/last_error_cell.h"

namespace calvix::simulation
{

/// Tokens and privileges: this part of the machine is not furnished yet. Every operation fails with
/// ERROR_CALL_NOT_IMPLEMENTED.
class SimulatedSecurity final : public platform::Security
{
public:
    /// `lastError` receives the reason of a failure; it outlives this object.
    explicit SimulatedSecurity(LastErrorCell& lastError) : m_lastError(lastError) {}

    BOOL OpenProcessToken(HANDLE process, DWORD access, HANDLE* token) override;
    BOOL LookupPrivilegeValueA(const char* system, const char* name, LUID* luid) override;
    BOOL AdjustTokenPrivileges(HANDLE token,
                               BOOL disableAll,
                               TOKEN_PRIVILEGES* newState,
                               DWORD previousSize,
                               TOKEN_PRIVILEGES* previous,
                               DWORD* returnLength) override;

private:
    BOOL Refuse();

    LastErrorCell& m_lastError;
};

} // namespace calvix::simulation
