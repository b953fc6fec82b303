#include <calvix/wireless_manage.h>

#include "core/trace.h"
#include "system/scheme_guid.h"

using namespace calvix;
using platform::power;

namespace
{

/// Asks for a record, which a refused question leaves as it is, and traces the outcome.
template <typename Record>
NTSTATUS QueryPower(POWER_INFORMATION_LEVEL level, Record& record, const char* succeeded, const char* failed)
{
    SharedTrace trace;
    const NTSTATUS status = power().CallNtPowerInformation(level, nullptr, 0, &record, sizeof(record));
    trace.Message(status == 0 ? succeeded : failed);
    return status;
}

/// Finds the active scheme of a computer that can sleep. Returns 0; -1 if it cannot sleep, -2 if the scheme cannot be
/// read.
long FindActiveScheme(UINT& schemeId)
{
    if (!power().IsPwrSuspendAllowed())
        return -1;
    return power().GetActivePwrScheme(&schemeId) ? 0 : -2;
}

/// Gives a scheme another policy and makes it active, so that the policy is in force. 0 or the caller's codes.
long PutInForce(UINT schemeId, POWER_POLICY& policy, long writingFailed, long activatingFailed)
{
    if (!power().WritePwrScheme(&schemeId, nullptr, nullptr, &policy))
        return writingFailed;
    return power().SetActivePwrScheme(schemeId, nullptr, &policy) ? 0 : activatingFailed;
}

DWORD EnumerateFirstScheme(GUID& scheme)
{
    DWORD size = sizeof(scheme);
    return power().PowerEnumerate(nullptr, nullptr, nullptr, ACCESS_SCHEME, 0, reinterpret_cast<UCHAR*>(&scheme),
                                  &size);
}

void ReadSchemeNames()
{
    GUID scheme{};
    // Deliberate: the index is never advanced, so that this ends only where the enumeration fails, as it does at once
    // in a store without schemes. The names are not used.
    while (EnumerateFirstScheme(scheme) == 0)
    {
        alignas(wchar_t) UCHAR name[1024];
        DWORD size = sizeof(name);
        power().PowerReadFriendlyName(nullptr, &scheme, nullptr, nullptr, name, &size);
    }
}

DWORD NameScheme(const GUID* scheme)
{
    // Deliberate: 8-bit characters in a buffer of 260 bytes, though the platform takes the bytes for wide text.
    alignas(wchar_t) UCHAR name[260] = "Super energy-saving";
    return power().PowerWriteFriendlyName(nullptr, scheme, nullptr, nullptr, name, sizeof(name));
}

/// Only the values for mains power; those for the battery stay as copied.
DWORD WriteSleepTimeout(const GUID* scheme, const GUID& setting, DWORD seconds)
{
    return power().PowerWriteACValueIndex(nullptr, scheme, &power_guid::sleep_subgroup, &setting, seconds);
}

} // namespace

int CWirelessManage::IsSurpportAoAc()
{
    SYSTEM_POWER_CAPABILITIES capabilities{};
    QueryPower(SystemPowerCapabilities, capabilities, "SYSTEM_POWER_CAPABILITIES succeed",
               "SYSTEM_POWER_CAPABILITIES fail");
    return AoAcOf(capabilities);
}

unsigned long long CWirelessManage::GetLastWakeTime()
{
    unsigned long long time = 0;
    QueryPower(LastWakeTime, time, "GetLastWakeTime succeed", "GetLastWakeTime fail");
    return time;
}

unsigned long long CWirelessManage::GetLastSleepTime()
{
    unsigned long long time = 0;
    QueryPower(LastSleepTime, time, "GetLastSleepTime succeed", "GetLastSleepTime fail");
    return time;
}

long CWirelessManage::GetSystemPowerPolicy()
{
    // Deliberate: both policies are queried and discarded, and only the second result is returned.
    SYSTEM_POWER_POLICY mains{};
    QueryPower(SystemPowerPolicyAc, mains, "SystemPowerPolicyAc succeed", "SystemPowerPolicyAc fail");
    SYSTEM_POWER_POLICY battery{};
    return QueryPower(SystemPowerPolicyDc, battery, "SystemPowerPolicyDc succeed", "SystemPowerPolicyDc fail");
}

int CWirelessManage::IsPowerHibernateAllowed()
{
    // Deliberate: what the name promises is asked and dropped; the answer is whether the computer woke by itself.
    power().IsPwrHibernateAllowed();
    power().IsPwrShutdownAllowed();
    power().IsPwrSuspendAllowed();
    return power().IsSystemResumeAutomatic();
}

int CWirelessManage::ForceComputerSleep()
{
    return power().SetSuspendState(FALSE, TRUE, FALSE);
}

long CWirelessManage::SetPowerScheme()
{
    UINT schemeId = 0;
    POWER_POLICY policy{};
    if (const long code = FindActiveScheme(schemeId); code != 0)
        return code;
    if (!power().ReadPwrScheme(schemeId, &policy))
        return -3;
    // Deliberate: an earlier save is overwritten, so a second call remembers the policy that the first one made.
    m_SavedPowerPolicy = policy;
    policy.user.IdleTimeoutAc = 0;
    policy.user.IdleTimeoutDc = 0;
    return PutInForce(schemeId, policy, -4, -5);
}

long CWirelessManage::ResetPowerScheme()
{
    UINT schemeId = 0;
    // Deliberate: what was never saved is written, too, as a policy of zeros, and to whichever scheme is active now.
    POWER_POLICY saved = m_SavedPowerPolicy;
    if (const long code = FindActiveScheme(schemeId); code != 0)
        return code;
    return PutInForce(schemeId, saved, -3, -4);
}

long CWirelessManage::GetPowerScheme()
{
    ReadSchemeNames();
    SchemeGuid active;
    if (power().PowerGetActiveScheme(nullptr, active.Receive()) != 0)
        return -1;
    SchemeGuid duplicate;
    if (power().PowerDuplicateScheme(nullptr, active.get(), duplicate.Receive()) != 0)
        return -2;
    if (NameScheme(duplicate.get()) != 0)
        return -3;
    if (WriteSleepTimeout(duplicate.get(), power_guid::standby_timeout, 1) != 0 ||
        WriteSleepTimeout(duplicate.get(), power_guid::unattend_sleep_timeout, 2) != 0)
        return -4;
    return power().PowerSetActiveScheme(nullptr, duplicate.get()) == 0 ? 0 : -5;
}
