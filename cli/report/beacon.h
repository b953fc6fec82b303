#pragma once

#include <calvix/platform_records.h>

#include <cstdint>
#include <string>
#include <vector>

namespace calvix::host
{

/// What an access point's beacons contain beyond the service's own fields.
struct BeaconFacts
{
    unsigned widthMhz = 20;
    bool widthKnown = false;       ///< otherwise 20 MHz is what every access point has at least
    unsigned long centreKhz = 0;   ///< of the whole channel
    std::string security;          ///< "WPA2-PSK/CCMP", "open"
    unsigned streams = 0;          ///< spatial streams; 0: unknown
    unsigned long fastestKbps = 0; ///< 0: unknown
    std::vector<unsigned> rates;   ///< legacy rates in units of 500 kbit/s, slowest first
};

/// Reads the information elements of an entry's beacons. Truncated and malformed elements are ignored.
BeaconFacts ReadBeacon(const WLAN_BSS_ENTRY& entry, const std::vector<std::uint8_t>& elements);

} // namespace calvix::host
