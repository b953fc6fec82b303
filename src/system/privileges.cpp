#include <calvix/wireless_manage.h>

#include "system/object_handle.h"

using namespace calvix;
using namespace calvix::platform;

namespace
{

/// The calling process's token; when it cannot be opened, GetLastError has the reason.
bool OpenOwnToken(ObjectHandle& token)
{
    return security().OpenProcessToken(processes().GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY,
                                       token.Receive()) != FALSE;
}

/// Describes the enabling of one privilege. Whether there is one of this name.
bool DescribeEnabling(const char* privilegeName, TOKEN_PRIVILEGES& privileges)
{
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
    return privilegeName != nullptr &&
           security().LookupPrivilegeValueA(nullptr, privilegeName, &privileges.Privileges[0].Luid) != FALSE;
}

} // namespace

int CWirelessManage::GetPrivileges()
{
    ObjectHandle token;
    // Deliberate: where there are no tokens, nothing keeps the computer from being shut down.
    if (!OpenOwnToken(token))
        return errors().GetLastError() == ERROR_CALL_NOT_IMPLEMENTED ? 1 : 0;
    TOKEN_PRIVILEGES privileges{};
    if (!DescribeEnabling("SeShutdownPrivilege", privileges))
        return 0;
    TOKEN_PRIVILEGES previous{};
    DWORD returnLength = 0;
    // Deliberate: the last error, which would tell that the account does not hold the privilege, is not asked for.
    return security().AdjustTokenPrivileges(token.get(), FALSE, &privileges, sizeof(previous), &previous,
                                            &returnLength) != FALSE
               ? 1
               : 0;
}

bool CWirelessManage::EnablePriviledge(const char* privilegeName)
{
    ObjectHandle token;
    TOKEN_PRIVILEGES privileges{};
    // Deliberate: only a failed adjustment is a failure; a token or a name that is not there counts as enabled.
    if (!OpenOwnToken(token) || !DescribeEnabling(privilegeName, privileges))
        return true;
    // The platform calls a partial adjustment a success and tells the rest in the last error only.
    security().AdjustTokenPrivileges(token.get(), FALSE, &privileges, 0, nullptr, nullptr);
    return errors().GetLastError() == 0;
}
