#pragma once

#include "platform/records/security_records.h"

namespace calvix::platform
{

/// Process tokens and their privileges. Tokens are closed with Processes::CloseHandle.
class Security
{
public:
    virtual ~Security() = default;

    virtual BOOL OpenProcessToken(HANDLE process, DWORD access, HANDLE* token) = 0;
    virtual BOOL LookupPrivilegeValueA(const char* system, const char* name, LUID* luid) = 0;
    virtual BOOL AdjustTokenPrivileges(HANDLE token,
                                       BOOL disableAll,
                                       TOKEN_PRIVILEGES* newState,
                                       DWORD previousSize,
                                       TOKEN_PRIVILEGES* previous,
                                       DWORD* returnLength) = 0;
};

} // namespace calvix::platform
