// Scenario files: whatever loads can be written, loads again as the same, and makes a computer.

#include "promise.h"
#include "targets.h"

#include "simulation/computer.h"

namespace calvix::fuzz
{

void RunScenario(const std::uint8_t* data, std::size_t size)
{
    using simulation::Scenario;
    Scenario scenario;
    try
    {
        scenario = simulation::ParseScenario(std::string(reinterpret_cast<const char*>(data), size), "the input");
    }
    catch (const simulation::ScenarioError& error)
    {
        Promise(std::string(error.what()).starts_with("the input: "), "a refusal names the file");
        return;
    }
    const std::string written = simulation::WriteScenario(scenario);
    const Scenario again = simulation::ParseScenario(written, "what was written");
    Promise(again == scenario, "a scenario that was written loads as the same");
    Promise(simulation::WriteScenario(again) == written, "a scenario is always written the same");
    simulation::Computer computer(scenario);
    const simulation::Accounts accounts = computer.Audit();
    Promise(accounts.liveBlocks == 0 && accounts.defects.empty(), "a new computer holds nothing");
}

} // namespace calvix::fuzz
