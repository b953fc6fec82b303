#pragma once

#include "testing/test_computer.h"

#include <calvix/testing/computer.h>

namespace calvix::testing
{

/// What Calvix's own tests need of a Computer beside its public members.
struct ComputerInternals
{
    static std::unique_ptr<Computer> Make(const simulation::Scenario& scenario);
    static test::TestComputer& Inside(Computer& computer);
    static simulation::Computer& Simulated(Computer& computer) { return Inside(computer).computer(); }
};

} // namespace calvix::testing
