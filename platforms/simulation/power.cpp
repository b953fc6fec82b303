#include "simulation/power.h"

#include "platform/records/error_numbers.h"

#include <cstdint>

namespace calvix::simulation
{

namespace
{

// The NTSTATUS counterpart of ERROR_CALL_NOT_IMPLEMENTED.
constexpr NTSTATUS kStatusNotImplemented = static_cast<NTSTATUS>(static_cast<std::int32_t>(0xC0000002));

} // namespace

BOOL SimulatedPower::Refuse()
{
    m_lastError = ERROR_CALL_NOT_IMPLEMENTED;
    return FALSE;
}

NTSTATUS SimulatedPower::CallNtPowerInformation(POWER_INFORMATION_LEVEL, PVOID, ULONG, PVOID, ULONG)
{
    return kStatusNotImplemented;
}

BOOLEAN SimulatedPower::GetActivePwrScheme(UINT*)
{
    return static_cast<BOOLEAN>(Refuse());
}

BOOLEAN SimulatedPower::ReadPwrScheme(UINT, POWER_POLICY*)
{
    return static_cast<BOOLEAN>(Refuse());
}

BOOLEAN SimulatedPower::WritePwrScheme(UINT*, const wchar_t*, const wchar_t*, POWER_POLICY*)
{
    return static_cast<BOOLEAN>(Refuse());
}

BOOLEAN SimulatedPower::SetActivePwrScheme(UINT, GLOBAL_POWER_POLICY*, POWER_POLICY*)
{
    return static_cast<BOOLEAN>(Refuse());
}

DWORD SimulatedPower::PowerEnumerate(HKEY, const GUID*, const GUID*, POWER_DATA_ACCESSOR, ULONG, UCHAR*, DWORD*)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedPower::PowerReadFriendlyName(HKEY, const GUID*, const GUID*, const GUID*, UCHAR*, DWORD*)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedPower::PowerGetActiveScheme(HKEY, GUID**)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedPower::PowerDuplicateScheme(HKEY, const GUID*, GUID**)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedPower::PowerWriteFriendlyName(HKEY, const GUID*, const GUID*, const GUID*, UCHAR*, DWORD)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedPower::PowerWriteACValueIndex(HKEY, const GUID*, const GUID*, const GUID*, DWORD)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

DWORD SimulatedPower::PowerSetActiveScheme(HKEY, const GUID*)
{
    return ERROR_CALL_NOT_IMPLEMENTED;
}

BOOLEAN SimulatedPower::IsPwrSuspendAllowed()
{
    return static_cast<BOOLEAN>(Refuse());
}

BOOLEAN SimulatedPower::IsPwrHibernateAllowed()
{
    return static_cast<BOOLEAN>(Refuse());
}

BOOLEAN SimulatedPower::IsPwrShutdownAllowed()
{
    return static_cast<BOOLEAN>(Refuse());
}

BOOLEAN SimulatedPower::SetSuspendState(BOOLEAN, BOOLEAN, BOOLEAN)
{
    return static_cast<BOOLEAN>(Refuse());
}

BOOL SimulatedPower::IsSystemResumeAutomatic()
{
    return Refuse();
}

void SimulatedPower::LocalFree(PVOID)
{
    // Nothing was handed out, so null is all there is to release.
}

} // namespace calvix::simulation
