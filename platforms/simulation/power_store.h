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
    struct LegacyScheme
    {
        std::wstring name;
        POWER_POLICY policy{};
    };

    /// Throws ScenarioError when the description contradicts itself. It outlives this object, and is where the schemes with
    /// a GUID are kept, their GUIDs in capitals, and which schemes are active.
    explicit PowerStore(PowerDescription& power);

    /// The scheme of this GUID, or null.
    PowerScheme* Find(const GUID& guid);
    /// A GUID that no scheme has.
    GUID UnusedGuid();
    /// Whether any scheme has a value of this setting.
    bool HasSetting(const GUID& subgroup, const GUID& setting) const;
    /// Writes the mains value.
    static void SetAcValue(PowerScheme& scheme, const GUID& subgroup, const GUID& setting, DWORD value);

    /// The legacy schemes as they are now.
    std::vector<LegacyPowerScheme> DescribeLegacy() const;
    /// The legacy scheme of this number, or null.
    const LegacyScheme* FindLegacy(UINT id) const;
    void WriteLegacy(UINT id, LegacyScheme scheme) { m_legacy[id] = std::move(scheme); }
    /// A number that no legacy scheme has.
    UINT UnusedLegacyId() const;
    /// Makes a scheme active; `policy`, if given, is in force in place of its own.
    void ActivateLegacy(UINT id, const POWER_POLICY* policy);
    /// The policy in force; all zero where no scheme is active.
    const POWER_POLICY& Current() const { return m_current; }

private:
    void ReadSchemes();
    void ReadLegacySchemes();

    PowerDescription& m_power;
    DWORD m_created = 0;
    std::map<UINT, LegacyScheme> m_legacy;
    POWER_POLICY m_current{};
};

} // namespace calvix::simulation
