#include "simulation/facility.h"

#include "forms/guid_text.h"
#include "platform/records/error_numbers.h"

#include <cstdint>
#include <cstring>

namespace calvix::simulation
{

namespace
{

// 32 bits wide on the platform, and negative.
constexpr NTSTATUS FailureStatus(std::uint32_t value)
{
    return static_cast<NTSTATUS>(static_cast<std::int32_t>(value));
}

constexpr NTSTATUS kStatusSuccess = 0;
constexpr NTSTATUS kStatusNotImplemented = FailureStatus(0xC0000002);
constexpr NTSTATUS kStatusInvalidParameter = FailureStatus(0xC000000D);
constexpr NTSTATUS kStatusBufferTooSmall = FailureStatus(0xC0000023);

constexpr UINT kNewLegacyScheme = 0xFFFFFFFF;

template <typename Record>
NTSTATUS AnswerPowerQuestion(const Record& record, PVOID output, ULONG outputSize)
{
    if (outputSize < sizeof(record))
        return kStatusBufferTooSmall;
    std::memcpy(output, &record, sizeof(record));
    return kStatusSuccess;
}

/// Hands out bytes by the rules of the operations that fill a buffer: without a buffer the caller learns the size only.
DWORD HandOut(const void* data, std::size_t size, UCHAR* buffer, DWORD& bufferSize)
{
    const bool fits = bufferSize >= size;
    bufferSize = static_cast<DWORD>(size);
    if (buffer == nullptr)
        return ERROR_SUCCESS;
    if (!fits)
        return ERROR_MORE_DATA;
    std::memcpy(buffer, data, size);
    return ERROR_SUCCESS;
}

BOOLEAN Flag(bool value)
{
    return value ? 1 : 0;
}

/// What the computer can do.
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

/// The system's policy on mains power or on battery, taken out of the policy that is in force for both.
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

GUID* NewGuid(Blocks& blocks, const GUID& guid)
{
    auto* const block = static_cast<GUID*>(blocks.Allocate(sizeof(GUID), "GUID of a power scheme"));
    *block = guid;
    return block;
}

/// Power management: the two kinds of power schemes, what the computer can do, and sleeping. Everybody has every right to
/// the schemes; putting the computer to sleep takes the shutdown privilege.
class SimulatedPower final : public Facility
{
public:
    using Facility::Facility;

    // Chosen: the policies are changed through their schemes and not here, so that nothing takes an input.
    NTSTATUS
    CallNtPowerInformation(POWER_INFORMATION_LEVEL level, PVOID input, ULONG, PVOID output, ULONG outputSize)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (input != nullptr || output == nullptr)
            return kStatusInvalidParameter;
        switch (static_cast<unsigned int>(level))
        {
        case SystemPowerPolicyAc:
            return AnswerPowerQuestion(MakeSystemPolicy(m_machine.powerStore.Current(), false), output, outputSize);
        case SystemPowerPolicyDc:
            return AnswerPowerQuestion(MakeSystemPolicy(m_machine.powerStore.Current(), true), output, outputSize);
        case SystemPowerCapabilities:
            return AnswerPowerQuestion(MakeCapabilities(m_machine.present.power), output, outputSize);
        case LastWakeTime:
            return AnswerPowerQuestion(m_machine.present.power.lastWakeTime, output, outputSize);
        case LastSleepTime:
            return AnswerPowerQuestion(m_machine.present.power.lastSleepTime, output, outputSize);
        default:
            return kStatusNotImplemented;
        }
    }

    BOOLEAN GetActivePwrScheme(UINT* schemeId)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (schemeId == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        const auto& active = m_machine.present.power.activeLegacyScheme;
        if (!active)
            return Fail(ERROR_FILE_NOT_FOUND);
        *schemeId = *active;
        return 1;
    }

    BOOLEAN ReadPwrScheme(UINT schemeId, POWER_POLICY* policy)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (policy == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        const PowerStore::LegacyScheme* const scheme = m_machine.powerStore.FindLegacy(schemeId);
        if (scheme == nullptr)
            return Fail(ERROR_FILE_NOT_FOUND);
        *policy = scheme->policy;
        return 1;
    }

    // A policy is accepted with any values. Descriptions are not kept: nothing reads them back.
    BOOLEAN
    WritePwrScheme(UINT* schemeId, const wchar_t* name, const wchar_t*, POWER_POLICY* policy)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (schemeId == nullptr || policy == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        PowerStore& store = m_machine.powerStore;
        const PowerStore::LegacyScheme* const present = store.FindLegacy(*schemeId);
        // Only a scheme that is there already has a name to keep.
        if (present == nullptr && name == nullptr)
            return Fail(ERROR_INVALID_PARAMETER);
        if (*schemeId == kNewLegacyScheme)
            *schemeId = store.UnusedLegacyId();
        store.WriteLegacy(*schemeId, {name != nullptr ? std::wstring(name) : present->name, *policy});
        return 1;
    }

