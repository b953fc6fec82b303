#pragma once

#include "import/netsh_networks.h"

#include <string>
#include <string_view>

namespace calvix::host
{

/// Whether a text looks like what `iw dev wlan0 scan` prints.
bool LooksLikeIwScan(std::string_view text);

/// Reads such a text; `source` is what messages call it. iw speaks English only. Signal strengths are in dBm, so that they
/// are exact, as are beacon periods; of the information elements, which it prints in words, security and the PHY type are
/// carried over. What cannot be used is left out with a warning; throws CaptureError where nothing could be used.
NetworksCapture ParseIwScan(std::string_view text, const std::string& source);

/// The PHY type of an access point of which nothing newer is known: by its band and its highest rate.
std::uint32_t OldPhyType(std::uint32_t frequencyKhz, int highestRate);

/// The frequency in kHz of a megahertz value that a tool printed, 0 for one that no channel has.
std::uint32_t FrequencyFromMegahertz(std::string_view text);

} // namespace calvix::host
