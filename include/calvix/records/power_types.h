// Power policy records for builds without the Windows SDK: what a host sees through the exported class.
#pragma once

#include <calvix/records/windows_types.h>

enum SYSTEM_POWER_STATE : unsigned int
{
    PowerSystemUnspecified = 0,
    PowerSystemWorking = 1,
    PowerSystemSleeping1 = 2,
    PowerSystemSleeping2 = 3,
    PowerSystemSleeping3 = 4,
    PowerSystemHibernate = 5,
    PowerSystemShutdown = 6,
    PowerSystemMaximum = 7
};
using PSYSTEM_POWER_STATE = SYSTEM_POWER_STATE*;

enum POWER_ACTION : unsigned int
{
    PowerActionNone = 0,
    PowerActionReserved = 1,
    PowerActionSleep = 2,
    PowerActionHibernate = 3,
    PowerActionShutdown = 4,
    PowerActionShutdownReset = 5,
    PowerActionShutdownOff = 6,
    PowerActionWarmEject = 7
};
using PPOWER_ACTION = POWER_ACTION*;

struct POWER_ACTION_POLICY
{
    POWER_ACTION Action;
    DWORD Flags;
    DWORD EventCode;
};
using PPOWER_ACTION_POLICY = POWER_ACTION_POLICY*;

struct SYSTEM_POWER_LEVEL
{
    BOOLEAN Enable;
    BYTE Spare[3];
    DWORD BatteryLevel;
    POWER_ACTION_POLICY PowerPolicy;
    SYSTEM_POWER_STATE MinSystemState;
};
using PSYSTEM_POWER_LEVEL = SYSTEM_POWER_LEVEL*;

struct USER_POWER_POLICY
{
    ULONG Revision;
    POWER_ACTION_POLICY IdleAc;
    POWER_ACTION_POLICY IdleDc;
    ULONG IdleTimeoutAc;
    ULONG IdleTimeoutDc;
    UCHAR IdleSensitivityAc;
    UCHAR IdleSensitivityDc;
    UCHAR ThrottlePolicyAc;
    UCHAR ThrottlePolicyDc;
    SYSTEM_POWER_STATE MaxSleepAc;
    SYSTEM_POWER_STATE MaxSleepDc;
    ULONG Reserved[2];
    ULONG VideoTimeoutAc;
    ULONG VideoTimeoutDc;
    ULONG SpindownTimeoutAc;
    ULONG SpindownTimeoutDc;
    BOOLEAN OptimizeForPowerAc;
    BOOLEAN OptimizeForPowerDc;
    UCHAR FanThrottleToleranceAc;
    UCHAR FanThrottleToleranceDc;
    UCHAR ForcedThrottleAc;
    UCHAR ForcedThrottleDc;
};
using PUSER_POWER_POLICY = USER_POWER_POLICY*;

struct MACHINE_POWER_POLICY
{
    ULONG Revision;
    SYSTEM_POWER_STATE MinSleepAc;
    SYSTEM_POWER_STATE MinSleepDc;
    SYSTEM_POWER_STATE ReducedLatencySleepAc;
    SYSTEM_POWER_STATE ReducedLatencySleepDc;
    ULONG DozeTimeoutAc;
    ULONG DozeTimeoutDc;
    ULONG DozeS4TimeoutAc;
    ULONG DozeS4TimeoutDc;
    UCHAR MinThrottleAc;
    UCHAR MinThrottleDc;
    UCHAR pad1[2];
    POWER_ACTION_POLICY OverThrottledAc;
    POWER_ACTION_POLICY OverThrottledDc;
};
using PMACHINE_POWER_POLICY = MACHINE_POWER_POLICY*;

struct POWER_POLICY
{
    USER_POWER_POLICY user;
    MACHINE_POWER_POLICY mach;
};
using PPOWER_POLICY = POWER_POLICY*;

// Only ever passed as a null pointer here.
struct GLOBAL_POWER_POLICY;
using PGLOBAL_POWER_POLICY = GLOBAL_POWER_POLICY*;
