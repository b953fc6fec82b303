#include "simulation/machine.h"

#include "forms/utf8.h"
#include "simulation/narrow_encoding.h"

#include <algorithm>
#include <utility>

namespace calvix::simulation
{

namespace
{

constexpr std::uint64_t kInterruptUnitsPerMillisecond = 10'000;
constexpr std::uint32_t kUtf8CodePage = 65001;

} // namespace

Machine::Machine(const Scenario& scenario)
    : present(scenario), powerStore(present.power), wokenByItself(scenario.power.resumesAutomatically),
      processes(present, time)
{
    present.adapters.clear();
    for (const AdapterDescription& adapter : scenario.adapters)
    {
        adapters.push_back(std::make_unique<Adapter>(
            adapter, Surroundings{time, present.accessPoints, present.serviceRunning, notifier}));
        if (FindAdapter(adapters.back()->Guid()) != adapters.back().get())
            throw ScenarioError("adapter " + adapter.guid + ": another adapter has this GUID");
    }
}

Adapter* Machine::FindAdapter(const GUID& guid) const
{
    const auto found = std::find_if(adapters.begin(), adapters.end(),
                                    [&guid](const auto& adapter) { return adapter->Guid() == guid; });
    return found == adapters.end() ? nullptr : found->get();
}

std::uint64_t Machine::InterruptTime() const
{
    return (present.power.upMilliseconds + static_cast<std::uint64_t>(time.Now().count())) *
           kInterruptUnitsPerMillisecond;
}

bool Machine::IsPrivilegeEnabled(std::string_view name) const
{
    return std::any_of(present.privileges.begin(), present.privileges.end(),
                       [name](const Privilege& each) { return each.enabled && each.name == name; });
}

std::string Machine::NarrowFromUtf8(std::string_view text) const
{
    bool replaced = false;
    return present.codePage == kUtf8CodePage
               ? std::string(text)
               : EncodeNarrow(present.codePage, forms::WideFromUtf8(text), '?', false, replaced);
}

std::string Machine::Utf8FromNarrow(std::string_view text) const
{
    bool illFormed = false;
    return present.codePage == kUtf8CodePage ? std::string(text)
                                             : forms::Utf8FromWide(DecodeNarrow(present.codePage, text, illFormed));
}

void Machine::SetPowerSetting(WLAN_POWER_SETTING setting)
{
    const auto number = static_cast<std::uint32_t>(setting);
    if (std::exchange(present.powerSetting, number) != number && present.serviceRunning)
    {
        notifier.Post(
            {WLAN_NOTIFICATION_SOURCE_ACM, wlan_notification_acm_power_setting_change, GUID{}, RecordBytes(setting)});
    }
}

} // namespace calvix::simulation
