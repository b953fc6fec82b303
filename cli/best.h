#pragma once

#include "facts.h"
#include "host.h"

namespace calvix::host
{

/// What ConnectBestAP would ask for, in its order and with its scores. Nothing is asked of the service.
std::vector<CandidateFacts> BestCandidates(Host& host);

} // namespace calvix::host
