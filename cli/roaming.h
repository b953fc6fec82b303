#pragma once

#include "facts.h"
#include "host.h"

namespace calvix::host
{

/// Asks the library whether to move to a better access point of the current network, and where to; without `dryRun` the
/// library asks the service for it at once. What stands in the way of a decision is in the facts; a client handle that
/// cannot be opened is a Failure.
RoamFacts Roam(Host& host, bool dryRun);

} // namespace calvix::host
