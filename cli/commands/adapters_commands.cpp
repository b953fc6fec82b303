#include "commands/commands.h"
#include "host/host.h"
#include "output/json_output.h"
#include "output/table.h"
#include "output/text_forms.h"
#include "view/describe.h"
#include "view/status.h"

namespace calvix::host
{

namespace
{

void ListAdapters(Host& host)
{
    std::vector<AdapterFacts> adapters;
    for (const WLAN_INTERFACE_INFO& info : host.adapters())
        adapters.push_back(DescribeAdapter(info, static_cast<unsigned>(adapters.size() + 1)));
    if (host.json())
        return PrintJson(host.out(), Under("adapters", adapters));

    Table table({{"#", Align::right}, {"Description"}, {"State"}, {"GUID"}});
    for (const AdapterFacts& adapter : adapters)
    {
        const Tone tone = IsConnectedState(static_cast<WLAN_INTERFACE_STATE>(adapter.state)) ? Tone::good : Tone::plain;
        table.AddRow({std::to_string(adapter.number),
                      VisibleText(adapter.description),
                      {adapter.stateText, tone},
                      adapter.guid});
    }
    table.Print(host.out(), host.terminal());
}

} // namespace

void AddAdapterCommands(CommandSet& commands)
{
    commands.Add("adapters", "List the wireless adapters and their states", ListAdapters)
        .Prints("adapters", [] { return std::vector{Under("adapters", std::vector<AdapterFacts>{})}; })
        .Examples("Numbers for --interface:\n"
                  "  calvix adapters");
}

} // namespace calvix::host
