#pragma once

#include <array>
#include <span>
#include <string>

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
    unsigned baseMhz;                   ///< channel numbers count steps of 5 MHz from here
    std::span<const unsigned> channels; ///< that are written below
};

/// The three bands in the order of their frequencies.
const std::array<SpectrumBand, 3>& SpectrumBands();

/// Centre of a channel in MHz.
unsigned CentreMhz(const SpectrumBand& band, unsigned channel);

} // namespace calvix::host
