#include "commands/commands.h"
#include "explain/failure_words.h"
#include "host/host.h"
#include "host/service_view.h"
#include "live/connection_wait.h"
#include "live/notifications.h"
#include "live/progress.h"
#include "output/json_output.h"
#include "output/table.h"
#include "output/text_forms.h"
#include "report/channel_load.h"
#include "report/report_json.h"
#include "report/spectrum_chart.h"
#include "report/take_picture.h"
#include "view/describe.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>

namespace calvix::host
{

namespace
{

constexpr const char* kNoAccessPoint = "No access point is in view. Scan with: calvix scan\n";

struct ScanFacts
{
    bool completed = false;
    unsigned milliseconds = 0; ///< waited
    std::size_t accessPoints = 0;
};

JsonRecord Describe(const ScanFacts& scan)
{
    return JsonRecord()
        .Add("completed", scan.completed)
        .Add("milliseconds", scan.milliseconds, {"Waited"})
        .Add("accessPoints", scan.accessPoints);
}

struct ScanOptions
{
    unsigned seconds = 10;
    bool chart = false;
    bool scanFirst = false;
    std::string order = "signal";
};

/// How the adapter's scan ended; none: it has not.
std::optional<Notice> EndOfScan(const std::vector<Notice>& notices, const GUID& adapter)
{
    for (const Notice& notice : notices)
        if (IsEqualGUID(notice.adapter, adapter) &&
            (notice.code == wlan_notification_acm_scan_complete || notice.code == wlan_notification_acm_scan_fail))
            return notice;
    return std::nullopt;
}

ScanFacts ScanAndWait(Host& host, unsigned seconds)
{
    const GUID* const adapter = host.adapterGuid();
    Notifications notifications(host);
    unsigned long error = 0;
    host.Check("Rescan", host.manager().Rescan(adapter, error));
    ScanFacts scan;
    std::optional<Notice> end;
    const Progress progress(host, "Scanning");
    scan.completed = WaitUntil(
        host, seconds,
        [&]
        {
            end = EndOfScan(notifications.Take(), *adapter);
            return end.has_value();
        },
        &scan.milliseconds);
    if (end && end->code == wlan_notification_acm_scan_fail)
        throw ReasonFailure(host, "the scan failed", end->reason);
    if (!scan.completed)
        throw OperationFailure("the scan timed out after " + Counted(seconds, "second"),
                               "wait longer with --timeout; the lists still show what was heard before");
    return scan;
}

void Scan(Host& host, const ScanOptions& options)
{
    ScanFacts scan = ScanAndWait(host, options.seconds);
    scan.accessPoints = host.service().AccessPoints(host.adapterGuid()).size();
    if (host.json())
        return PrintJson(host.out(), Under("scan", scan));
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
                      network.security, std::to_string(network.accessPoints), VisibleText(network.profile),
                      NoteCell(network)});
    }
    table.Print(host.out(), host.terminal());
}

void PrintAccessPoints(Host& host, const std::vector<AirAccessPoint>& accessPoints)
{
    std::vector<Column> columns = AccessPointColumns();
    columns.insert(columns.end(), {{"Width", Align::right}, {"Security"}, {"Note"}});
    Table table(columns);
    for (const AirAccessPoint& point : accessPoints)
    {
        std::vector<Cell> row = AccessPointRow(host, point.facts);
        row.push_back(std::to_string(point.beacon.widthMhz) + " MHz");
        row.push_back(point.beacon.security);
        row.push_back(point.inUse ? Cell("connected", Tone::good) : "");
        table.AddRow(row);
    }
    table.Print(host.out(), host.terminal());
}

/// The lists hold what was heard up to now, and the service scans once a minute.
void ScanIfAsked(Host& host, const ScanOptions& options)
{
    if (options.scanFirst)
        ScanAndWait(host, options.seconds);
}

void ListNetworks(Host& host, const ScanOptions& options)
{
    const GUID* const adapter = host.adapterGuid();
    ScanIfAsked(host, options);
    host.Check("GetAvailableNetworkCount", host.manager().GetAvailableNetworkCount(adapter));
    std::vector<NetworkFacts> networks;
    for (const WLAN_AVAILABLE_NETWORK& network : host.service().Networks(adapter))
        networks.push_back(DescribeNetwork(network));
    if (options.order == "name")
        std::ranges::stable_sort(networks, {}, [](const NetworkFacts& network) { return network.ssid.text; });
    else
        std::ranges::stable_sort(networks, std::greater(), &NetworkFacts::quality);
    if (host.json())
        return PrintJson(host.out(), Under("networks", networks));
    if (networks.empty())
        host.out() << "No network is in view. Scan with: calvix scan\n";
    else
        PrintNetworks(host, networks);
}

