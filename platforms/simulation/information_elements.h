#pragma once

#include "simulation/heard_bss.h"

namespace calvix::simulation
{

/// The content of an access point's beacons. By default it is derived from the other facts: SSID,
/// rates, the channel in the 2.4 GHz band, how the network is secured, and how wide the channel is.
Bytes InformationElements(const HeardBss& bss);

/// Legacy rates of an access point's band, in 500 kbit/s, the basic ones with their highest bit set.
Bytes SupportedRates(const AccessPoint& accessPoint);

} // namespace calvix::simulation
