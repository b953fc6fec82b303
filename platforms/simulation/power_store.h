#pragma once

#include "simulation/scenario_system.h"

#include <calvix/platform_records.h>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace calvix::simulation
{

/// The power schemes of a computer. Chosen: the legacy schemes and those with a GUID are two stores side by side, and
/// what is written to one does not show in the other.
class PowerStore
{
public:
    struct Scheme
    {
        GUID guid{};
        std::vector<std::uint8_t> name;
        /// Mains and battery value by subgroup and setting, in the order in which they were first written.
        std::vector<std::pair<std::pair<GUID, GUID>, std::pair<DWORD, DWORD>>> values;
    };

    struct LegacyScheme
    {
        std::wstring name;
        POWER_POLICY policy{};
    };

    /// Throws ScenarioError when the description contradicts itself.
    explicit PowerStore(const PowerDescription& description);

    /// Puts the present schemes into `description`.
    void Describe(PowerDescription& description) const;

    const std::vector<Scheme>& Schemes() const { return m_schemes; }
    /// The scheme of this GUID, or null.
    Scheme* Find(const GUID& guid);
    const std::optional<GUID>& Active() const { return m_active; }
    void Activate(const GUID& guid) { m_active = guid; }
    /// Adds a copy of `source` under another GUID.
    void Duplicate(const Scheme& source, const GUID& guid);
    /// A GUID that no scheme has.
    GUID UnusedGuid();
    /// Whether any scheme has a value of this setting.
    bool HasSetting(const GUID& subgroup, const GUID& setting) const;
    /// Writes the mains value.
    static void SetAcValue(Scheme& scheme, const GUID& subgroup, const GUID& setting, DWORD value);

    /// The legacy scheme of this number, or null.
    const LegacyScheme* FindLegacy(UINT id) const;
    void WriteLegacy(UINT id, LegacyScheme scheme) { m_legacy[id] = std::move(scheme); }
    /// A number that no legacy scheme has.
    UINT UnusedLegacyId() const;
    const std::optional<UINT>& ActiveLegacy() const { return m_activeLegacy; }
    /// Makes a scheme active; `policy`, if given, is in force in place of its own.
    void ActivateLegacy(UINT id, const POWER_POLICY* policy);
    /// The policy in force; all zero where no scheme is active.
    const POWER_POLICY& Current() const { return m_current; }

private:
    void ReadSchemes(const PowerDescription& description);
    void ReadLegacySchemes(const PowerDescription& description);

    std::vector<Scheme> m_schemes;
    std::optional<GUID> m_active;
    DWORD m_created = 0;
    std::map<UINT, LegacyScheme> m_legacy;
    std::optional<UINT> m_activeLegacy;
    POWER_POLICY m_current{};
};

} // namespace calvix::simulation
