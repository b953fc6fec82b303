#pragma once

#include "platform/security.h"
#include "simulation/machine.h"

#include <map>
#include <optional>

namespace calvix::simulation
{

/// The token of the programs that use the computer, and its privileges. All handles to it are handles to the same token.
class SimulatedSecurity final
{
public:
    /// `machine` outlives this object.
    explicit SimulatedSecurity(Machine& machine) : m_machine(machine) {}

    BOOL OpenProcessToken(HANDLE process, DWORD access, HANDLE* token);
    BOOL LookupPrivilegeValueA(const char* system, const char* name, LUID* luid);
    BOOL AdjustTokenPrivileges(HANDLE token,
                               BOOL disableAll,
                               TOKEN_PRIVILEGES* newState,
                               DWORD previousSize,
                               TOKEN_PRIVILEGES* previous,
                               DWORD* returnLength);

private:
    /// What becomes of the privileges: their switches as they are to stand, and whether one was named that is not held.
    struct Change
    {
        std::map<std::size_t, bool> enabled; ///< by position, only those that change
        bool allHeld = true;
    };

    BOOL Fail(DWORD error);
    DWORD TokenError(HANDLE token, bool wantsPrevious);
    Change PlanChange(const TOKEN_PRIVILEGES* newState) const;
    void WritePrevious(const Change& change, TOKEN_PRIVILEGES& previous) const;

    Machine& m_machine;
    std::map<HANDLE, DWORD> m_rights; ///< by token handle, which never comes again
};

} // namespace calvix::simulation
