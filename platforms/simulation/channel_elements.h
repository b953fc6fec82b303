#pragma once

#include "simulation/scenario.h"

namespace calvix::simulation
{

/// The information elements by which an access point tells how wide its channel is and what its PHY can do, two spatial
/// streams each: those of HT, VHT, HE and EHT as far as its PHY has them. None where the scenario tells no width.
Bytes ChannelElements(const AccessPoint& accessPoint);

} // namespace calvix::simulation
