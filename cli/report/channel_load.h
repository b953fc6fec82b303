#pragma once

#include "output/json_output.h"
#include "report/report_facts.h"

#include <optional>
#include <string>
#include <vector>

namespace calvix::host
{

/// How crowded 20 MHz of the air are. An access point counts by its quality, 0 to 100, and by the part of these 20 MHz
/// that its channel covers.
struct ChannelLoad
{
    unsigned channel = 0;
    unsigned accessPoints = 0;     ///< that reach into it
    std::optional<long> strongest; ///< of them, in dBm
    unsigned load = 0;
};

struct BandLoad
{
    std::string band;
    unsigned leastCrowded = 0; ///< the first of several; in 2.4 GHz one of 1, 6 and 11, which do not overlap
    std::vector<ChannelLoad> channels;
};

/// All channels of the three bands.
std::vector<BandLoad> MeasureBands(const std::vector<AirAccessPoint>& air);

JsonRecord Describe(const ChannelLoad& channel);
JsonRecord Describe(const BandLoad& band);

} // namespace calvix::host
