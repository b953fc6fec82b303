#pragma once

#include "host/host.h"
#include "output/facts.h"
#include "simulation/scenario.h"

#include <string>
#include <vector>

namespace calvix::host
{

/// A scenario that was made of what is known of a computer.
struct MadeScenario
{
    simulation::Scenario scenario;
    std::vector<std::string> warnings; ///< what the scenario leaves out or guesses

    /// Says once what is true of several adapters or access points.
    void Warn(const std::string& text);
};

ScenarioCounts CountScenario(const simulation::Scenario& scenario);

/// Writes the scenario, where `output` is "-" to standard output, and shows its warnings and what it holds.
void WriteMadeScenario(Host& host, const MadeScenario& made, const std::string& output);

} // namespace calvix::host
