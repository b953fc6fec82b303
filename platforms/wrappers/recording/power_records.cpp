#include "wrappers/recording/records.h"

#include <cstddef>

namespace calvix::recording
{

namespace
{

void DescribeAction(Fields& fields, const char* name, POWER_ACTION_POLICY& policy)
{
    Fields action = fields.Object(name);
    action.Number("Action", policy.Action);
    action.Number("Flags", policy.Flags);
    action.Number("EventCode", policy.EventCode);
}

void DescribeUser(Fields fields, USER_POWER_POLICY& user)
{
    fields.Number("Revision", user.Revision);
    DescribeAction(fields, "IdleAc", user.IdleAc);
    DescribeAction(fields, "IdleDc", user.IdleDc);
    fields.Number("IdleTimeoutAc", user.IdleTimeoutAc);
    fields.Number("IdleTimeoutDc", user.IdleTimeoutDc);
    fields.Number("IdleSensitivityAc", user.IdleSensitivityAc);
    fields.Number("IdleSensitivityDc", user.IdleSensitivityDc);
    fields.Number("ThrottlePolicyAc", user.ThrottlePolicyAc);
    fields.Number("ThrottlePolicyDc", user.ThrottlePolicyDc);
    fields.Number("MaxSleepAc", user.MaxSleepAc);
    fields.Number("MaxSleepDc", user.MaxSleepDc);
    fields.Number("VideoTimeoutAc", user.VideoTimeoutAc);
    fields.Number("VideoTimeoutDc", user.VideoTimeoutDc);
    fields.Number("SpindownTimeoutAc", user.SpindownTimeoutAc);
    fields.Number("SpindownTimeoutDc", user.SpindownTimeoutDc);
    fields.Number("OptimizeForPowerAc", user.OptimizeForPowerAc);
    fields.Number("OptimizeForPowerDc", user.OptimizeForPowerDc);
    fields.Number("FanThrottleToleranceAc", user.FanThrottleToleranceAc);
    fields.Number("FanThrottleToleranceDc", user.FanThrottleToleranceDc);
    fields.Number("ForcedThrottleAc", user.ForcedThrottleAc);
    fields.Number("ForcedThrottleDc", user.ForcedThrottleDc);
}

void DescribeMachine(Fields fields, MACHINE_POWER_POLICY& machine)
{
    fields.Number("Revision", machine.Revision);
    fields.Number("MinSleepAc", machine.MinSleepAc);
    fields.Number("MinSleepDc", machine.MinSleepDc);
    fields.Number("ReducedLatencySleepAc", machine.ReducedLatencySleepAc);
    fields.Number("ReducedLatencySleepDc", machine.ReducedLatencySleepDc);
    fields.Number("DozeTimeoutAc", machine.DozeTimeoutAc);
    fields.Number("DozeTimeoutDc", machine.DozeTimeoutDc);
    fields.Number("DozeS4TimeoutAc", machine.DozeS4TimeoutAc);
    fields.Number("DozeS4TimeoutDc", machine.DozeS4TimeoutDc);
    fields.Number("MinThrottleAc", machine.MinThrottleAc);
    fields.Number("MinThrottleDc", machine.MinThrottleDc);
    DescribeAction(fields, "OverThrottledAc", machine.OverThrottledAc);
    DescribeAction(fields, "OverThrottledDc", machine.OverThrottledDc);
}

void DescribeLevel(Fields fields, SYSTEM_POWER_LEVEL& level)
{
    fields.Number("Enable", level.Enable);
    fields.Number("BatteryLevel", level.BatteryLevel);
    DescribeAction(fields, "PowerPolicy", level.PowerPolicy);
    fields.Number("MinSystemState", level.MinSystemState);
}

/// The switches of the capabilities, a byte each, in their order. SDKs differ in which of them they name.
constexpr const char* kCapabilityBytes[] = {"PowerButtonPresent",
                                            "SleepButtonPresent",
                                            "LidPresent",
                                            "SystemS1",
                                            "SystemS2",
                                            "SystemS3",
                                            "SystemS4",
                                            "SystemS5",
                                            "HiberFilePresent",
                                            "FullWake",
                                            "VideoDimPresent",
                                            "ApmPresent",
                                            "UpsPresent",
                                            "ThermalControl",
                                            "ProcessorThrottle",
                                            "ProcessorMinThrottle",
                                            "ProcessorMaxThrottle",
                                            "FastSystemS4",
                                            "Hiberboot",
                                            "WakeAlarmPresent",
                                            "AoAc",
                                            "DiskSpinDown",
                                            "HiberFileType",
                                            "AoAcConnectivitySupported"};
static_assert(offsetof(SYSTEM_POWER_CAPABILITIES, FastSystemS4) == 17);

} // namespace

void Describe(Fields fields, POWER_POLICY& policy)
{
    DescribeUser(fields.Object("user"), policy.user);
    DescribeMachine(fields.Object("mach"), policy.mach);
}

void Describe(Fields fields, SYSTEM_POWER_CAPABILITIES& capabilities)
{
    auto* byte = reinterpret_cast<BYTE*>(&capabilities);
    for (const char* const name : kCapabilityBytes)
        fields.Number(name, *byte++);
    fields.Number("SystemBatteriesPresent", capabilities.SystemBatteriesPresent);
    fields.Number("BatteriesAreShortTerm", capabilities.BatteriesAreShortTerm);
    const std::size_t scales = fields.Count("BatteryScale", 3);
    for (std::size_t i = 0; i < scales && i < 3; ++i)
    {
        Fields scale = fields.Element("BatteryScale", i);
        scale.Number("Granularity", capabilities.BatteryScale[i].Granularity);
        scale.Number("Capacity", capabilities.BatteryScale[i].Capacity);
    }
    fields.Number("AcOnLineWake", capabilities.AcOnLineWake);
    fields.Number("SoftLidWake", capabilities.SoftLidWake);
    fields.Number("RtcWake", capabilities.RtcWake);
    fields.Number("MinDeviceWakeState", capabilities.MinDeviceWakeState);
    fields.Number("DefaultLowLatencyWake", capabilities.DefaultLowLatencyWake);
}

void Describe(Fields fields, SYSTEM_POWER_POLICY& policy)
{
    fields.Number("Revision", policy.Revision);
    DescribeAction(fields, "PowerButton", policy.PowerButton);
    DescribeAction(fields, "SleepButton", policy.SleepButton);
    DescribeAction(fields, "LidClose", policy.LidClose);
    fields.Number("LidOpenWake", policy.LidOpenWake);
    DescribeAction(fields, "Idle", policy.Idle);
    fields.Number("IdleTimeout", policy.IdleTimeout);
    fields.Number("IdleSensitivity", policy.IdleSensitivity);
    fields.Number("DynamicThrottle", policy.DynamicThrottle);
    fields.Number("MinSleep", policy.MinSleep);
    fields.Number("MaxSleep", policy.MaxSleep);
    fields.Number("ReducedLatencySleep", policy.ReducedLatencySleep);
    fields.Number("WinLogonFlags", policy.WinLogonFlags);
    fields.Number("DozeS4Timeout", policy.DozeS4Timeout);
    fields.Number("BroadcastCapacityResolution", policy.BroadcastCapacityResolution);
    const std::size_t levels = fields.Count("DischargePolicy", NUM_DISCHARGE_POLICIES);
    for (std::size_t i = 0; i < levels && i < NUM_DISCHARGE_POLICIES; ++i)
        DescribeLevel(fields.Element("DischargePolicy", i), policy.DischargePolicy[i]);
    fields.Number("VideoTimeout", policy.VideoTimeout);
    fields.Number("VideoDimDisplay", policy.VideoDimDisplay);
    fields.Number("SpindownTimeout", policy.SpindownTimeout);
    fields.Number("OptimizeForPower", policy.OptimizeForPower);
    fields.Number("FanThrottleTolerance", policy.FanThrottleTolerance);
    fields.Number("ForcedThrottle", policy.ForcedThrottle);
    fields.Number("MinThrottle", policy.MinThrottle);
    DescribeAction(fields, "OverThrottled", policy.OverThrottled);
}

} // namespace calvix::recording
