#include "commands/commands.h"
#include "live/live_watch.h"
#include "output/json_output.h"

#include <memory>

namespace calvix::host
{

void AddWatchCommand(CommandSet& commands)
{
    const auto options = std::make_shared<LiveOptions>();
    commands
        .Add("watch", "Show the service's notifications and the signal as they come, until Ctrl-C", options, WatchLive)
        .Number("--for", options->seconds, "Seconds to watch; 0: until Ctrl-C, a minute on a simulated computer")
        .Number("--speed", options->speed,
                "Simulated seconds per second; 0: one on a terminal, as fast as possible elsewhere")
        .Number("--roam", options->roamEvery, "Decide about roaming every N seconds; 0: never")
        .Prints("watch", LiveRecords)
        .Examples("A minute of the signal, a JSON object a line:\n"
                  "  calvix watch --for 60 --json");
}

} // namespace calvix::host
