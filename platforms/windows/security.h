#pragma once

#include "platform/security.h"

namespace calvix::windows
{

/// Process tokens and their privileges.
class Security final : public platform::Security
{
public:
    BOOL OpenProcessToken(HANDLE process, DWORD access, HANDLE* token) override;
    BOOL LookupPrivilegeValueA(const char* system, const char* name, LUID* luid) override;
    BOOL AdjustTokenPrivileges(HANDLE token,
                               BOOL disableAll,
                               TOKEN_PRIVILEGES* newState,
                               DWORD previousSize,
                               TOKEN_PRIVILEGES* previous,
                               DWORD* returnLength) override;
};

} // namespace calvix::windows
