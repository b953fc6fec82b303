#pragma once

#include "support/test_scenarios.h"

#include <string>
#include <vector>

namespace calvix::test
{

/// An access point of a network; ScenarioOf gives it its address.
inline simulation::AccessPoint Heard(const std::string& ssid, std::uint32_t frequencyKhz, std::int32_t rssi)
{
    return MakeAccessPoint(ssid, {}, frequencyKhz, rssi);
}

/// A profile that is not named after its network.
inline simulation::StoredProfile
ProfileFor(const std::string& name, const std::string& ssid, const std::string& mode = "auto")
{
    simulation::ProfileSettings settings;
    settings.name = name;
    settings.ssid.assign(ssid.begin(), ssid.end());
    settings.mode = mode;
    return {simulation::MakeProfileXml(settings)};
}

/// A profile named after its network, which needs no key.
inline simulation::StoredProfile Profile(const std::string& name, const std::string& mode = "auto")
{
    return ProfileFor(name, name, mode);
}

/// A computer with adapter A alone, not connected. Its lists keep the order given here.
inline simulation::Scenario ScenarioOf(std::vector<simulation::StoredProfile> profiles,
                                       std::vector<simulation::AccessPoint> heard)
{
    simulation::Scenario scenario = DisconnectedScenario();
    scenario.adapters.resize(1);
    scenario.adapters[0].profiles = std::move(profiles);
    scenario.accessPoints = std::move(heard);
    std::uint8_t number = 0;
    for (simulation::AccessPoint& point : scenario.accessPoints)
        point.bssid = {0x02, 0, 0, 0, 0, ++number};
    return scenario;
}

/// An entry as a caller hands it in to rule its network out.
inline WLAN_BSS_ENTRY EntryOf(const std::string& ssid)
{
    WLAN_BSS_ENTRY entry{};
    entry.dot11Ssid = MakeSsid(ssid);
    return entry;
}

} // namespace calvix::test
