#pragma once

#include "import/netsh_networks.h"
#include "simulation/scenario.h"

#include <cstdint>

namespace calvix::host
{

/// Puts an access point into the network of its name, after those that are there.
void AddHeard(NetworksCapture& capture, const simulation::AccessPoint& accessPoint);

/// A connection that a list of networks shows.
void AddConnection(NetworksCapture& capture, const simulation::AccessPoint& accessPoint);

/// The PHY type of an access point of which nothing newer is known: by its band and its highest rate.
std::uint32_t OldPhyType(std::uint32_t frequencyKhz, double highestRate);

/// The frequency of a megahertz value that a tool printed, 0 for one that no channel has.
std::uint32_t FrequencyFromMegahertz(std::string_view text);

} // namespace calvix::host
