#pragma once

#include "simulation/scenario.h"

namespace calvix::simulation
{

/// The information elements in which an access point announces the width of its channel and what its PHY can do, two spatial
/// streams each: those of HT, VHT, HE and EHT as far as its PHY has them. None if the scenario has no width.
Bytes ChannelElements(const AccessPoint& accessPoint);

/// Appends one element: its number, its length and its content.
void AppendElement(Bytes& elements, std::uint8_t id, const Bytes& content);

} // namespace calvix::simulation
