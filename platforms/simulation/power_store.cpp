#include "simulation/power_store.h"

#include "forms/guid_text.h"
#include "forms/utf8.h"
#include "platform/records/power_records.h"
#include "simulation/scenario.h"

#include <algorithm>
#include <set>

namespace calvix::simulation
{

namespace
{

/// The GUID in the form in which the store compares it.
std::string GuidOf(const std::string& text)
{
    const std::optional<GUID> guid = forms::GuidFromText(text);
    if (!guid)
        throw ScenarioError("power scheme " + text + ": not a GUID with braces");
    return forms::GuidText(*guid);
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

PowerValue* FindValue(PowerScheme& scheme, const GUID& subgroup, const GUID& setting)
{
    const auto found =
        std::find_if(scheme.values.begin(), scheme.values.end(),
                     [place = std::pair(forms::GuidText(subgroup), forms::GuidText(setting))](const PowerValue& value)
                     { return place == std::pair(value.subgroup, value.setting); });
    return found != scheme.values.end() ? &*found : nullptr;
}

LegacyPowerScheme Described(UINT id, const PowerStore::LegacyScheme& scheme)
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

PowerStore::PowerStore(PowerDescription& power) : m_power(power)
{
    ReadSchemes();
    ReadLegacySchemes();
}

void PowerStore::ReadSchemes()
{
    std::set<std::string> known;
    for (PowerScheme& scheme : m_power.schemes)
    {
        scheme.guid = GuidOf(scheme.guid);
        if (!known.insert(scheme.guid).second)
            throw ScenarioError("power scheme " + scheme.guid + ": another scheme has this GUID");
        for (PowerValue& value : scheme.values)
        {
            value.subgroup = GuidOf(value.subgroup);
            value.setting = GuidOf(value.setting);
        }
    }
    if (!m_power.activeScheme)
        return;
    m_power.activeScheme = GuidOf(*m_power.activeScheme);
    if (known.count(*m_power.activeScheme) == 0)
        throw ScenarioError("power scheme " + *m_power.activeScheme + ": active, but not there");
}

void PowerStore::ReadLegacySchemes()
{
    for (const LegacyPowerScheme& each : m_power.legacySchemes)
        if (!m_legacy.emplace(each.id, LegacyScheme{forms::WideFromUtf8(each.name), PolicyOf(each)}).second)
            throw ScenarioError("legacy power scheme " + std::to_string(each.id) + ": there is another one");
    const auto& active = m_power.activeLegacyScheme;
    if (active && FindLegacy(*active) == nullptr)
        throw ScenarioError("legacy power scheme " + std::to_string(*active) + ": active, but not there");
    if (active)
        ActivateLegacy(*active, nullptr);
}

std::vector<LegacyPowerScheme> PowerStore::DescribeLegacy() const
{
    std::vector<LegacyPowerScheme> described;
    for (const auto& [id, scheme] : m_legacy)
        described.push_back(Described(id, scheme));
    return described;
}

PowerScheme* PowerStore::Find(const GUID& guid)
{
    const auto found =
        std::find_if(m_power.schemes.begin(), m_power.schemes.end(),
                     [text = forms::GuidText(guid)](const PowerScheme& each) { return each.guid == text; });
    return found != m_power.schemes.end() ? &*found : nullptr;
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
    return std::any_of(m_power.schemes.begin(), m_power.schemes.end(),
                       [&](PowerScheme& scheme) { return FindValue(scheme, subgroup, setting) != nullptr; });
}

void PowerStore::SetAcValue(PowerScheme& scheme, const GUID& subgroup, const GUID& setting, DWORD value)
{
    PowerValue* known = FindValue(scheme, subgroup, setting);
    if (known == nullptr)
        known = &scheme.values.emplace_back(PowerValue{forms::GuidText(subgroup), forms::GuidText(setting)});
    known->ac = static_cast<std::uint32_t>(value);
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
    m_power.activeLegacyScheme = id;
    m_current = policy != nullptr ? *policy : m_legacy.at(id).policy;
}

} // namespace calvix::simulation
