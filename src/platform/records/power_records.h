// Power records beside the policy that the exported class keeps: the SDK's on Windows, the same names
// elsewhere.
#pragma once

#include <calvix/platform_records.h>

#include <cstddef>
#include <cstring>

#ifndef _WIN32

// The levels that matter here; the platform has many more.
enum POWER_INFORMATION_LEVEL : unsigned int
{
    SystemPowerPolicyAc = 0,
    SystemPowerPolicyDc = 1,
    SystemPowerCapabilities = 4,
    SystemPowerPolicyCurrent = 8,
    LastWakeTime = 14,
    LastSleepTime = 15
};

enum POWER_DATA_ACCESSOR : unsigned int
{
    ACCESS_AC_POWER_SETTING_INDEX = 0,
    ACCESS_DC_POWER_SETTING_INDEX = 1,
    ACCESS_SCHEME = 16,
    ACCESS_SUBGROUP = 17,
    ACCESS_INDIVIDUAL_SETTING = 18,
    ACCESS_ACTIVE_SCHEME = 19,
    ACCESS_CREATE_SCHEME = 20
};

using HKEY = struct HKEY__*;

struct BATTERY_REPORTING_SCALE
{
    DWORD Granularity;
    DWORD Capacity;
};

struct SYSTEM_POWER_CAPABILITIES
{
    BOOLEAN PowerButtonPresent;
    BOOLEAN SleepButtonPresent;
    BOOLEAN LidPresent;
    BOOLEAN SystemS1;
    BOOLEAN SystemS2;
    BOOLEAN SystemS3;
    BOOLEAN SystemS4;
    BOOLEAN SystemS5;
    BOOLEAN HiberFilePresent;
    BOOLEAN FullWake;
    BOOLEAN VideoDimPresent;
    BOOLEAN ApmPresent;
    BOOLEAN UpsPresent;
    BOOLEAN ThermalControl;
    BOOLEAN ProcessorThrottle;
    BYTE ProcessorMinThrottle;
    BYTE ProcessorMaxThrottle;
    BOOLEAN FastSystemS4;
    BOOLEAN Hiberboot;
    BOOLEAN WakeAlarmPresent;
    BOOLEAN AoAc;
    BOOLEAN DiskSpinDown;
    BYTE HiberFileType;
    BOOLEAN AoAcConnectivitySupported;
    BYTE spare3[6];
    BOOLEAN SystemBatteriesPresent;
    BOOLEAN BatteriesAreShortTerm;
    BATTERY_REPORTING_SCALE BatteryScale[3];
    SYSTEM_POWER_STATE AcOnLineWake;
    SYSTEM_POWER_STATE SoftLidWake;
    SYSTEM_POWER_STATE RtcWake;
    SYSTEM_POWER_STATE MinDeviceWakeState;
    SYSTEM_POWER_STATE DefaultLowLatencyWake;
};

inline constexpr DWORD NUM_DISCHARGE_POLICIES = 4;

struct SYSTEM_POWER_POLICY
{
    DWORD Revision;
    POWER_ACTION_POLICY PowerButton;
    POWER_ACTION_POLICY SleepButton;
    POWER_ACTION_POLICY LidClose;
    SYSTEM_POWER_STATE LidOpenWake;
    DWORD Reserved;
    POWER_ACTION_POLICY Idle;
    DWORD IdleTimeout;
    BYTE IdleSensitivity;
    BYTE DynamicThrottle;
    BYTE Spare2[2];
    SYSTEM_POWER_STATE MinSleep;
    SYSTEM_POWER_STATE MaxSleep;
    SYSTEM_POWER_STATE ReducedLatencySleep;
    DWORD WinLogonFlags;
    DWORD Spare3;
    DWORD DozeS4Timeout;
    DWORD BroadcastCapacityResolution;
    SYSTEM_POWER_LEVEL DischargePolicy[NUM_DISCHARGE_POLICIES];
    DWORD VideoTimeout;
    BOOLEAN VideoDimDisplay;
    DWORD VideoReserved[3];
    DWORD SpindownTimeout;
    BOOLEAN OptimizeForPower;
    BYTE FanThrottleTolerance;
    BYTE ForcedThrottle;
    BYTE MinThrottle;
    POWER_ACTION_POLICY OverThrottled;
};

#else

// The header that brings the policies forgets its own name for this once it is done with it.
#ifndef NTSTATUS
using NTSTATUS = LONG;
#endif

#endif

namespace calvix
{

// The power scheme and setting GUIDs, spelled out because the SDK only declares them and leaves their
// definition to a library that not every toolchain links.
namespace power_guid
{
inline constexpr GUID no_subgroup = {0xfea3413e, 0x7e05, 0x4911, {0x9a, 0x71, 0x70, 0x03, 0x31, 0xf1, 0xc2, 0x94}};
inline constexpr GUID sleep_subgroup = {0x238c9fa8, 0x0aad, 0x41ed, {0x83, 0xf4, 0x97, 0xbe, 0x24, 0x2c, 0x8f, 0x20}};
inline constexpr GUID standby_timeout = {0x29f6c1db, 0x86da, 0x48c5, {0x9f, 0xdb, 0xf2, 0xb6, 0x7b, 0x1f, 0x44, 0xda}};
inline constexpr GUID unattend_sleep_timeout = {
    0x7bc4a2f9, 0xd8fc, 0x4469, {0xb0, 0x7b, 0x33, 0xeb, 0x78, 0x5a, 0xac, 0xa0}};
} // namespace power_guid

// Older SDKs declare the byte for "always on, always connected" as a spare byte without a name. It has always been the
// third byte after FastSystemS4.
inline constexpr std::size_t aoAcOffset = offsetof(SYSTEM_POWER_CAPABILITIES, FastSystemS4) + 3;

// Whether the computer sleeps in the "always on, always connected" way (Modern Standby): the record's
// AoAc byte.
inline BOOLEAN AoAcOf(const SYSTEM_POWER_CAPABILITIES& capabilities)
{
    BOOLEAN value = 0;
    std::memcpy(&value, reinterpret_cast<const BYTE*>(&capabilities) + aoAcOffset, sizeof value);
    return value;
}

// Sets the byte that AoAcOf reads.
inline void SetAoAc(SYSTEM_POWER_CAPABILITIES& capabilities, BOOLEAN value)
{
    std::memcpy(reinterpret_cast<BYTE*>(&capabilities) + aoAcOffset, &value, sizeof value);
}

} // namespace calvix
