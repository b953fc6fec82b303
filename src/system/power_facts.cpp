#include <calvix/wireless_manage.h>

#include "core/trace.h"

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
    // Deliberate: both policies are asked for and dropped, and only the second answer comes out.
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
