#include "simulation/machine.h"

#include <algorithm>

namespace calvix::simulation
{

Machine::Machine(const Scenario& scenario)
    : description(scenario.description), codePage(scenario.codePage), serviceRunning(scenario.serviceRunning),
      locationConsent(scenario.locationConsent), air(scenario.accessPoints)
{
    for (const AdapterDescription& adapter : scenario.adapters)
    {
        adapters.push_back(std::make_unique<Adapter>(adapter, Surroundings{time, air, serviceRunning}));
        if (FindAdapter(adapters.back()->Guid()) != adapters.back().get())
        {
            throw ScenarioError("adapter " + adapter.guid + ": another adapter has this GUID");
        }
    }
}

Adapter* Machine::FindAdapter(const GUID& guid) const
{
    const auto found = std::find_if(adapters.begin(), adapters.end(),
                                    [&guid](const auto& adapter) { return adapter->Guid() == guid; });
    return found == adapters.end() ? nullptr : found->get();
}

bool Machine::IsConnected() const
{
    return std::any_of(adapters.begin(), adapters.end(),
                       [](const auto& adapter) { return adapter->CurrentLink() != nullptr; });
}

} // namespace calvix::simulation
