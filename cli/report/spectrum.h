#pragma once

#include "report/report_facts.h"

#include <array>
#include <span>

namespace calvix::host
{

/// The bands as the pictures of the spectrum show them, one panel each.

inline constexpr long kWeakestShown = -100; ///< dBm, the bottom of the pictures
inline constexpr long kStrongestShown = -30;

struct SpectrumBand
{
    const char* name; ///< as BandText gives it
    unsigned firstMhz;
    unsigned lastMhz;
    std::span<const unsigned> channels; ///< that are written below
};

/// The three bands in the order of their frequencies.
const std::array<SpectrumBand, 3>& SpectrumBands();

/// Centre of a channel in MHz.
unsigned CentreMhz(const SpectrumBand& band, unsigned channel);

/// Those of the access points that are heard in the band.
std::vector<const AirAccessPoint*> InBand(const std::vector<AirAccessPoint>& accessPoints, const SpectrumBand& band);

} // namespace calvix::host
