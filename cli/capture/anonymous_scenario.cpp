#include "capture/anonymous_scenario.h"

#include "output/text_forms.h"
#include "simulation/profile_document.h"
#include "wrappers/recording/anonymiser.h"

namespace calvix::host
{

namespace
{

using simulation::AccessPoint;
using simulation::AdapterDescription;
using simulation::StoredProfile;

template <typename Bytes>
std::string TextOf(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

void Learn(recording::Anonymiser& names, const simulation::Scenario& scenario)
{
    for (const AdapterDescription& adapter : scenario.adapters)
    {
        names.LearnGuid(adapter.guid);
        names.LearnAdapter(adapter.description);
        for (const StoredProfile& profile : adapter.profiles)
        {
            simulation::ProfileRefusal ignored{};
            const auto document = simulation::ParseProfile(profile.xml, ignored);
            names.LearnNetwork(Narrow(document->name));
            names.LearnNetwork(TextOf(document->ssid));
        }
    }
    for (const AccessPoint& point : scenario.accessPoints)
    {
        names.LearnNetwork(TextOf(point.ssid));
        names.LearnAddress(point.bssid);
    }
}

template <typename Bytes>
void Replace(const recording::Anonymiser& names, Bytes& bytes)
{
    const std::string text = names.InText(TextOf(bytes));
    if constexpr (requires { bytes.resize(text.size()); })
        bytes.resize(text.size());
    std::copy(text.begin(), text.end(), bytes.begin());
}

void Replace(const recording::Anonymiser& names, AdapterDescription& adapter)
{
    adapter.guid = "{" + names.InText(adapter.guid.substr(1, adapter.guid.size() - 2)) + "}";
    Replace(names, adapter.description);
    for (StoredProfile& profile : adapter.profiles)
        Replace(names, profile.xml);
    if (!adapter.connection)
        return;
    Replace(names, adapter.connection->profile);
    Replace(names, *adapter.connection->bssid);
}

} // namespace

void Anonymise(simulation::Scenario& scenario)
{
    recording::Anonymiser names;
    Learn(names, scenario);
    for (AdapterDescription& adapter : scenario.adapters)
        Replace(names, adapter);
    for (AccessPoint& point : scenario.accessPoints)
    {
        Replace(names, point.ssid);
        Replace(names, point.bssid);
        const std::string elements = recording::ElementsWithoutNames(TextOf(point.informationElements));
        point.informationElements.assign(elements.begin(), elements.end());
    }
}

} // namespace calvix::host
