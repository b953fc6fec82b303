#include "support/test_scenarios.h"

#include "methods/method.h"

namespace calvix::test
{

using simulation::AccessPoint;
using simulation::AdapterDescription;
using simulation::Bytes;
using simulation::MacAddress;
using simulation::ProfileSettings;
using simulation::Scenario;
using simulation::StoredProfile;

namespace
{

constexpr std::uint32_t kHt = 7;
constexpr std::uint32_t kVht = 8;
constexpr std::uint32_t kHe = 10;
constexpr std::uint32_t kIndependent = 2;

Bytes BytesOf(const std::string& text)
{
    return {text.begin(), text.end()};
}

AccessPoint WithPhy(AccessPoint point, std::uint32_t phyType)
{
    point.phyType = phyType;
    return point;
}

AccessPoint WithSecurity(AccessPoint point, const char* authentication, const char* encryption)
{
    point.authentication = authentication;
    point.encryption = encryption;
    return point;
}

AccessPoint Hidden(AccessPoint point)
{
    point.hidden = true;
    return point;
}

AccessPoint Independent(AccessPoint point)
{
    point.bssType = kIndependent;
    return point;
}

std::vector<AccessPoint> RichAirspace()
{
    return {
        MakeAccessPoint("HomeNet", kHomeNet24, 2437000, -50),
        WithPhy(MakeAccessPoint("HomeNet", kHomeNet5, 5180000, -62), kVht),
        WithPhy(MakeAccessPoint("HomeNet", kHomeNet6, 5955000, -70), kHe),
        WithPhy(MakeAccessPoint("OfficeNet", kOfficeNet, 5745000, -65), kVht),
        Hidden(MakeAccessPoint("HiddenNet", kHiddenNet, 2462000, -68)),
        Independent(WithSecurity(MakeAccessPoint("AdHocNet", kAdHocNet, 2422000, -80), "open", "none")),
        WithPhy(WithSecurity(MakeAccessPoint("HomeNet5G", kHomeNet5G, 5220000, -58), "WPA3SAE", "AES"), kHe),
        WithSecurity(MakeAccessPoint("CafeNet", kCafeNet, 2412000, -75), "open", "none"),
    };
}

/// A profile of the network of its name.
StoredProfile Stored(ProfileSettings settings)
{
    settings.ssid = BytesOf(settings.name);
    return {simulation::MakeProfileXml(settings)};
}

StoredProfile MakeOpenProfile(const std::string& name, std::uint32_t bssType)
{
    return Stored({.name = name,
                   .ssid = {},
                   .mode = "manual",
                   .authentication = "open",
                   .encryption = "none",
                   .key = {},
                   .bssType = bssType});
}

StoredProfile MakeHiddenProfile(const std::string& name)
{
    return Stored({.name = name, .ssid = {}, .key = name + " key", .hidden = true});
}

AdapterDescription MakeAdapterA()
{
    AdapterDescription adapter;
    adapter.guid = kAdapterAText;
    adapter.description = "Wireless Adapter A";
    adapter.address = {0x02, 0xAA, 0, 0, 0, 0x0A};
    adapter.phys.assign(3, {});
    adapter.phys[0].type = kHt;
    adapter.phys[1].type = kVht;
    adapter.phys[2].type = kHe;
    adapter.profiles = {MakeProfile("HomeNet"), MakeProfile("OfficeNet", "manual"), MakeHiddenProfile("HiddenNet"),
                        MakeOpenProfile("AdHocNet", kIndependent), MakeProfile("GoneNet")};
    adapter.connection = simulation::Connection{"HomeNet", kHomeNet24};
    adapter.statistics.transmitted = 1234;
    adapter.statistics.received = 56789;
    return adapter;
}

AdapterDescription MakeAdapterB()
{
    AdapterDescription adapter;
    adapter.guid = kAdapterBText;
    adapter.description = "Wireless Adapter B";
    adapter.address = {0x02, 0xBB, 0, 0, 0, 0x0B};
    adapter.profiles = {MakeOpenProfile("CafeNet", 1)};
    return adapter;
}

Scenario MakeRichScenario()
{
    Scenario scenario;
    scenario.description = "two adapters, every kind of network";
    scenario.adapters = {MakeAdapterA(), MakeAdapterB()};
    scenario.accessPoints = RichAirspace();
    return scenario;
}

} // namespace

Scenario RichScenario()
{
    static const Scenario scenario = MakeRichScenario(); // the sweeps want it thousands of times
    return scenario;
}

Scenario DisconnectedScenario()
{
    Scenario scenario = RichScenario();
    scenario.adapters[0].connection.reset();
    return scenario;
}

Scenario SilentScenario()
{
    Scenario scenario = DisconnectedScenario();
    scenario.accessPoints.clear();
    return scenario;
}

Scenario NoAdapterScenario()
{
    Scenario scenario = RichScenario();
    scenario.adapters.clear();
    return scenario;
}

Scenario NoProfileScenario()
{
    Scenario scenario = DisconnectedScenario();
    for (AdapterDescription& adapter : scenario.adapters)
        adapter.profiles.clear();
    return scenario;
}

Scenario ScenarioInCodePage(std::uint32_t codePage)
{
    Scenario scenario = RichScenario();
    scenario.codePage = codePage;
    return scenario;
}

Scenario Furnished(Scenario scenario)
{
    constexpr std::uint32_t kNoMoreItems = 259;
    scenario.power.enumerationError = kNoMoreItems;
    scenario.power.lastSleepTime = 1'000;
    scenario.power.lastWakeTime = 2'000;
    scenario.power.modernStandby = true;
    scenario.power.resumesAutomatically = true;
    scenario.wow64 = true;
    const std::string folder = methods::kFolder;
    scenario.programPath = folder + "host.exe";
    scenario.programs = {{.path = folder + methods::kProgram}};
    scenario.processes = {{.id = methods::kProcess, .path = folder + "running.exe"}};
    scenario.adapters[0].ihv[Bytes(16)] = {{1, 2, 3, 4}};
    return scenario;
}

AccessPoint
MakeAccessPoint(const std::string& ssid, const MacAddress& bssid, std::uint32_t frequencyKhz, std::int32_t rssi)
{
    AccessPoint point;
    point.ssid = BytesOf(ssid);
    point.bssid = bssid;
    point.frequencyKhz = frequencyKhz;
    point.rssi = rssi;
    return point;
}

StoredProfile MakeProfile(const std::string& name, const std::string& mode)
{
    return Stored({.name = name, .ssid = {}, .mode = mode, .key = name + " key"});
}

} // namespace calvix::test
