#include "session/scenario.h"

#include "support/test_scenarios.h"

#include <set>

namespace calvix::fuzz::session
{

namespace
{

using simulation::AccessPoint;
using simulation::AdapterDescription;
using simulation::Scenario;

/// Many begin with each other; the marker of software access points, text in several scripts, and the longest.
const std::string kNames[] = {"Net",
                              "NetA",
                              "NetAB",
                              "N",
                              "Phone LC#1",
                              "Caf\xC3\xA9",
                              "\xE6\xB3\xA2\xE6\xAD\xA2",
                              "a network name of 32 bytes, full"};

constexpr std::uint32_t kFrequencies[] = {2412000, 2437000, 2484000, 5180000, 5745000, 5955000, 1, 0xFFFFFFFF};

struct Security
{
    const char* authentication;
    const char* encryption;
};

constexpr Security kSecurities[] = {{"WPA2PSK", "AES"}, {"open", "none"}, {"WPA3SAE", "AES"},
                                    {"WPAPSK", "TKIP"}, {"OWE", "AES"},   {"open", "WEP"}};

AccessPoint MakeHeard(Input& input, std::uint8_t number)
{
    const std::uint32_t frequency = input.OneOf(kFrequencies);
    AccessPoint point =
        test::MakeAccessPoint(NetworkName(input), {0x02, 0, 0, 0, 0, number}, frequency, -20 - input.Byte() % 90);
    if (input.OneIn(12))
    {
        const std::string_view raw = input.Bytes(32);
        point.ssid.assign(raw.begin(), raw.end());
    }
    const Security& security = input.OneOf(kSecurities);
    point.authentication = security.authentication;
    point.encryption = security.encryption;
    point.hidden = input.OneIn(8);
    point.bssType = input.OneIn(8) ? 2 : 1;
    point.answers = !input.OneIn(6);
    return point;
}

void AddProfiles(Input& input, AdapterDescription& adapter)
{
    std::set<std::string> taken;
    for (std::size_t left = input.Below(6); left > 0; --left)
    {
        simulation::ProfileSettings settings;
        settings.name = NetworkName(input);
        const std::string ssid = input.OneIn(3) ? NetworkName(input) : settings.name;
        settings.ssid.assign(ssid.begin(), ssid.end());
        const Security& security = input.OneOf(kSecurities);
        settings.authentication = security.authentication;
        settings.encryption = security.encryption;
        settings.mode = input.OneIn(4) ? "manual" : "auto";
        if (taken.insert(settings.name).second)
            adapter.profiles.push_back({simulation::MakeProfileXml(settings)});
    }
    if (!taken.empty() && !input.OneIn(4))
        adapter.connection = simulation::Connection{*taken.begin(), {}};
}

void SwitchThings(Input& input, Scenario& scenario)
{
    constexpr std::uint32_t kCodePages[] = {1252, 932, 936, 65001};
    scenario.codePage = input.OneOf(kCodePages);
    const std::uint8_t off = input.OneIn(3) ? input.Byte() : 0;
    scenario.serviceRunning = (off & 1) == 0;
    scenario.locationConsent = (off & 2) == 0;
    scenario.administrator = (off & 4) == 0;
    scenario.tokens = (off & 8) == 0;
    scenario.wow64 = (off & 16) == 0;
    if ((off & 32) != 0)
        scenario.power.activeScheme.reset();
    if ((off & 64) != 0)
        scenario.power.activeLegacyScheme.reset();
    scenario.power.suspendAllowed = (off & 128) == 0;
}

} // namespace

std::string NetworkName(Input& input)
{
    return input.OneOf(kNames);
}

std::string ProfileDocument(Input& input)
{
    const std::string name = NetworkName(input);
    return test::MakeProfile(name, input.OneIn(4) ? "manual" : "auto").xml;
}

Scenario MakeScenario(Input& input)
{
    Scenario scenario = test::Furnished(test::SilentScenario());
    SwitchThings(input, scenario);
    scenario.adapters.resize(input.OneIn(16) ? 0 : 1 + input.Below(2));
    for (AdapterDescription& adapter : scenario.adapters)
    {
        adapter.profiles.clear();
        AddProfiles(input, adapter);
        if (input.OneIn(16))
            adapter.phys.clear();
    }
    const std::size_t heard = input.Below(8);
    for (std::size_t number = 0; number < heard; ++number)
        scenario.accessPoints.push_back(MakeHeard(input, static_cast<std::uint8_t>(number)));
    return scenario;
}

} // namespace calvix::fuzz::session
