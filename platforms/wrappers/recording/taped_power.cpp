#include "wrappers/recording/taped_power.h"

#include "wrappers/recording/power_records.h"

#include <algorithm>

namespace calvix::recording
{

namespace
{

template <typename Record>
void DescribeInformation(Fields& fields, PVOID output, ULONG size)
{
    if (size < sizeof(Record))
        return;
    Fields record = fields.Object("output");
    Describe(record, *static_cast<Record*>(output));
}

void DescribeInformation(Fields& fields, POWER_INFORMATION_LEVEL level, PVOID output, ULONG size)
{
    switch (level)
    {
    case SystemPowerCapabilities:
        return DescribeInformation<SYSTEM_POWER_CAPABILITIES>(fields, output, size);
    case SystemPowerPolicyAc:
    case SystemPowerPolicyDc:
    case SystemPowerPolicyCurrent:
        return DescribeInformation<SYSTEM_POWER_POLICY>(fields, output, size);
    case LastWakeTime:
    case LastSleepTime:
        if (size >= sizeof(ULONGLONG))
            fields.Number("output", *static_cast<ULONGLONG*>(output));
        return;
    default:
        return fields.Into("output", output, size);
    }
}

void GiveScheme(Fields& fields, const GUID* scheme, const GUID* subgroup, const GUID* setting)
{
    fields.GivenGuid("scheme", scheme);
    fields.GivenGuid("subgroup", subgroup);
    fields.GivenGuid("setting", setting);
}

/// Schemes are handed out in blocks of their own.
auto SchemeResult(GUID** scheme)
{
    return [scheme](Fields& fields, DWORD& error)
    {
        if (error != ERROR_SUCCESS || scheme == nullptr)
            return;
        if (fields.isReading())
            *scheme = static_cast<GUID*>(fields.holdings().Make(sizeof(GUID)));
        fields.Guid("scheme", **scheme);
        if (!fields.isReading())
            fields.Given("block", fields.holdings().Keep(*scheme));
    };
}

/// What the platform has put into a buffer of bytes, if there was one.
void DescribeBuffer(Fields& fields, UCHAR* buffer, DWORD* size)
{
    const DWORD room = *size;
    fields.Number("bufferSize", *size);
    if (buffer != nullptr)
        fields.Into("buffer", buffer, fields.isReading() ? (std::min)(room, *size) : *size);
}

} // namespace

NTSTATUS TapedPower::CallNtPowerInformation(
    POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize)
{
    constexpr NTSTATUS cancelled = static_cast<NTSTATUS>(static_cast<std::int32_t>(0xC0000120));
    return m_tape.Pass(
        "CallNtPowerInformation", cancelled,
        [&] { return m_inner->CallNtPowerInformation(level, input, inputSize, output, outputSize); },
        [&](Fields& fields)
        {
            fields.Given("level", level);
            fields.GivenBytes("input", input, inputSize);
        },
        [&](Fields& fields, NTSTATUS& status)
        {
            if (status == 0 && output != nullptr)
                DescribeInformation(fields, level, output, outputSize);
        });
}

BOOLEAN TapedPower::GetActivePwrScheme(UINT* schemeId)
{
    return m_tape.Pass(
        "GetActivePwrScheme", BOOLEAN{0}, [&] { return m_inner->GetActivePwrScheme(schemeId); }, [](Fields&) {},
        [&](Fields& fields, BOOLEAN& done)
        {
            if (done)
                fields.NumberAt("schemeId", schemeId);
        });
}

BOOLEAN TapedPower::ReadPwrScheme(UINT schemeId, POWER_POLICY* policy)
{
    return m_tape.Pass(
        "ReadPwrScheme", BOOLEAN{0}, [&] { return m_inner->ReadPwrScheme(schemeId, policy); },
        [&](Fields& fields) { fields.Given("schemeId", schemeId); },
        [&](Fields& fields, BOOLEAN& done)
        {
            if (!done || policy == nullptr)
                return;
            Fields record = fields.Object("policy");
            Describe(record, *policy);
        });
}

BOOLEAN
TapedPower::WritePwrScheme(UINT* schemeId, const wchar_t* name, const wchar_t* description, POWER_POLICY* policy)
{
    return m_tape.Pass(
        "WritePwrScheme", BOOLEAN{0}, [&] { return m_inner->WritePwrScheme(schemeId, name, description, policy); },
        [&](Fields& fields)
        {
            if (schemeId != nullptr)
                fields.Given("schemeId", *schemeId);
            fields.GivenText("name", name);
            fields.GivenText("description", description);
            fields.GivenRecord("policy", policy);
        },
        [&](Fields& fields, BOOLEAN& done)
        {
            if (done)
                fields.NumberAt("schemeId", schemeId);
        });
}

BOOLEAN TapedPower::SetActivePwrScheme(UINT schemeId, GLOBAL_POWER_POLICY* globalPolicy, POWER_POLICY* policy)
{
    return m_tape.Pass(
        "SetActivePwrScheme", BOOLEAN{0}, [&] { return m_inner->SetActivePwrScheme(schemeId, globalPolicy, policy); },
        [&](Fields& fields)
        {
            fields.Given("schemeId", schemeId);
            fields.GivenPointer("globalPolicy", globalPolicy);
            fields.GivenRecord("policy", policy);
        });
}

DWORD TapedPower::PowerEnumerate(HKEY root,
                                 const GUID* scheme,
                                 const GUID* subgroup,
                                 POWER_DATA_ACCESSOR access,
                                 ULONG index,
                                 UCHAR* buffer,
                                 DWORD* bufferSize)
{
    return m_tape.Pass(
        "PowerEnumerate", kNoAnswer,
        [&] { return m_inner->PowerEnumerate(root, scheme, subgroup, access, index, buffer, bufferSize); },
        [&](Fields& fields)
        {
            fields.GivenGuid("scheme", scheme);
            fields.GivenGuid("subgroup", subgroup);
            fields.Given("access", access);
            fields.Given("index", index);
        },
        [&](Fields& fields, DWORD& error)
        {
            if (error == ERROR_SUCCESS && bufferSize != nullptr)
                DescribeBuffer(fields, buffer, bufferSize);
        });
}

DWORD TapedPower::PowerReadFriendlyName(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD* bufferSize)
{
    return m_tape.Pass(
        "PowerReadFriendlyName", kNoAnswer,
        [&] { return m_inner->PowerReadFriendlyName(root, scheme, subgroup, setting, buffer, bufferSize); },
        [&](Fields& fields) { GiveScheme(fields, scheme, subgroup, setting); },
        [&](Fields& fields, DWORD& error)
        {
            // A name is UTF-16 in bytes, on every system.
            if (error == ERROR_SUCCESS && bufferSize != nullptr)
                DescribeBuffer(fields, buffer, bufferSize);
        });
}

DWORD TapedPower::PowerGetActiveScheme(HKEY root, GUID** scheme)
{
    return m_tape.Pass(
        "PowerGetActiveScheme", kNoAnswer, [&] { return m_inner->PowerGetActiveScheme(root, scheme); }, [](Fields&) {},
        SchemeResult(scheme));
}

DWORD TapedPower::PowerDuplicateScheme(HKEY root, const GUID* source, GUID** duplicate)
{
    return m_tape.Pass(
        "PowerDuplicateScheme", kNoAnswer, [&] { return m_inner->PowerDuplicateScheme(root, source, duplicate); },
        [&](Fields& fields) { fields.GivenGuid("source", source); }, SchemeResult(duplicate));
}

DWORD TapedPower::PowerWriteFriendlyName(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD bufferSize)
{
    return m_tape.Pass(
        "PowerWriteFriendlyName", kNoAnswer,
        [&] { return m_inner->PowerWriteFriendlyName(root, scheme, subgroup, setting, buffer, bufferSize); },
        [&](Fields& fields)
        {
            GiveScheme(fields, scheme, subgroup, setting);
            fields.GivenBytes("name", buffer, bufferSize);
        });
}

DWORD TapedPower::PowerWriteACValueIndex(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, DWORD value)
{
    return m_tape.Pass(
        "PowerWriteACValueIndex", kNoAnswer,
        [&] { return m_inner->PowerWriteACValueIndex(root, scheme, subgroup, setting, value); },
        [&](Fields& fields)
        {
            GiveScheme(fields, scheme, subgroup, setting);
            fields.Given("value", value);
        });
}

DWORD TapedPower::PowerSetActiveScheme(HKEY root, const GUID* scheme)
{
    return m_tape.Pass(
        "PowerSetActiveScheme", kNoAnswer, [&] { return m_inner->PowerSetActiveScheme(root, scheme); },
        [&](Fields& fields) { fields.GivenGuid("scheme", scheme); });
}

BOOLEAN TapedPower::IsPwrSuspendAllowed()
{
    return m_tape.Pass(
        "IsPwrSuspendAllowed", BOOLEAN{0}, [&] { return m_inner->IsPwrSuspendAllowed(); }, [](Fields&) {});
}

BOOLEAN TapedPower::IsPwrHibernateAllowed()
{
    return m_tape.Pass(
        "IsPwrHibernateAllowed", BOOLEAN{0}, [&] { return m_inner->IsPwrHibernateAllowed(); }, [](Fields&) {});
}

BOOLEAN TapedPower::IsPwrShutdownAllowed()
{
    return m_tape.Pass(
        "IsPwrShutdownAllowed", BOOLEAN{0}, [&] { return m_inner->IsPwrShutdownAllowed(); }, [](Fields&) {});
}

BOOLEAN TapedPower::SetSuspendState(BOOLEAN hibernate, BOOLEAN force, BOOLEAN wakeupEventsDisabled)
{
    return m_tape.Pass(
        "SetSuspendState", BOOLEAN{0}, [&] { return m_inner->SetSuspendState(hibernate, force, wakeupEventsDisabled); },
        [&](Fields& fields)
        {
            fields.Given("hibernate", hibernate);
            fields.Given("force", force);
            fields.Given("wakeupEventsDisabled", wakeupEventsDisabled);
        });
}

BOOL TapedPower::IsSystemResumeAutomatic()
{
    return m_tape.Pass(
        "IsSystemResumeAutomatic", BOOL{0}, [&] { return m_inner->IsSystemResumeAutomatic(); }, [](Fields&) {});
}

void TapedPower::LocalFree(PVOID memory)
{
    const int block = m_tape.holdings().NumberOfBlock(memory);
    m_tape.Tell(
        "LocalFree",
        [&]
        {
            m_tape.holdings().Release(memory);
            m_inner->LocalFree(memory);
        },
        [&](Fields& fields) { fields.Given("block", block); });
    if (m_inner == nullptr)
        m_tape.holdings().Release(memory);
}

} // namespace calvix::recording
