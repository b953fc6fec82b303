#pragma once

#include "platform/power.h"
#include "wrappers/recording/tape.h"

namespace calvix::recording
{

class TapedPower final : public platform::Power
{
public:
    TapedPower(Tape& tape, platform::Power* inner) : m_tape(tape), m_inner(inner) {}

    NTSTATUS CallNtPowerInformation(
        POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize) override;
    BOOLEAN GetActivePwrScheme(UINT* schemeId) override;
    BOOLEAN ReadPwrScheme(UINT schemeId, POWER_POLICY* policy) override;
    BOOLEAN
    WritePwrScheme(UINT* schemeId, const wchar_t* name, const wchar_t* description, POWER_POLICY* policy) override;
    BOOLEAN SetActivePwrScheme(UINT schemeId, GLOBAL_POWER_POLICY* globalPolicy, POWER_POLICY* policy) override;
    DWORD PowerEnumerate(HKEY root,
                         const GUID* scheme,
                         const GUID* subgroup,
                         POWER_DATA_ACCESSOR access,
                         ULONG index,
                         UCHAR* buffer,
                         DWORD* bufferSize) override;
    DWORD PowerReadFriendlyName(HKEY root,
                                const GUID* scheme,
                                const GUID* subgroup,
                                const GUID* setting,
                                UCHAR* buffer,
                                DWORD* bufferSize) override;
    DWORD PowerGetActiveScheme(HKEY root, GUID** scheme) override;
    DWORD PowerDuplicateScheme(HKEY root, const GUID* source, GUID** duplicate) override;
    DWORD PowerWriteFriendlyName(HKEY root,
                                 const GUID* scheme,
                                 const GUID* subgroup,
                                 const GUID* setting,
                                 UCHAR* buffer,
                                 DWORD bufferSize) override;
    DWORD PowerWriteACValueIndex(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, DWORD value) override;
    DWORD PowerSetActiveScheme(HKEY root, const GUID* scheme) override;
    BOOLEAN IsPwrSuspendAllowed() override;
    BOOLEAN IsPwrHibernateAllowed() override;
    BOOLEAN IsPwrShutdownAllowed() override;
    BOOLEAN SetSuspendState(BOOLEAN hibernate, BOOLEAN force, BOOLEAN wakeupEventsDisabled) override;
    BOOL IsSystemResumeAutomatic() override;
    void LocalFree(PVOID memory) override;

private:
    Tape& m_tape;
    platform::Power* m_inner;
};

} // namespace calvix::recording
