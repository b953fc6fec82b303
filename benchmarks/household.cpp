#include "household.h"

#include <string>

namespace calvix::benchmarks
{

namespace
{

using simulation::Bytes;

Bytes Ssid(const std::string& text)
{
    return {text.begin(), text.end()};
}

simulation::MacAddress AddressOf(std::size_t network, std::size_t accessPoint)
{
    return {2,
            0x1A,
            static_cast<std::uint8_t>(network >> 8),
            static_cast<std::uint8_t>(network & 0xFF),
            0,
            static_cast<std::uint8_t>(accessPoint)};
}

/// Both bands; the first access point is the weaker one, so that there is somewhere to roam to.
void AddNetwork(simulation::Scenario& scenario, std::size_t index)
{
    for (std::size_t accessPoint = 0; accessPoint < 2; ++accessPoint)
    {
        simulation::AccessPoint heard;
        heard.ssid = Ssid("network-" + std::to_string(index));
        heard.bssid = AddressOf(index, accessPoint);
        heard.frequencyKhz = accessPoint == 0 ? 2412000 : 5180000;
        heard.rssi = accessPoint == 0 ? -70 : -65;
        scenario.accessPoints.push_back(heard);
    }
}

simulation::StoredProfile Profile(std::size_t index, const std::string& ssid)
{
    simulation::ProfileSettings settings;
    settings.name = "Wireless network " + std::to_string(index);
    settings.ssid = Ssid(ssid);
    settings.key = "a key of some length";
    return {simulation::MakeProfileXml(settings)};
}

} // namespace

simulation::Scenario HouseholdScenario(std::size_t profiles, std::size_t networks, std::size_t matches)
{
    simulation::Scenario scenario;
    simulation::AdapterDescription adapter;
    adapter.guid = "{5CA1AB1E-0001-4000-8000-00CA1F1C0002}";
    adapter.description = "Wireless Adapter";
    for (std::size_t index = 0; index < networks; ++index)
        AddNetwork(scenario, index);
    const std::size_t distance = networks / matches;
    for (std::size_t index = 0; index < profiles; ++index)
        adapter.profiles.push_back(Profile(index, index < matches ? "network-" + std::to_string(index * distance)
                                                                  : "away-" + std::to_string(index)));
    adapter.connection = simulation::Connection{"Wireless network 0", AddressOf(0, 0)};
    scenario.adapters.push_back(adapter);
    return scenario;
}

} // namespace calvix::benchmarks
