#pragma once

#include "simulation/scenario.h"
#include "simulation/security_suite.h"

#include <calvix/platform_records.h>

#include <chrono>
#include <optional>
#include <vector>

namespace calvix::simulation
{

/// An access point as an adapter heard it last.
struct HeardBss
{
    AccessPoint accessPoint;
    SecuritySuite security;
    bool ssidHeard;                       ///< false: its beacons keep the SSID to themselves
    std::chrono::milliseconds heardAt{0}; ///< simulated time

    /// What its beacons and answers say: empty for a hidden network.
    const Bytes& Ssid() const;
};

/// Signal quality: 0 to 100, linear between -100 and -50 dBm.
ULONG SignalQuality(std::int32_t rssi);

/// Which of an adapter's PHYs speaks with an access point of this type. Newer ones are spoken to with what there
/// is: the first PHY.
ULONG PhyIndex(const std::vector<PhyDescription>& phys, std::uint32_t phyType);

/// What an adapter hears of the air now. Hidden networks whose SSID is `asked` for answer with it.
std::vector<HeardBss>
Listen(const std::vector<AccessPoint>& air, const std::optional<Bytes>& asked, std::chrono::milliseconds now);

} // namespace calvix::simulation