void ListAccessPoints(Host& host, const ScanOptions& options)
{
    ScanIfAsked(host, options);
    std::vector<AirAccessPoint> accessPoints = ArrangedAir(host); // by signal
    if (options.order == "channel")
        std::ranges::stable_sort(accessPoints, {},
                                 [](const AirAccessPoint& point) { return point.facts.frequencyKhz; });
    else if (options.order == "name")
        std::ranges::stable_sort(accessPoints, {}, [](const AirAccessPoint& point) { return point.facts.ssid.text; });
    if (host.json())
        return PrintJson(host.out(), Under("accessPoints", accessPoints));
    if (accessPoints.empty())
        host.out() << kNoAccessPoint;
    else if (options.chart)
        PrintSpectrum(host, accessPoints);
    else
        PrintAccessPoints(host, accessPoints);
}

/// The channels of a band into which something reaches, and the least crowded one.
void PrintChannels(Output& output, const BandLoad& band)
{
    constexpr unsigned loadOfOneMark = 20;
    Table table(
        {{"Channel", Align::right}, {"APs", Align::right}, {"dBm", Align::right}, {"Load", Align::right}, {""}});
    for (const ChannelLoad& channel : band.channels)
    {
        const bool least = channel.channel == band.leastCrowded;
        if (channel.accessPoints == 0 && !least)
            continue;
        const std::string bar((channel.load + loadOfOneMark - 1) / loadOfOneMark, '#');
        table.AddRow({std::to_string(channel.channel), std::to_string(channel.accessPoints),
                      channel.strongest ? std::to_string(*channel.strongest) : "", std::to_string(channel.load),
                      least ? Cell(bar + (bar.empty() ? "" : " ") + "least crowded", Tone::good) : Cell(bar)});
    }
    output.out() << Toned(band.band, Tone::strong, output.terminal()) << '\n';
    table.Print(output.out(), output.terminal());
}

void ListChannels(Host& host, const ScanOptions& options)
{
    host.adapter();
    ScanIfAsked(host, options);
    const auto air = ListAir(host);
    const auto bands = MeasureBands(air);
    if (host.json())
        return PrintJson(host.out(), Under("bands", bands));
    if (air.empty())
        host.out() << kNoAccessPoint;
    const char* gap = "";
    for (const BandLoad& band : bands)
    {
        const auto isHeard = [](const ChannelLoad& channel) { return channel.accessPoints != 0; };
        if (!std::any_of(band.channels.begin(), band.channels.end(), isHeard))
            continue;
        host.out() << std::exchange(gap, "\n");
        PrintChannels(host, band);
    }
}

constexpr const char* kScanHelp = "Scan first, and wait until it is done";
constexpr const char* kScanTimeoutHelp = "Maximum seconds to wait for the scan";
constexpr const char* kSortHelp = "What to sort by (default: signal, the strongest first)";

} // namespace

void AddScanCommands(CommandSet& commands)
{
    const auto options = std::make_shared<ScanOptions>();
    commands.Add("scan", "Scan, and wait until the scan is done", options, Scan)
        .Number("--timeout", options->seconds, "Maximum seconds to wait")
        .Prints("scan", [] { return std::vector{Under("scan", ScanFacts{})}; })
        .Examples("For a slow driver:\n"
                  "  calvix scan --timeout 30");
    commands
        .Add("networks", "List the visible networks, one line for each and each matching profile", options,
             ListNetworks)
        .Flag("--scan", options->scanFirst, kScanHelp)
        .Number("--timeout", options->seconds, kScanTimeoutHelp)
        .OneOf("--sort", options->order, {"signal", "name"}, kSortHelp)
        .Prints("networks", [] { return std::vector{Under("networks", std::vector<NetworkFacts>{})}; })
        .Examples("As they are now, not as they were at the service's last scan:\n"
                  "  calvix networks --scan");
    commands.Add("bss", "List the access points in view", options, ListAccessPoints)
        .Flag("--scan", options->scanFirst, kScanHelp)
        .Number("--timeout", options->seconds, kScanTimeoutHelp)
        .OneOf("--sort", options->order, {"signal", "channel", "name"}, kSortHelp)
        .Flag("--chart", options->chart, "Draw the spectrum, an arch for each access point")
        .Prints("bss", [] { return std::vector{Under("accessPoints", std::vector<AirAccessPoint>{})}; })
        .Examples("The spectrum as it is now:\n"
                  "  calvix bss --scan --chart");
    commands
        .Add("channels", "Show how crowded each channel is, and the least crowded of each band", options, ListChannels)
        .Flag("--scan", options->scanFirst, kScanHelp)
        .Number("--timeout", options->seconds, kScanTimeoutHelp)
        .Prints("channels", [] { return std::vector{Under("bands", std::vector<BandLoad>{})}; })
        .Examples("Which channel is best for an access point? The country's rules are not checked:\n"
                  "  calvix channels --scan");
}

} // namespace calvix::host
