#pragma once

#include "platform/security.h"
#include "simulation/facility.h"

#include <map>
#include <optional>

namespace calvix::simulation
{

/// The token of the programs that use the computer, and its privileges. All handles to it are handles to the same token.
class SimulatedSecurity final : Facility
{
public:
    using Facility::Facility;

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

    DWORD TokenError(HANDLE token, bool wantsPrevious);
    Change PlanChange(const TOKEN_PRIVILEGES* newState) const;
    void WritePrevious(const Change& change, TOKEN_PRIVILEGES& previous) const;

    std::map<HANDLE, DWORD> m_rights; ///< by token handle, which never comes again
};

} // namespace calvix::simulation
