#pragma once

#include "simulation/scenario.h"

#include <string>

namespace calvix::dropin
{

/// What the process is to be shown.
struct Settings
{
    simulation::Scenario scenario;
    unsigned int speed = 1; ///< how many times as fast as real time the simulated time passes
};

/// Reads the environment: CALVIX_SCENARIO, the path of a scenario file, and CALVIX_SPEED. Where no file is named, it is
/// wlanapi.scenario.json in `folder`; where there is none, the built-in scenario. Throws std::runtime_error with a
/// message in UTF-8 that names the file or the variable, and the problem.
Settings ReadSettings(const std::wstring& folder);

} // namespace calvix::dropin
