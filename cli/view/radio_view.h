#pragma once

#include "host/host.h"
#include "output/json_output.h"

#include <string>

namespace calvix::host
{

struct RadioFacts
{
    bool on = false;
    std::string software; ///< "on", "off" or "unknown"
    std::string hardware;
};

JsonRecord Describe(const RadioFacts& radio);

/// What to do about a hardware switch that is off.
inline constexpr const char* kUseHardwareSwitch = "use the switch or the key combination on the case";

/// The radio of the adapter's first PHY.
RadioFacts ReadRadio(Host& host, const GUID* adapter);

} // namespace calvix::host
