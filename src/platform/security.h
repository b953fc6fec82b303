#pragma once

#include "platform/operation.h"
#include "platform/records/system_records.h"

namespace calvix::platform
{

/// Process tokens and their privileges. Tokens are closed with Processes::CloseHandle.
struct Security
{
    Operation<BOOL(HANDLE process, DWORD access, HANDLE* token)> OpenProcessToken;
    Operation<BOOL(const char* system, const char* name, LUID* luid)> LookupPrivilegeValueA;
    Operation<BOOL(HANDLE token,
                   BOOL disableAll,
                   TOKEN_PRIVILEGES* newState,
                   DWORD previousSize,
                   TOKEN_PRIVILEGES* previous,
                   DWORD* returnLength)>
        AdjustTokenPrivileges;
};

} // namespace calvix::platform
