#include "windows/power.h"

#include "windows/optional_library.h"

namespace calvix::windows
{

namespace
{

/// The legacy scheme texts are always wide, whatever text type the SDK's prototype takes in this build.
using WritePwrSchemeFunction = BOOLEAN(WINAPI*)(UINT*, const wchar_t*, const wchar_t*, POWER_POLICY*);

/// What powrprof.dll exports. Every Windows has the library, but reduced ones do not have all of it, and an import
/// that is missing would keep the program from starting.
struct PowerExports
{
    OptionalLibrary library{L"powrprof.dll"};
    OptionalExport<decltype(&::CallNtPowerInformation)> CallNtPowerInformation{library, "CallNtPowerInformation"};
    OptionalExport<decltype(&::GetActivePwrScheme)> GetActivePwrScheme{library, "GetActivePwrScheme"};
    OptionalExport<decltype(&::ReadPwrScheme)> ReadPwrScheme{library, "ReadPwrScheme"};
    OptionalExport<WritePwrSchemeFunction> WritePwrScheme{library, "WritePwrScheme"};
    OptionalExport<decltype(&::SetActivePwrScheme)> SetActivePwrScheme{library, "SetActivePwrScheme"};
    OptionalExport<decltype(&::PowerEnumerate)> PowerEnumerate{library, "PowerEnumerate"};
    OptionalExport<decltype(&::PowerReadFriendlyName)> PowerReadFriendlyName{library, "PowerReadFriendlyName"};
    OptionalExport<decltype(&::PowerGetActiveScheme)> PowerGetActiveScheme{library, "PowerGetActiveScheme"};
    OptionalExport<decltype(&::PowerDuplicateScheme)> PowerDuplicateScheme{library, "PowerDuplicateScheme"};
    OptionalExport<decltype(&::PowerWriteFriendlyName)> PowerWriteFriendlyName{library, "PowerWriteFriendlyName"};
    OptionalExport<decltype(&::PowerWriteACValueIndex)> PowerWriteACValueIndex{library, "PowerWriteACValueIndex"};
    OptionalExport<decltype(&::PowerSetActiveScheme)> PowerSetActiveScheme{library, "PowerSetActiveScheme"};
    OptionalExport<decltype(&::IsPwrSuspendAllowed)> IsPwrSuspendAllowed{library, "IsPwrSuspendAllowed"};
    OptionalExport<decltype(&::IsPwrHibernateAllowed)> IsPwrHibernateAllowed{library, "IsPwrHibernateAllowed"};
    OptionalExport<decltype(&::IsPwrShutdownAllowed)> IsPwrShutdownAllowed{library, "IsPwrShutdownAllowed"};
    OptionalExport<decltype(&::SetSuspendState)> SetSuspendState{library, "SetSuspendState"};
};

const PowerExports& PowerLibrary()
{
    static const PowerExports exports;
    return exports;
}

} // namespace

NTSTATUS Power::CallNtPowerInformation(
    POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize)
{
    return PowerLibrary().CallNtPowerInformation(level, input, inputSize, output, outputSize);
}

BOOLEAN Power::GetActivePwrScheme(UINT* schemeId)
{
    return PowerLibrary().GetActivePwrScheme(schemeId);
}

BOOLEAN Power::ReadPwrScheme(UINT schemeId, POWER_POLICY* policy)
{
    return PowerLibrary().ReadPwrScheme(schemeId, policy);
}

BOOLEAN
Power::WritePwrScheme(UINT* schemeId, const wchar_t* name, const wchar_t* description, POWER_POLICY* policy)
{
    return PowerLibrary().WritePwrScheme(schemeId, name, description, policy);
}

BOOLEAN Power::SetActivePwrScheme(UINT schemeId, GLOBAL_POWER_POLICY* globalPolicy, POWER_POLICY* policy)
{
    return PowerLibrary().SetActivePwrScheme(schemeId, globalPolicy, policy);
}

DWORD Power::PowerEnumerate(HKEY root,
                            const GUID* scheme,
                            const GUID* subgroup,
                            POWER_DATA_ACCESSOR access,
                            ULONG index,
                            UCHAR* buffer,
                            DWORD* bufferSize)
{
    return PowerLibrary().PowerEnumerate(root, scheme, subgroup, access, index, buffer, bufferSize);
}

DWORD Power::PowerReadFriendlyName(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD* bufferSize)
{
    return PowerLibrary().PowerReadFriendlyName(root, scheme, subgroup, setting, buffer, bufferSize);
}

DWORD Power::PowerGetActiveScheme(HKEY root, GUID** scheme)
{
    return PowerLibrary().PowerGetActiveScheme(root, scheme);
}

DWORD Power::PowerDuplicateScheme(HKEY root, const GUID* source, GUID** duplicate)
{
    return PowerLibrary().PowerDuplicateScheme(root, source, duplicate);
}

DWORD Power::PowerWriteFriendlyName(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD bufferSize)
{
    return PowerLibrary().PowerWriteFriendlyName(root, scheme, subgroup, setting, buffer, bufferSize);
}

DWORD Power::PowerWriteACValueIndex(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, DWORD value)
{
    return PowerLibrary().PowerWriteACValueIndex(root, scheme, subgroup, setting, value);
}

DWORD Power::PowerSetActiveScheme(HKEY root, const GUID* scheme)
{
    return PowerLibrary().PowerSetActiveScheme(root, scheme);
}

BOOLEAN Power::IsPwrSuspendAllowed()
{
    return PowerLibrary().IsPwrSuspendAllowed();
}

BOOLEAN Power::IsPwrHibernateAllowed()
{
    return PowerLibrary().IsPwrHibernateAllowed();
}

BOOLEAN Power::IsPwrShutdownAllowed()
{
    return PowerLibrary().IsPwrShutdownAllowed();
}

BOOLEAN Power::SetSuspendState(BOOLEAN hibernate, BOOLEAN force, BOOLEAN wakeupEventsDisabled)
{
    return PowerLibrary().SetSuspendState(hibernate, force, wakeupEventsDisabled);
}

BOOL Power::IsSystemResumeAutomatic()
{
    return ::IsSystemResumeAutomatic();
}

void Power::LocalFree(PVOID memory)
{
    ::LocalFree(memory);
}

} // namespace calvix::windows
