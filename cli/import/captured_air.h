#pragma once

#include "import/netsh_networks.h"
#include "simulation/scenario.h"

#include <vector>

namespace calvix::host
{

/// The access points of a capture, each once. One that several adapters heard is as strong as it was heard best; one that
/// is listed with and without its name is a hidden network that answered somebody who knew the name.
std::vector<simulation::AccessPoint> AirOf(const NetworksCapture& capture);

/// The access point of an address, or null.
simulation::AccessPoint* FindAccessPoint(std::vector<simulation::AccessPoint>& air,
                                         const simulation::MacAddress& address);

} // namespace calvix::host
