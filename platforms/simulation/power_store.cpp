#include "simulation/power_store.h"

#include "forms/guid_text.h"
#include "forms/utf8.h"
#include "platform/records/power_records.h"
#include "simulation/scenario.h"

#include <algorithm>

namespace calvix::simulation
{

namespace
{

GUID SchemeGuid(const std::string& text)
{
    const std::optional<GUID> guid = forms::GuidFromText(text);
    if (!guid)
        throw ScenarioError("power scheme " + text + ": not a GUID with braces");
    return *guid;
}

/// What the platform's own schemes say where a scenario says nothing.
POWER_POLICY PolicyOf(const LegacyPowerScheme& scheme)
{
    POWER_POLICY policy{};
    policy.user.Revision = 1;
    policy.mach.Revision = 1;
    policy.user.IdleAc.Action = policy.user.IdleDc.Action = PowerActionSleep;
    policy.user.IdleTimeoutAc = scheme.idleTimeoutAc;
    policy.user.IdleTimeoutDc = scheme.idleTimeoutDc;
    policy.user.IdleSensitivityAc = policy.user.IdleSensitivityDc = 50;
    policy.user.MaxSleepAc = policy.user.MaxSleepDc = PowerSystemSleeping3;
    policy.user.VideoTimeoutAc = scheme.videoTimeoutAc;
    policy.user.VideoTimeoutDc = scheme.videoTimeoutDc;
    policy.user.FanThrottleToleranceAc = policy.user.FanThrottleToleranceDc = 100;
    policy.mach.MinSleepAc = policy.mach.MinSleepDc = PowerSystemSleeping1;
    policy.mach.ReducedLatencySleepAc = policy.mach.ReducedLatencySleepDc = PowerSystemSleeping1;
    return policy;
}

LegacyPowerScheme DescribeLegacy(UINT id, const PowerStore::LegacyScheme& scheme)
{
    const USER_POWER_POLICY& user = scheme.policy.user;
    return {id,
            forms::Utf8FromWide(scheme.name),
            static_cast<std::uint32_t>(user.IdleTimeoutAc),
            static_cast<std::uint32_t>(user.IdleTimeoutDc),
            static_cast<std::uint32_t>(user.VideoTimeoutAc),
            static_cast<std::uint32_t>(user.VideoTimeoutDc)};
}

} // namespace

PowerStore::PowerStore(const PowerDescription& description)
{
    ReadSchemes(description);
    ReadLegacySchemes(description);
}

void PowerStore::ReadSchemes(const PowerDescription& description)
{
    for (const PowerScheme& each : description.schemes)
    {
        Scheme scheme{SchemeGuid(each.guid), each.name, {}};
        if (Find(scheme.guid) != nullptr)
            throw ScenarioError("power scheme " + each.guid + ": another scheme has this GUID");
        for (const PowerValue& value : each.values)
            scheme.values.push_back({{SchemeGuid(value.subgroup), SchemeGuid(value.setting)}, {value.ac, value.dc}});
        m_schemes.push_back(std::move(scheme));
    }
    if (!description.activeScheme)
        return;
    m_active = SchemeGuid(*description.activeScheme);
    if (Find(*m_active) == nullptr)
        throw ScenarioError("power scheme " + *description.activeScheme + ": active, but not there");
}

void PowerStore::ReadLegacySchemes(const PowerDescription& description)
{
    for (const LegacyPowerScheme& each : description.legacySchemes)
        if (!m_legacy.emplace(each.id, LegacyScheme{forms::WideFromUtf8(each.name), PolicyOf(each)}).second)
            throw ScenarioError("legacy power scheme " + std::to_string(each.id) + ": there is another one");
    if (!description.activeLegacyScheme)
        return;
    if (FindLegacy(*description.activeLegacyScheme) == nullptr)
        throw ScenarioError("legacy power scheme " + std::to_string(*description.activeLegacyScheme) +
                            ": active, but not there");
    ActivateLegacy(*description.activeLegacyScheme, nullptr);
}

void PowerStore::Describe(PowerDescription& description) const
{
    description.schemes.clear();
    for (const Scheme& scheme : m_schemes)
    {
        PowerScheme described{forms::GuidText(scheme.guid), scheme.name, {}};
        for (const auto& [place, value] : scheme.values)
            described.values.push_back({forms::GuidText(place.first), forms::GuidText(place.second),
                                        static_cast<std::uint32_t>(value.first),
                                        static_cast<std::uint32_t>(value.second)});
        description.schemes.push_back(std::move(described));
    }
    description.activeScheme.reset();
    if (m_active)
        description.activeScheme = forms::GuidText(*m_active);
    description.legacySchemes.clear();
    for (const auto& [id, scheme] : m_legacy)
        description.legacySchemes.push_back(DescribeLegacy(id, scheme));
    description.activeLegacyScheme = m_activeLegacy;
}

PowerStore::Scheme* PowerStore::Find(const GUID& guid)
{
    const auto found =
        std::find_if(m_schemes.begin(), m_schemes.end(), [&guid](const Scheme& each) { return each.guid == guid; });
    return found != m_schemes.end() ? &*found : nullptr;
}

void PowerStore::Duplicate(const Scheme& source, const GUID& guid)
{
    Scheme copy = source;
    copy.guid = guid;
    m_schemes.push_back(std::move(copy));
}

GUID PowerStore::UnusedGuid()
{
    GUID guid{0x5CA1AB1E, 0x00D0, 0x4000, {0x80, 0, 0, 0, 0, 0, 0, 0}};
    do
    {
        ++m_created;
        guid.Data4[6] = static_cast<std::uint8_t>(m_created >> 8 & 0xFF);
        guid.Data4[7] = static_cast<std::uint8_t>(m_created & 0xFF);
    } while (Find(guid) != nullptr);
    return guid;
}

bool PowerStore::HasSetting(const GUID& subgroup, const GUID& setting) const
{
    return std::any_of(m_schemes.begin(), m_schemes.end(),
                       [&](const Scheme& scheme)
                       {
                           return std::any_of(scheme.values.begin(), scheme.values.end(),
                                              [&](const auto& value)
                                              { return value.first == std::pair(subgroup, setting); });
                       });
}

void PowerStore::SetAcValue(Scheme& scheme, const GUID& subgroup, const GUID& setting, DWORD value)
{
    for (auto& [place, values] : scheme.values)
    {
        if (place == std::pair(subgroup, setting))
        {
            values.first = value;
            return;
        }
    }
    scheme.values.push_back({{subgroup, setting}, {value, 0}});
}

const PowerStore::LegacyScheme* PowerStore::FindLegacy(UINT id) const
{
    const auto found = m_legacy.find(id);
    return found != m_legacy.end() ? &found->second : nullptr;
}

UINT PowerStore::UnusedLegacyId() const
{
    UINT id = 0;
    while (m_legacy.count(id) != 0)
        ++id;
    return id;
}

void PowerStore::ActivateLegacy(UINT id, const POWER_POLICY* policy)
{
    m_activeLegacy = id;
    m_current = policy != nullptr ? *policy : m_legacy.at(id).policy;
}

} // namespace calvix::simulation
