#include "commands/commands.h"
#include "live/connection_wait.h"
#include "live/live_watch.h"
#include "output/json_output.h"
#include "view/roaming.h"
#include "view/status.h"

namespace calvix::host
{

namespace
{

struct RoamOptions
{
    LiveOptions live;
    unsigned timeout = 15;
};

void PrintRoam(Host& host, const RoamFacts& roam, bool dryRun)
{
    if (roam.decision == "stay")
        host.out() << "Stays at " << roam.from << ": " << roam.why << ".\n\n";
    else
        host.out() << (dryRun ? "Would move" : "Moved") << " from " << roam.from << " to " << roam.to << ".\n\n";
}

void RoamOnce(Host& host, const RoamOptions& options)
{
    const bool dryRun = options.live.dryRun;
    ConnectionWait wait(host);
    const RoamFacts roam = Roam(host, dryRun);
    if (roam.decision == "none")
        throw host.MethodFailure(RoamMethod(dryRun), roam.code);
    if (roam.decision == "roam" && !dryRun)
        wait.Finish(options.timeout);
    const StatusFacts status = ReadStatus(host);
    if (host.json())
        return PrintJson(host.out(), Under("roam", roam).Add("status", status));
    PrintRoam(host, roam, dryRun);
    PrintStatus(host, status);
}

void RoamCommand(Host& host, const RoamOptions& options)
{
    if (options.live.roamEvery == 0 && options.live.seconds != 0)
        throw BadInput("--for needs --every", "give the interval: --every SECONDS");
    if (options.live.roamEvery == 0)
        RoamOnce(host, options);
    else
        WatchLive(host, options.live);
}

constexpr const char* kDurationHelp = "Seconds to continue; 0: until Ctrl-C, a minute on a simulated computer";
constexpr const char* kSpeedHelp = "Simulated seconds per second; 0: one on a terminal, as fast as possible elsewhere";

} // namespace

void AddLiveCommands(CommandSet& commands)
{
    const auto roam = std::make_shared<RoamOptions>();
    commands.Add("roam", "Move to a better access point of the current network, if there is one", roam, RoamCommand)
        .Flag("--dry-run", roam->live.dryRun, "Decide only, do not move")
        .Number("--every", roam->live.roamEvery, "Continue, and decide every N seconds; 0: decide once")
        .Number("--for", roam->live.seconds, kDurationHelp)
        .Number("--speed", roam->live.speed, kSpeedHelp)
        .Number("--timeout", roam->timeout, "Maximum seconds to wait for the connection")
        .Prints("roam", [] { return std::vector{Under("roam", RoamFacts{}).Add("status", StatusFacts{})}; })
        .Examples("Would it move, and where to?\n"
                  "  calvix roam --dry-run\n"
                  "Look after the connection for an hour:\n"
                  "  calvix roam --every 10 --for 3600");

    const auto watch = std::make_shared<LiveOptions>();
    commands
        .Add("watch", "Show the service's notifications and the signal as they come, until Ctrl-C", watch, WatchLive)
        .Number("--for", watch->seconds, kDurationHelp)
        .Number("--speed", watch->speed, kSpeedHelp)
        .Number("--roam", watch->roamEvery, "Decide about roaming every N seconds; 0: never")
        .Prints("watch", LiveRecords)
        .Examples("A minute of the signal, a JSON object a line:\n"
                  "  calvix watch --for 60 --json");
}

} // namespace calvix::host