    BOOLEAN SetActivePwrScheme(UINT schemeId, GLOBAL_POWER_POLICY*, POWER_POLICY* policy)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (m_machine.powerStore.FindLegacy(schemeId) == nullptr)
            return Fail(ERROR_FILE_NOT_FOUND);
        m_machine.powerStore.ActivateLegacy(schemeId, policy);
        return 1;
    }

    // Chosen: schemes can be listed, but not their subgroups and settings.
    DWORD PowerEnumerate(
        HKEY root, const GUID*, const GUID*, POWER_DATA_ACCESSOR access, ULONG index, UCHAR* buffer, DWORD* bufferSize)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (root != nullptr || bufferSize == nullptr)
            return ERROR_INVALID_PARAMETER;
        if (access != ACCESS_SCHEME)
            return ERROR_NOT_SUPPORTED;
        if (m_machine.present.power.enumerationError != 0)
            return m_machine.present.power.enumerationError;
        const auto& schemes = m_machine.present.power.schemes;
        if (index >= schemes.size())
            return ERROR_NO_MORE_ITEMS;
        const GUID guid = *forms::GuidFromText(schemes[index].guid);
        return HandOut(&guid, sizeof(guid), buffer, *bufferSize);
    }

    // Chosen: subgroups and settings have no names here, only schemes do.
    DWORD PowerReadFriendlyName(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD* bufferSize)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (root != nullptr || scheme == nullptr || bufferSize == nullptr)
            return ERROR_INVALID_PARAMETER;
        const PowerScheme* const known = m_machine.powerStore.Find(*scheme);
        if (known == nullptr || subgroup != nullptr || setting != nullptr)
            return ERROR_FILE_NOT_FOUND;
        return HandOut(known->name.data(), known->name.size(), buffer, *bufferSize);
    }

    DWORD PowerGetActiveScheme(HKEY root, GUID** scheme)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (root != nullptr || scheme == nullptr)
            return ERROR_INVALID_PARAMETER;
        const auto& active = m_machine.present.power.activeScheme;
        if (!active)
            return ERROR_FILE_NOT_FOUND;
        *scheme = NewGuid(m_machine.localBlocks, *forms::GuidFromText(*active));
        return ERROR_SUCCESS;
    }

    DWORD PowerDuplicateScheme(HKEY root, const GUID* source, GUID** duplicate)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (root != nullptr || source == nullptr || duplicate == nullptr)
            return ERROR_INVALID_PARAMETER;
        PowerStore& store = m_machine.powerStore;
        const PowerScheme* const original = store.Find(*source);
        if (original == nullptr)
            return ERROR_FILE_NOT_FOUND;
        // A GUID from the caller is used; without one, a new one is made.
        const bool ownGuid = *duplicate != nullptr;
        const GUID guid = ownGuid ? **duplicate : store.UnusedGuid();
        if (store.Find(guid) != nullptr)
            return ERROR_ALREADY_EXISTS;
        m_machine.present.power.schemes.push_back({forms::GuidText(guid), original->name, original->values});
        if (!ownGuid)
            *duplicate = NewGuid(m_machine.localBlocks, guid);
        return ERROR_SUCCESS;
    }

    // The name is stored as it comes: the platform takes any bytes for one.
    DWORD PowerWriteFriendlyName(
        HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD bufferSize)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (root != nullptr || scheme == nullptr || buffer == nullptr)
            return ERROR_INVALID_PARAMETER;
        PowerScheme* const known = m_machine.powerStore.Find(*scheme);
        if (known == nullptr || subgroup != nullptr || setting != nullptr)
            return ERROR_FILE_NOT_FOUND;
        known->name.assign(buffer, buffer + bufferSize);
        return ERROR_SUCCESS;
    }

    DWORD PowerWriteACValueIndex(HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, DWORD value)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (root != nullptr || scheme == nullptr || setting == nullptr)
            return ERROR_INVALID_PARAMETER;
        PowerStore& store = m_machine.powerStore;
        const GUID& group = subgroup != nullptr ? *subgroup : power_guid::no_subgroup;
        PowerScheme* const known = store.Find(*scheme);
        if (known == nullptr || !store.HasSetting(group, *setting))
            return ERROR_FILE_NOT_FOUND;
        PowerStore::SetAcValue(*known, group, *setting, value);
        return ERROR_SUCCESS;
    }

    DWORD PowerSetActiveScheme(HKEY root, const GUID* scheme)
    {
        const std::lock_guard lock(m_machine.mutex);
        if (root != nullptr || scheme == nullptr)
            return ERROR_INVALID_PARAMETER;
        if (m_machine.powerStore.Find(*scheme) == nullptr)
            return ERROR_FILE_NOT_FOUND;
        m_machine.present.power.activeScheme = forms::GuidText(*scheme);
        return ERROR_SUCCESS;
    }

    BOOLEAN IsPwrSuspendAllowed()
    {
        const std::lock_guard lock(m_machine.mutex);
        return Flag(m_machine.present.power.suspendAllowed);
    }

    BOOLEAN IsPwrHibernateAllowed()
    {
        const std::lock_guard lock(m_machine.mutex);
        return Flag(m_machine.present.power.hibernateAllowed);
    }

    BOOLEAN IsPwrShutdownAllowed()
    {
        const std::lock_guard lock(m_machine.mutex);
        return Flag(m_machine.present.power.shutdownAllowed);
    }

    // The operation returns once the computer is awake again. Chosen: to the wireless adapters the time asleep is time like
    // any other.
    BOOLEAN SetSuspendState(BOOLEAN hibernate, BOOLEAN, BOOLEAN wakeupEventsDisabled)
    {
        std::chrono::milliseconds sleep{0};
        {
            const std::lock_guard lock(m_machine.mutex);
            if (const DWORD error = SuspendError(hibernate != 0); error != ERROR_SUCCESS)
                return Fail(error);
            ++m_machine.suspendCount;
            m_machine.present.power.lastSleepTime = m_machine.InterruptTime();
            sleep = std::chrono::milliseconds(m_machine.present.power.sleepMilliseconds);
        }
        PassTime(sleep);
        const std::lock_guard lock(m_machine.mutex);
        m_machine.present.power.lastWakeTime = m_machine.InterruptTime();
        // Without wake-up events only its user can wake it.
        m_machine.wokenByItself = m_machine.present.power.resumesAutomatically && wakeupEventsDisabled == 0;
        return 1;
    }

    BOOL IsSystemResumeAutomatic()
    {
        const std::lock_guard lock(m_machine.mutex);
        return m_machine.wokenByItself ? TRUE : FALSE;
    }

    void LocalFree(PVOID memory)
    {
        const std::lock_guard lock(m_machine.mutex);
        m_machine.localBlocks.Free(memory);
    }

