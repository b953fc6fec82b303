#pragma once

#include "host/host.h"
#include "output/facts.h"

namespace calvix::host
{

/// What ConnectBestAP is not to choose.
struct Exclusions
{
    std::string profile;
    std::vector<std::string> ssids; ///< or their beginnings, as arguments name them
};

/// Has the library join the best network; its result.
int ConnectBest(Host& host, const Exclusions& excluded);

/// What ConnectBestAP would ask for, in its order and with its scores. Nothing is asked of the service.
std::vector<CandidateFacts> BestCandidates(Host& host, const Exclusions& excluded = {});

} // namespace calvix::host
