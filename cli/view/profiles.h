#pragma once

#include "host/host.h"
#include "output/facts.h"

namespace calvix::host
{

/// The stored profiles of the adapter, the preferred one first.
std::vector<ProfileFacts> ReadProfiles(Host& host);

} // namespace calvix::host