private:
    DWORD SuspendError(bool hibernate) const
    {
        // Without tokens, no privilege is missing.
        if (m_machine.present.tokens && !m_machine.IsPrivilegeEnabled("SeShutdownPrivilege"))
            return ERROR_PRIVILEGE_NOT_HELD;
        const PowerDescription& power = m_machine.present.power;
        return (hibernate ? power.hibernateAllowed : power.suspendAllowed) ? ERROR_SUCCESS : ERROR_NOT_SUPPORTED;
    }
};

} // namespace

platform::Power MakePower(Machine& machine, Parts& parts)
{
    auto& power = AddPart<SimulatedPower>(machine, parts);
    return {
        .CallNtPowerInformation = CallsTo<&SimulatedPower::CallNtPowerInformation>(power),
        .GetActivePwrScheme = CallsTo<&SimulatedPower::GetActivePwrScheme>(power),
        .ReadPwrScheme = CallsTo<&SimulatedPower::ReadPwrScheme>(power),
        .WritePwrScheme = CallsTo<&SimulatedPower::WritePwrScheme>(power),
        .SetActivePwrScheme = CallsTo<&SimulatedPower::SetActivePwrScheme>(power),
        .PowerEnumerate = CallsTo<&SimulatedPower::PowerEnumerate>(power),
        .PowerReadFriendlyName = CallsTo<&SimulatedPower::PowerReadFriendlyName>(power),
        .PowerGetActiveScheme = CallsTo<&SimulatedPower::PowerGetActiveScheme>(power),
        .PowerDuplicateScheme = CallsTo<&SimulatedPower::PowerDuplicateScheme>(power),
        .PowerWriteFriendlyName = CallsTo<&SimulatedPower::PowerWriteFriendlyName>(power),
        .PowerWriteACValueIndex = CallsTo<&SimulatedPower::PowerWriteACValueIndex>(power),
        .PowerSetActiveScheme = CallsTo<&SimulatedPower::PowerSetActiveScheme>(power),
        .IsPwrSuspendAllowed = CallsTo<&SimulatedPower::IsPwrSuspendAllowed>(power),
        .IsPwrHibernateAllowed = CallsTo<&SimulatedPower::IsPwrHibernateAllowed>(power),
        .IsPwrShutdownAllowed = CallsTo<&SimulatedPower::IsPwrShutdownAllowed>(power),
        .SetSuspendState = CallsTo<&SimulatedPower::SetSuspendState>(power),
        .IsSystemResumeAutomatic = CallsTo<&SimulatedPower::IsSystemResumeAutomatic>(power),
        .LocalFree = CallsTo<&SimulatedPower::LocalFree>(power),
    };
}

} // namespace calvix::simulation
