#pragma once

#include "host/host.h"
#include "output/facts.h"

namespace calvix::host
{

/// The method that decides only, or that moves too.
const char* RoamMethod(bool dryRun);

/// Asks the library whether to move to a better access point of the current network, and where to; without `dryRun` the
/// library asks the service for it at once. An obstacle to a decision is in the facts; a client handle that
/// cannot be opened is a Failure.
RoamFacts Roam(Host& host, bool dryRun);

} // namespace calvix::host
