#include "sweep/worlds.h"

#include "support/test_worlds.h"
#include "sweep/method_call.h"

namespace calvix::test::sweep
{

namespace
{

/// What the methods ask beside the radio. Listing the power schemes fails, or GetPowerScheme would never end.
simulation::Scenario Furnished(simulation::Scenario world)
{
    constexpr std::uint32_t kNoMoreItems = 259;
    world.power.enumerationError = kNoMoreItems;
    world.power.lastSleepTime = 1'000;
    world.power.lastWakeTime = 2'000;
    world.power.modernStandby = true;
    world.power.resumesAutomatically = true;
    world.wow64 = true;
    world.programPath = "C:\\Tools\\host.exe";
    world.programs = {{.path = std::string("C:\\Tools\\") + kProgram}};
    world.processes = {{.id = kProcess, .path = "C:\\Tools\\running.exe"}};
    world.adapters[0].ihv[simulation::Bytes(16)] = {{1, 2, 3, 4}};
    return world;
}

simulation::Scenario Connected()
{
    return Furnished(RichWorld());
}

simulation::Scenario Disconnected()
{
    return Furnished(DisconnectedWorld());
}

/// Where another access point of the network is better than the connected one.
simulation::Scenario Wandering()
{
    constexpr std::int32_t kAlmostGone = -88;
    simulation::Scenario world = RichWorld();
    world.accessPoints[0].rssi = kAlmostGone;
    return Furnished(world);
}

/// Where the WLAN service can be started.
simulation::Scenario Stopped()
{
    simulation::Scenario world = Connected();
    world.serviceRunning = false;
    return world;
}

constexpr World kWorlds[] = {
    {"connected", Connected}, {"disconnected", Disconnected}, {"wandering", Wandering}, {"stopped", Stopped}};

} // namespace

std::span<const World> Worlds()
{
    return kWorlds;
}

} // namespace calvix::test::sweep
