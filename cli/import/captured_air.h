#pragma once

#include "import/made_scenario.h"

namespace calvix::host
{

/// The access points that were listed, each once. One that several adapters heard is as strong as it was heard best; one that
/// is listed with and without its name is a hidden network that answered a computer that knew the name. Those that differ
/// although they have one address stay separate, under an invented one. The warnings report what was merged and invented.
std::vector<simulation::AccessPoint> AirOf(const std::vector<simulation::AccessPoint>& listed, MadeScenario& made);

/// The access point of an address, or null.
simulation::AccessPoint* FindAccessPoint(std::vector<simulation::AccessPoint>& air,
                                         const simulation::MacAddress& address);

} // namespace calvix::host
