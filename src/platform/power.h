#pragma once

#include "platform/records/power_records.h"

namespace calvix::platform
{

/// Power management: the legacy power schemes, the GUID-named schemes that replaced them, and suspending.
/// BOOLEAN operations leave their reason in GetLastError; the Power* ones return an error number.
class Power
{
public:
    virtual ~Power() = default;

    virtual NTSTATUS CallNtPowerInformation(
        POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize) = 0;
    virtual BOOLEAN GetActivePwrScheme(UINT* schemeId) = 0;
    virtual BOOLEAN ReadPwrScheme(UINT schemeId, POWER_POLICY* policy) = 0;
    virtual BOOLEAN
    WritePwrScheme(UINT* schemeId, const wchar_t* name, const wchar_t* description, POWER_POLICY* policy) = 0;
    virtual BOOLEAN SetActivePwrScheme(UINT schemeId, GLOBAL_POWER_POLICY* globalPolicy, POWER_POLICY* policy) = 0;
    virtual DWORD PowerEnumerate(HKEY root,
                                 const GUID* scheme,
                                 const GUID* subgroup,
                                 POWER_DATA_ACCESSOR access,
                                 ULONG index,
                                 UCHAR* buffer,
                                 DWORD* bufferSize) = 0;
    virtual DWORD PowerReadFriendlyName(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD* bufferSize) = 0;
    virtual DWORD PowerGetActiveScheme(HKEY root, GUID** scheme) = 0;
    virtual DWORD PowerDuplicateScheme(HKEY root, const GUID* source, GUID** duplicate) = 0;
    virtual DWORD PowerWriteFriendlyName(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD bufferSize) = 0;
    virtual DWORD
    PowerWriteACValueIndex(HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, DWORD value) = 0;
    virtual DWORD PowerSetActiveScheme(HKEY root, const GUID* scheme) = 0;
    virtual BOOLEAN IsPwrSuspendAllowed() = 0;
    virtual BOOLEAN IsPwrHibernateAllowed() = 0;
    virtual BOOLEAN IsPwrShutdownAllowed() = 0;
    virtual BOOLEAN SetSuspendState(BOOLEAN hibernate, BOOLEAN force, BOOLEAN wakeupEventsDisabled) = 0;
    virtual BOOL IsSystemResumeAutomatic() = 0;

    /// Releases the scheme GUIDs that PowerGetActiveScheme and PowerDuplicateScheme hand out.
    virtual void LocalFree(PVOID memory) = 0;
};

} // namespace calvix::platform
