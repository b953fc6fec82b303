#pragma once

#include "simulation/scenario.h"

#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// One "SSID n" of the capture: what its access points have in common, and the access points. The latter carry
/// everything, ready for a scenario.
struct CapturedNetwork
{
    std::string ssid; ///< empty: hidden
    std::vector<simulation::AccessPoint> accessPoints;
};

/// What `netsh wlan show networks mode=bssid` printed.
struct NetworksCapture
{
    std::string source;
    std::vector<std::string> adapterNames; ///< one for each adapter that listened
    std::vector<CapturedNetwork> networks; ///< in the capture's order
    std::vector<std::string> warnings;
};

/// Whether a text looks like this kind of capture.
bool LooksLikeNetworks(std::string_view text);

/// Reads a capture. `text` is UTF-8; `source` is what messages call it. Throws CaptureError for any other text and for a
/// capture that is damaged.
NetworksCapture ParseNetworks(std::string_view text, const std::string& source);

} // namespace calvix::host
