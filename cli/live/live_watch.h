#pragma once

#include "host/host.h"
#include "output/facts.h"

namespace calvix::host
{

struct LiveOptions
{
    unsigned seconds = 0;   ///< 0: until Ctrl-C, a minute on a simulated computer
    unsigned speed = 0;     ///< simulated seconds in a second; 0: one on a terminal, as many as can be elsewhere
    unsigned roamEvery = 0; ///< seconds between two calls of Roaming, 0: none
    bool dryRun = false;    ///< decide only, do not roam
};

/// The link now.
SignalFacts ReadSignal(Host& host);

/// Shows notifications and the signal until the time is over or Ctrl-C is pressed.
void WatchLive(Host& host, const LiveOptions& options);

} // namespace calvix::host
