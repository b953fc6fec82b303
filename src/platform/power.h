#pragma once

#include "platform/operation.h"
#include "platform/records/power_records.h"

namespace calvix::platform
{

/// Power management: the legacy power schemes, the GUID-named schemes that replaced them, and suspending.
/// BOOLEAN operations leave their reason in GetLastError; the Power* ones return an error number.
struct Power
{
    Operation<NTSTATUS(POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize)>
        CallNtPowerInformation;
    Operation<BOOLEAN(UINT* schemeId)> GetActivePwrScheme;
    Operation<BOOLEAN(UINT schemeId, POWER_POLICY* policy)> ReadPwrScheme;
    Operation<BOOLEAN(UINT* schemeId, const wchar_t* name, const wchar_t* description, POWER_POLICY* policy)>
        WritePwrScheme;
    Operation<BOOLEAN(UINT schemeId, GLOBAL_POWER_POLICY* globalPolicy, POWER_POLICY* policy)> SetActivePwrScheme;
    Operation<DWORD(HKEY root,
                    const GUID* scheme,
                    const GUID* subgroup,
                    POWER_DATA_ACCESSOR access,
                    ULONG index,
                    UCHAR* buffer,
                    DWORD* bufferSize)>
        PowerEnumerate;
    Operation<DWORD(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD* bufferSize)>
        PowerReadFriendlyName;
    Operation<DWORD(HKEY root, GUID** scheme)> PowerGetActiveScheme;
    Operation<DWORD(HKEY root, const GUID* source, GUID** duplicate)> PowerDuplicateScheme;
    Operation<DWORD(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD bufferSize)>
        PowerWriteFriendlyName;
    Operation<DWORD(HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, DWORD value)>
        PowerWriteACValueIndex;
    Operation<DWORD(HKEY root, const GUID* scheme)> PowerSetActiveScheme;
    Operation<BOOLEAN()> IsPwrSuspendAllowed;
    Operation<BOOLEAN()> IsPwrHibernateAllowed;
    Operation<BOOLEAN()> IsPwrShutdownAllowed;
    Operation<BOOLEAN(BOOLEAN hibernate, BOOLEAN force, BOOLEAN wakeupEventsDisabled)> SetSuspendState;
    Operation<BOOL()> IsSystemResumeAutomatic;

    /// Releases the scheme GUIDs that PowerGetActiveScheme and PowerDuplicateScheme hand out.
    Operation<void(PVOID memory)> LocalFree;
};

} // namespace calvix::platform
