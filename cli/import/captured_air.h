#pragma once

#include "import/netsh_networks.h"
#include "simulation/scenario.h"

#include <string>
#include <vector>

namespace calvix::host
{

/// The access points of a capture, each once. One that several adapters heard is as strong as it was heard best; one that
/// is listed with and without its name is a hidden network that answered somebody who knew the name. Those that differ
/// although they have one address stay apart, under a made-up one. The warnings say what was merged and made up.
std::vector<simulation::AccessPoint> AirOf(const NetworksCapture& capture, std::vector<std::string>& warnings);

/// The access point of an address, or null.
simulation::AccessPoint* FindAccessPoint(std::vector<simulation::AccessPoint>& air,
                                         const simulation::MacAddress& address);

} // namespace calvix::host
