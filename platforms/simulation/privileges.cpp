#include "simulation/privileges.h"

#include "simulation/ascii_case.h"

#include <iterator>

namespace calvix::simulation
{

namespace
{

constexpr DWORD kFirstPrivilege = 2;

/// In the order of their identifiers, which have been the same on every Windows.
constexpr std::string_view kPrivilegeNames[] = {"SeCreateTokenPrivilege",
                                                "SeAssignPrimaryTokenPrivilege",
                                                "SeLockMemoryPrivilege",
                                                "SeIncreaseQuotaPrivilege",
                                                "SeMachineAccountPrivilege",
                                                "SeTcbPrivilege",
                                                "SeSecurityPrivilege",
                                                "SeTakeOwnershipPrivilege",
                                                "SeLoadDriverPrivilege",
                                                "SeSystemProfilePrivilege",
                                                "SeSystemtimePrivilege",
                                                "SeProfileSingleProcessPrivilege",
                                                "SeIncreaseBasePriorityPrivilege",
                                                "SeCreatePagefilePrivilege",
                                                "SeCreatePermanentPrivilege",
                                                "SeBackupPrivilege",
                                                "SeRestorePrivilege",
                                                "SeShutdownPrivilege",
                                                "SeDebugPrivilege",
                                                "SeAuditPrivilege",
                                                "SeSystemEnvironmentPrivilege",
                                                "SeChangeNotifyPrivilege",
                                                "SeRemoteShutdownPrivilege",
                                                "SeUndockPrivilege",
                                                "SeSyncAgentPrivilege",
                                                "SeEnableDelegationPrivilege",
                                                "SeManageVolumePrivilege",
                                                "SeImpersonatePrivilege",
                                                "SeCreateGlobalPrivilege",
                                                "SeTrustedCredManAccessPrivilege",
                                                "SeRelabelPrivilege",
                                                "SeIncreaseWorkingSetPrivilege",
                                                "SeTimeZonePrivilege",
                                                "SeCreateSymbolicLinkPrivilege"};

} // namespace

std::optional<LUID> PrivilegeLuid(std::string_view name)
{
    DWORD number = kFirstPrivilege;
    for (const std::string_view known : kPrivilegeNames)
    {
        if (SameButForCase(known, name))
            return LUID{number, 0};
        ++number;
    }
    return std::nullopt;
}

std::string PrivilegeName(const LUID& luid)
{
    const std::size_t index = luid.LowPart - kFirstPrivilege;
    return luid.HighPart == 0 && luid.LowPart >= kFirstPrivilege && index < std::size(kPrivilegeNames)
               ? std::string(kPrivilegeNames[index])
               : std::string();
}

} // namespace calvix::simulation
