#include "windows/security.h"

namespace calvix::windows
{

BOOL Security::OpenProcessToken(HANDLE process, DWORD access, HANDLE* token)
{
    return ::OpenProcessToken(process, access, token);
}

BOOL Security::LookupPrivilegeValueA(const char* system, const char* name, LUID* luid)
{
    return ::LookupPrivilegeValueA(system, name, luid);
}

BOOL Security::AdjustTokenPrivileges(HANDLE token,
                                     BOOL disableAll,
                                     TOKEN_PRIVILEGES* newState,
                                     DWORD previousSize,
                                     TOKEN_PRIVILEGES* previous,
                                     DWORD* returnLength)
{
    return ::AdjustTokenPrivileges(token, disableAll, newState, previousSize, previous, returnLength);
}

} // namespace calvix::windows
