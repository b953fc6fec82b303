#include "simulation/computer.h"
#include "simulation/scenario.h"

namespace calvix::platform
{

Platform& DefaultPlatform()
{
    static simulation::Computer computer(simulation::BuiltInScenario());
    return computer;
}

} // namespace calvix::platform
