#pragma once

#include "simulation/scenario.h"

namespace calvix::host
{

/// Replaces names, addresses and GUIDs with invented ones, as recordings do.
void Anonymise(simulation::Scenario& scenario);

} // namespace calvix::host
