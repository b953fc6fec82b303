#include "wrappers/intercepted_power.h"

#include "wrappers/argument_texts.h"

namespace calvix::wrappers
{

using namespace argument;

namespace
{

/// The friendly names of power schemes are wide text, terminator included, passed as bytes.
Wide FriendlyName(std::string_view name, const UCHAR* buffer, DWORD size)
{
    const int length = static_cast<int>(size / sizeof(wchar_t));
    return {name, reinterpret_cast<const wchar_t*>(buffer), length > 0 ? length - 1 : 0};
}

} // namespace

NTSTATUS InterceptedPower::CallNtPowerInformation(
    POWER_INFORMATION_LEVEL level, PVOID input, ULONG inputSize, PVOID output, ULONG outputSize)
{
    return m_point.Status(
        "CallNtPowerInformation",
        [&] { return m_inner.CallNtPowerInformation(level, input, inputSize, output, outputSize); },
        PowerLevel{"level", level}, Pointer{"input", input}, Number{"inputSize", inputSize}, Pointer{"output", output},
        Size{"outputSize", outputSize, QueriedRecord(level)});
}

BOOLEAN InterceptedPower::GetActivePwrScheme(UINT* schemeId)
{
    return m_point.Reasoned(
        "GetActivePwrScheme", BOOLEAN{0}, [&] { return m_inner.GetActivePwrScheme(schemeId); },
        Pointer{"schemeId", schemeId});
}

BOOLEAN InterceptedPower::ReadPwrScheme(UINT schemeId, POWER_POLICY* policy)
{
    return m_point.Reasoned(
        "ReadPwrScheme", BOOLEAN{0}, [&] { return m_inner.ReadPwrScheme(schemeId, policy); },
        Number{"schemeId", schemeId}, Pointer{"policy", policy});
}

BOOLEAN
InterceptedPower::WritePwrScheme(UINT* schemeId, const wchar_t* name, const wchar_t* description, POWER_POLICY* policy)
{
    return m_point.Reasoned(
        "WritePwrScheme", BOOLEAN{0}, [&] { return m_inner.WritePwrScheme(schemeId, name, description, policy); },
        SchemeAt{"schemeId", schemeId}, Wide{"name", name}, Wide{"description", description},
        Pointer{"policy", policy});
}

BOOLEAN InterceptedPower::SetActivePwrScheme(UINT schemeId, GLOBAL_POWER_POLICY* globalPolicy, POWER_POLICY* policy)
{
    return m_point.Reasoned(
        "SetActivePwrScheme", BOOLEAN{0}, [&] { return m_inner.SetActivePwrScheme(schemeId, globalPolicy, policy); },
        Number{"schemeId", schemeId}, Pointer{"globalPolicy", globalPolicy}, Pointer{"policy", policy});
}

DWORD InterceptedPower::PowerEnumerate(HKEY root,
                                       const GUID* scheme,
                                       const GUID* subgroup,
                                       POWER_DATA_ACCESSOR access,
                                       ULONG index,
                                       UCHAR* buffer,
                                       DWORD* bufferSize)
{
    return m_point.ErrorNumber(
        "PowerEnumerate",
        [&] { return m_inner.PowerEnumerate(root, scheme, subgroup, access, index, buffer, bufferSize); },
        Pointer{"root", root}, Guid{"scheme", scheme}, Guid{"subgroup", subgroup}, Number{"access", access},
        Number{"index", index}, Pointer{"buffer", buffer}, NumberAt{"bufferSize", bufferSize});
}

DWORD InterceptedPower::PowerReadFriendlyName(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD* bufferSize)
{
    return m_point.ErrorNumber(
        "PowerReadFriendlyName",
        [&] { return m_inner.PowerReadFriendlyName(root, scheme, subgroup, setting, buffer, bufferSize); },
        Pointer{"root", root}, Guid{"scheme", scheme}, Guid{"subgroup", subgroup}, Guid{"setting", setting},
        Pointer{"buffer", buffer}, NumberAt{"bufferSize", bufferSize});
}

DWORD InterceptedPower::PowerGetActiveScheme(HKEY root, GUID** scheme)
{
    return m_point.ErrorNumber(
        "PowerGetActiveScheme", [&] { return m_inner.PowerGetActiveScheme(root, scheme); }, Pointer{"root", root},
        Pointer{"scheme", scheme});
}

DWORD InterceptedPower::PowerDuplicateScheme(HKEY root, const GUID* source, GUID** duplicate)
{
    return m_point.ErrorNumber(
        "PowerDuplicateScheme", [&] { return m_inner.PowerDuplicateScheme(root, source, duplicate); },
        Pointer{"root", root}, Guid{"source", source}, Pointer{"duplicate", duplicate});
}

DWORD InterceptedPower::PowerWriteFriendlyName(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, UCHAR* buffer, DWORD bufferSize)
{
    return m_point.ErrorNumber(
        "PowerWriteFriendlyName",
        [&] { return m_inner.PowerWriteFriendlyName(root, scheme, subgroup, setting, buffer, bufferSize); },
        Pointer{"root", root}, Guid{"scheme", scheme}, Guid{"subgroup", subgroup}, Guid{"setting", setting},
        FriendlyName("buffer", buffer, bufferSize), Number{"bufferSize", bufferSize});
}

DWORD InterceptedPower::PowerWriteACValueIndex(
    HKEY root, const GUID* scheme, const GUID* subgroup, const GUID* setting, DWORD value)
{
    return m_point.ErrorNumber(
        "PowerWriteACValueIndex",
        [&] { return m_inner.PowerWriteACValueIndex(root, scheme, subgroup, setting, value); }, Pointer{"root", root},
        Guid{"scheme", scheme}, Guid{"subgroup", subgroup}, Guid{"setting", setting}, Number{"value", value});
}

DWORD InterceptedPower::PowerSetActiveScheme(HKEY root, const GUID* scheme)
{
    return m_point.ErrorNumber(
        "PowerSetActiveScheme", [&] { return m_inner.PowerSetActiveScheme(root, scheme); }, Pointer{"root", root},
        Guid{"scheme", scheme});
}

BOOLEAN InterceptedPower::IsPwrSuspendAllowed()
{
    return m_point.Reasoned("IsPwrSuspendAllowed", BOOLEAN{0}, [&] { return m_inner.IsPwrSuspendAllowed(); });
}

BOOLEAN InterceptedPower::IsPwrHibernateAllowed()
{
    return m_point.Reasoned("IsPwrHibernateAllowed", BOOLEAN{0}, [&] { return m_inner.IsPwrHibernateAllowed(); });
}

BOOLEAN InterceptedPower::IsPwrShutdownAllowed()
{
    return m_point.Reasoned("IsPwrShutdownAllowed", BOOLEAN{0}, [&] { return m_inner.IsPwrShutdownAllowed(); });
}

BOOLEAN InterceptedPower::SetSuspendState(BOOLEAN hibernate, BOOLEAN force, BOOLEAN wakeupEventsDisabled)
{
    return m_point.Reasoned(
        "SetSuspendState", BOOLEAN{0}, [&] { return m_inner.SetSuspendState(hibernate, force, wakeupEventsDisabled); },
        Flag{"hibernate", hibernate}, Flag{"force", force}, Flag{"wakeupEventsDisabled", wakeupEventsDisabled});
}

BOOL InterceptedPower::IsSystemResumeAutomatic()
{
    return m_point.Reasoned("IsSystemResumeAutomatic", BOOL{0}, [&] { return m_inner.IsSystemResumeAutomatic(); });
}

void InterceptedPower::LocalFree(PVOID memory)
{
    m_point.Certain(
        "LocalFree", [&] { m_inner.LocalFree(memory); }, Pointer{"memory", memory});
}

} // namespace calvix::wrappers
