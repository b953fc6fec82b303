#pragma once

#include "facts.h"
#include "host.h"

namespace calvix::host
{

/// The stored profiles of the adapter, the preferred one first.
std::vector<ProfileFacts> ReadProfiles(Host& host);

} // namespace calvix::host
