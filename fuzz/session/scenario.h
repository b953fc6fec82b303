#pragma once

#include "input.h"

#include "simulation/scenario.h"

#include <string>

namespace calvix::fuzz::session
{

/// A small computer, its adapters being those of the tests' scenarios.
simulation::Scenario MakeScenario(Input& input);

/// A name that networks and profiles share.
std::string NetworkName(Input& input);

/// A profile of such a name.
std::string ProfileDocument(Input& input);

} // namespace calvix::fuzz::session
