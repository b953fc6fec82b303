#pragma once

#include "simulation/scenario.h"

#include <span>

namespace calvix::test::sweep
{

/// A computer on which every method finds something to do.
struct NamedScenario
{
    const char* name;
    simulation::Scenario (*make)();
};

/// Between them they take every method through all the platform calls that no failure brings about.
std::span<const NamedScenario> Scenarios();

} // namespace calvix::test::sweep
