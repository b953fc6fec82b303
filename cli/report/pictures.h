#pragma once

#include "report/report_facts.h"

#include <string>

namespace calvix::host
{

/// The spectrum: a figure for each band, in which every access point is an arch as wide as its channel and as high as its
/// signal.
std::string SpectrumPicture(const ReportFacts& report);

/// The class that sets the colour of an access point's network.
std::string ColourClass(const AirAccessPoint& accessPoint);

/// The link's signal over time, with the moves between access points marked, and the same moves as a list.
std::string SignalPicture(const ReportFacts& report);

} // namespace calvix::host
