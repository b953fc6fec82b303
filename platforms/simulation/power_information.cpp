#include "simulation/power_information.h"

namespace calvix::simulation
{

namespace
{

BOOLEAN Flag(bool value)
{
    return value ? 1 : 0;
}

} // namespace

SYSTEM_POWER_CAPABILITIES MakeCapabilities(const PowerDescription& description)
{
    SYSTEM_POWER_CAPABILITIES capabilities{};
    capabilities.PowerButtonPresent = 1;
    capabilities.SleepButtonPresent = Flag(description.suspendAllowed);
    capabilities.LidPresent = Flag(description.battery);
    // A computer with Modern Standby has that in place of the state in which all but the memory is off.
    capabilities.SystemS3 = Flag(description.suspendAllowed && !description.modernStandby);
    capabilities.SystemS4 = Flag(description.hibernateAllowed);
    capabilities.SystemS5 = Flag(description.shutdownAllowed);
    capabilities.HiberFilePresent = Flag(description.hibernateAllowed);
    capabilities.FullWake = 1;
    capabilities.ProcessorThrottle = 1;
    capabilities.ProcessorMinThrottle = 5;
    capabilities.ProcessorMaxThrottle = 100;
    SetAoAc(capabilities, Flag(description.modernStandby));
    capabilities.DiskSpinDown = 1;
    capabilities.SystemBatteriesPresent = Flag(description.battery);
    capabilities.RtcWake = description.modernStandby ? PowerSystemWorking : PowerSystemSleeping3;
    return capabilities;
}

SYSTEM_POWER_POLICY MakeSystemPolicy(const POWER_POLICY& policy, bool onBattery)
{
    const USER_POWER_POLICY& user = policy.user;
    const MACHINE_POWER_POLICY& machine = policy.mach;
    SYSTEM_POWER_POLICY system{};
    system.Revision = 1;
    system.Idle = onBattery ? user.IdleDc : user.IdleAc;
    system.IdleTimeout = onBattery ? user.IdleTimeoutDc : user.IdleTimeoutAc;
    system.IdleSensitivity = onBattery ? user.IdleSensitivityDc : user.IdleSensitivityAc;
    system.MinSleep = onBattery ? machine.MinSleepDc : machine.MinSleepAc;
    system.MaxSleep = onBattery ? user.MaxSleepDc : user.MaxSleepAc;
    system.ReducedLatencySleep = onBattery ? machine.ReducedLatencySleepDc : machine.ReducedLatencySleepAc;
    system.DozeS4Timeout = onBattery ? machine.DozeS4TimeoutDc : machine.DozeS4TimeoutAc;
    system.VideoTimeout = onBattery ? user.VideoTimeoutDc : user.VideoTimeoutAc;
    system.SpindownTimeout = onBattery ? user.SpindownTimeoutDc : user.SpindownTimeoutAc;
    system.FanThrottleTolerance = onBattery ? user.FanThrottleToleranceDc : user.FanThrottleToleranceAc;
    system.OverThrottled = onBattery ? machine.OverThrottledDc : machine.OverThrottledAc;
    return system;
}

} // namespace calvix::simulation
