#pragma once

#include "output/output.h"
#include "report/report_facts.h"

namespace calvix::host
{

/// Draws the bands in which something is heard, an arch for each access point, with a letter that a list below explains;
/// out of Unicode characters on a terminal, else out of ASCII. 80 columns wide.
void PrintSpectrum(Output& output, const std::vector<AirAccessPoint>& accessPoints);

} // namespace calvix::host
