#include "sweep/scenarios.h"

#include "support/test_scenarios.h"

namespace calvix::test::sweep
{

namespace
{

simulation::Scenario Connected()
{
    return Furnished(RichScenario());
}

simulation::Scenario Disconnected()
{
    return Furnished(DisconnectedScenario());
}

/// Where another access point of the network is better than the connected one.
simulation::Scenario Wandering()
{
    constexpr std::int32_t kAlmostGone = -88;
    simulation::Scenario scenario = RichScenario();
    scenario.accessPoints[0].rssi = kAlmostGone;
    return Furnished(scenario);
}

/// Where the WLAN service can be started.
simulation::Scenario Stopped()
{
    simulation::Scenario scenario = Connected();
    scenario.serviceRunning = false;
    return scenario;
}

constexpr NamedScenario kScenarios[] = {
    {"connected", Connected}, {"disconnected", Disconnected}, {"wandering", Wandering}, {"stopped", Stopped}};

} // namespace

std::span<const NamedScenario> Scenarios()
{
    return kScenarios;
}

} // namespace calvix::test::sweep
