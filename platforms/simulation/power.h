#pragma once

#include "platform/power.h"
#include "simulation/facility.h"

namespace calvix::simulation
{

/// Power management: the two kinds of power schemes, what the computer can do, and sleeping. Everybody has every right to
/// the schemes; putting the computer to sleep takes the shutdown privilege.
class SimulatedPower final : Facility
{
public:
    using Facility::Facility;

    NTSTATUS
    CallNtPowerInformation(POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize);
    BOOLEAN GetActivePwrScheme(UINT* schemeId);
    BOOLEAN ReadPwrScheme(UINT schemeId, POWER_POLICY* policy);
    BOOLEAN
    WritePwrScheme(UINT* schemeId, const wchar_t* name, const wchar_t* description, POWER_POLICY* policy);
    BOOLEAN
    SetActivePwrScheme(UINT schemeId, GLOBAL_POWER_POLICY* globalPolicy, POWER_POLICY* policy);
    DWORD PowerEnumerate(HKEY root,
                         const GUID* scheme,
                         const GUID* subgroup,
                         POWER_DATA_ACCESSOR access,
                         ULONG index,
                         UCHAR* buffer,
                         DWORD* bufferSize);
    DWORD PowerReadFriendlyName(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD* bufferSize);
    DWORD PowerGetActiveScheme(HKEY root, GUID** scheme);
    DWORD PowerDuplicateScheme(HKEY root, const GUID* source, GUID** duplicate);
    DWORD PowerWriteFriendlyName(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD bufferSize);
    DWORD PowerWriteACValueIndex(HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, DWORD value);
    DWORD PowerSetActiveScheme(HKEY root, const GUID* scheme);
    BOOLEAN IsPwrSuspendAllowed();
    BOOLEAN IsPwrHibernateAllowed();
    BOOLEAN IsPwrShutdownAllowed();
    BOOLEAN SetSuspendState(BOOLEAN hibernate, BOOLEAN force, BOOLEAN wakeupEventsDisabled);
    BOOL IsSystemResumeAutomatic();
    void LocalFree(PVOID memory);

private:
    DWORD SuspendError(bool hibernate) const;
};

} // namespace calvix::simulation
