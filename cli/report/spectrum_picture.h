#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// The spectrum as documents show it: a figure for each band, in which every access point is an arch as wide as its
/// channel and as high as its signal.
std::string SpectrumPicture(const ReportFacts& report);

/// "Lindenhof, 02:1A:..., -55 dBm, channel 36, 80 MHz wide": an access point in words.
std::string InWords(const AirAccessPoint& accessPoint);

/// The class that sets the colour of an access point's network.
std::string ColourClass(const AirAccessPoint& accessPoint);

} // namespace calvix::host
