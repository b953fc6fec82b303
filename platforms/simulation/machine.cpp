#include "simulation/machine.h"

#include "simulation/notification_records.h"

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

Machine::Machine(const Scenario& scenario)
    : description(scenario.description), codePage(scenario.codePage), serviceRunning(scenario.serviceRunning),
      locationConsent(scenario.locationConsent), administrator(scenario.administrator),
      powerSetting(scenario.powerSetting), air(scenario.accessPoints)
{
    for (const AdapterDescription& adapter : scenario.adapters)
    {
        adapters.push_back(std::make_unique<Adapter>(adapter, Surroundings{time, air, serviceRunning, notifier}));
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

void Machine::SetPowerSetting(WLAN_POWER_SETTING setting)
{
    if (std::exchange(powerSetting, static_cast<DWORD>(setting)) != static_cast<DWORD>(setting) && serviceRunning)
    {
        notifier.Post(
            {WLAN_NOTIFICATION_SOURCE_ACM, wlan_notification_acm_power_setting_change, GUID{}, RecordBytes(setting)});
    }
}

} // namespace calvix::simulation
