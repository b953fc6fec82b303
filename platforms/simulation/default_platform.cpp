// The computer that programs see which are linked with libcalvix.so: it lives in real time, since these programs wait in
// real time, and the environment says what it is.

#include "simulation/computer.h"
#include "simulation/real_time.h"
#include "simulation/scenario.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>

namespace calvix::platform
{

namespace
{

struct RunningComputer
{
    RunningComputer(const simulation::Scenario& scenario, unsigned int speed)
        : computer(scenario), time(computer, speed)
    {
        time.KeepGoing();
    }

    simulation::Computer computer;
    simulation::RealTime time;
};

std::string EnvironmentText(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

std::unique_ptr<RunningComputer> StartChosen()
{
    const unsigned int speed = simulation::ReadSpeed(EnvironmentText("CALVIX_SPEED"), "CALVIX_SPEED");
    const std::string file = EnvironmentText("CALVIX_SCENARIO");
    return std::make_unique<RunningComputer>(
        file.empty() ? simulation::BuiltInScenario() : simulation::LoadScenario(file), speed);
}

// Another scenario in place of the one that was asked for would mislead; a computer without anything does not, and the
// program fails in its own way.
std::unique_ptr<RunningComputer> StartWithoutAnything()
{
    simulation::Scenario nothing;
    nothing.serviceRunning = false;
    return std::make_unique<RunningComputer>(nothing, 1);
}

std::unique_ptr<RunningComputer> Start()
{
    try
    {
        return StartChosen();
    }
    catch (const std::exception& problem)
    {
        std::fprintf(stderr, "libcalvix.so: %s; there is no adapter and no WLAN service\n", problem.what());
        return StartWithoutAnything();
    }
}

} // namespace

Platform& DefaultPlatform()
{
    static const std::unique_ptr<RunningComputer> running = Start();
    return running->computer;
}

} // namespace calvix::platform
