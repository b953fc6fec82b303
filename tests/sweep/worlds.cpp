#include "sweep/worlds.h"

#include "support/test_worlds.h"

namespace calvix::test::sweep
{

namespace
{

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
