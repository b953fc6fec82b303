#pragma once

#include "import/netsh_networks.h"

#include <string>
#include <string_view>

namespace calvix::host
{

/// Whether a text looks like what `iw dev wlan0 scan` prints.
bool LooksLikeIwScan(std::string_view text);

/// Reads such a text; `source` is what messages call it. iw speaks English only. Signal strengths are in dBm, so that they
/// are exact, as are beacon periods; information elements are told in words, of which only security and the PHY type are
/// carried over. Access points that cannot be used are left out with a warning; throws CaptureError for one that was cut
/// off.
NetworksCapture ParseIwScan(std::string_view text, const std::string& source);

} // namespace calvix::host
