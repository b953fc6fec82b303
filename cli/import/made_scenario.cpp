#include "import/made_scenario.h"

#include "files/files.h"
#include "forms/guid_text.h"
#include "output/json_output.h"
#include "simulation/computer.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// What `calvix networks` will list.
std::size_t ListedNetworks(const simulation::Scenario& scenario)
{
    if (scenario.adapters.empty())
        return 0;
    simulation::Computer computer(scenario);
    const GUID adapter = *forms::GuidFromText(scenario.adapters.front().guid);
    DWORD version = 0;
    HANDLE client = nullptr;
    WLAN_AVAILABLE_NETWORK_LIST* list = nullptr;
    computer.wlan().WlanOpenHandle(2, nullptr, &version, &client);
    computer.wlan().WlanGetAvailableNetworkList(client, &adapter, 0, nullptr, &list);
    const std::size_t count = list != nullptr ? list->dwNumberOfItems : 0;
    computer.wlan().WlanFreeMemory(list);
    computer.wlan().WlanCloseHandle(client, nullptr);
    return count;
}

/// The text for the file, known to be readable again.
std::string CheckedText(const simulation::Scenario& scenario)
{
    try
    {
        std::string text = simulation::WriteScenario(scenario);
        simulation::ParseScenario(text, "the scenario");
        return text;
    }
    catch (const simulation::ScenarioError& error)
    {
        throw BadInput(error.what());
    }
}

void PrintCounts(std::ostream& out, const ScenarioCounts& counts)
{
    out << "Adapters       " << counts.adapters << "\n"
        << "Access points  " << counts.accessPoints << " (" << counts.hidden << " hidden)\n"
        << "Networks       " << counts.networks << "\n"
        << "Profiles       " << counts.profiles << "\n";
}

} // namespace

void MadeScenario::Warn(const std::string& text)
{
    if (std::find(warnings.begin(), warnings.end(), text) == warnings.end())
        warnings.push_back(text);
}

ScenarioCounts CountScenario(const simulation::Scenario& scenario)
{
    ScenarioCounts counts;
    for (const simulation::AdapterDescription& adapter : scenario.adapters)
        counts.profiles += adapter.profiles.size();
    counts.adapters = scenario.adapters.size();
    counts.accessPoints = scenario.accessPoints.size();
    counts.networks = ListedNetworks(scenario);
    counts.hidden = static_cast<std::size_t>(std::count_if(scenario.accessPoints.begin(), scenario.accessPoints.end(),
                                                           [](const auto& each) { return each.hidden; }));
    return counts;
}

void WriteMadeScenario(Host& host, const MadeScenario& made, const std::string& output)
{
    const std::string text = CheckedText(made.scenario);
    const bool toStandardOutput = output == kStandardOutput;
    if (toStandardOutput)
        host.out() << text;
    else
        WriteWholeFile(output, text);
    for (const std::string& warning : made.warnings)
        host.err() << "warning: " << warning << "\n";
    // The scenario itself has standard output then.
    std::ostream& out = toStandardOutput ? host.err() : host.out();
    const ScenarioCounts counts = CountScenario(made.scenario);
    if (host.json())
        return PrintJson(out, ImportFacts{counts, made.warnings, output});
    PrintCounts(out, counts);
    if (!toStandardOutput)
        out << "Written to     " << output << "\n";
}

} // namespace calvix::host
