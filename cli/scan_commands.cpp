#include "command.h"
#include "describe.h"
#include "failure_words.h"
#include "host.h"
#include "json_output.h"
#include "service_view.h"
#include "table.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr unsigned kPollMilliseconds = 250;
/// Drivers finish a scan within four seconds; a list that is empty or unchanged by then has nothing to add.
constexpr unsigned kLongestScanMilliseconds = 4000;
/// A driver reports access points as it finds them: the list is whole when it has rested for a while.
constexpr unsigned kRestMilliseconds = 1000;

struct ScanOptions
{
    unsigned seconds = 10;
};

/// What changes when the service has heard something new.
struct Heard
{
    std::size_t entries = 0;
    ULONGLONG latest = 0;

    bool operator==(const Heard&) const = default;
};

Heard WhatWasHeard(Host& host)
{
    const std::vector<WLAN_BSS_ENTRY> entries = host.service().AccessPoints(host.adapterGuid());
    Heard heard;
    heard.entries = entries.size();
    for (const WLAN_BSS_ENTRY& entry : entries)
        heard.latest = (std::max)(heard.latest, entry.ullHostTimestamp);
    return heard;
}

/// Waits until the list has changed and come to rest again.
ScanFacts WaitForScan(Host& host, const Heard& before, unsigned timeout)
{
    ScanFacts scan;
    Heard last = before;
    unsigned rested = 0;
    while (scan.milliseconds < timeout)
    {
        host.Wait(kPollMilliseconds);
        scan.milliseconds += kPollMilliseconds;
        const Heard now = WhatWasHeard(host);
        rested = now == last ? rested + kPollMilliseconds : 0;
        last = now;
        scan.accessPoints = now.entries;
        const bool somethingNew = !(now == before);
        const bool nothingThere = now.entries == 0 && scan.milliseconds >= kLongestScanMilliseconds;
        scan.completed = (somethingNew && rested >= kRestMilliseconds) || nothingThere;
        if (scan.completed)
            break;
    }
    return scan;
}

void Scan(Host& host, const ScanOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    unsigned long error = 0;
    host.Check("Rescan", host.library().Rescan(adapter, error));
    const Heard before = WhatWasHeard(host);
    if (host.terminal().isTerminal)
        host.err() << "Scanning ...\n";
    const ScanFacts scan = WaitForScan(host, before, options.seconds * 1000);
    if (!scan.completed)
        throw OperationFailure("the scan was not done within " + Counted(options.seconds, "second"),
                               "wait longer with --timeout; the lists still show what was heard before");
    if (host.json())
        return PrintJson(host.out(), scan);
    host.out() << "Scan done after " << scan.milliseconds / 1000.0
               << " s: " << Counted(scan.accessPoints, "access point") << " in view.\n";
}

Cell NameCell(const NetworkFacts& network)
{
    if (network.ssid.hex.empty())
        return {"(hidden)", Tone::faint};
    return {network.ssid.text, network.connected ? Tone::strong : Tone::plain};
}

Cell NoteCell(const NetworkFacts& network)
{
    if (network.connected)
        return {"connected", Tone::good};
    if (!network.connectable)
        return {"cannot be joined: " + network.reason, Tone::poor};
    return "";
}

void PrintNetworks(Host& host, const std::vector<NetworkFacts>& networks)
{
    Table table(
        {{"SSID"}, {"Signal"}, {"Quality", Align::right}, {"Security"}, {"APs", Align::right}, {"Profile"}, {"Note"}});
    for (const NetworkFacts& network : networks)
    {
        table.AddRow({NameCell(network), SignalBars(network.quality, host.terminal()), std::to_string(network.quality),
                      network.security, std::to_string(network.accessPoints), network.profile, NoteCell(network)});
    }
    table.Print(host.out(), host.terminal());
}

void ListNetworks(Host& host)
{
    const GUID* const adapter = host.adapterGuid();
    host.Check("GetAvailableNetworkCount", host.library().GetAvailableNetworkCount(adapter));
    std::vector<NetworkFacts> networks;
    for (const WLAN_AVAILABLE_NETWORK& network : host.service().Networks(adapter))
        networks.push_back(DescribeNetwork(network));
    if (host.json())
        return PrintJson(host.out(), networks);
    if (networks.empty())
        host.out() << "No network is in view. Scan with: calvix scan\n";
    else
        PrintNetworks(host, networks);
}

void ListAccessPoints(Host& host)
{
    const auto accessPoints = DescribeAccessPoints(host.service().AccessPoints(host.adapterGuid()));
    if (host.json())
        return PrintJson(host.out(), accessPoints);
    if (accessPoints.empty())
        host.out() << "No access point is in view. Scan with: calvix scan\n";
    else
        PrintAccessPoints(host, accessPoints);
}

} // namespace

void AddScanCommands(CommandSet& commands)
{
    const auto options = std::make_shared<ScanOptions>();
    commands.Add("scan", "Ask for a scan and wait until it is done", [options](Host& host) { Scan(host, *options); })
        .Number("--timeout", options->seconds, "Seconds to wait at most");
    commands.Add("networks", "List the visible networks, one line for each and each matching profile", ListNetworks);
    commands.Add("bss", "List the access points in view", ListAccessPoints);
}

} // namespace calvix::host
