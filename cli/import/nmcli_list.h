#pragma once

#include "import/netsh_networks.h"

#include <string>
#include <string_view>

namespace calvix::host
{

/// What to capture with nmcli, for messages and help.
inline constexpr const char* kNmcliCommand =
    "nmcli -t -f IN-USE,BSSID,SSID,MODE,CHAN,FREQ,RATE,SIGNAL,SECURITY,WPA-FLAGS,RSN-FLAGS dev wifi list";

/// Whether a text looks like what `nmcli dev wifi list` prints: a table, or values with colons between them (-t).
bool LooksLikeNmcliList(std::string_view text);

/// Reads such a text; `source` is what messages call it. A table's columns are those of its labels or, where these are
/// translated, nmcli's own; values with colons are nmcli's own columns or those of the command above, with or without the
/// flags. Signal strengths are percentages of nmcli's own, and PHY types are guessed from bands and rates, with a warning.
/// Rows that do not fit are left out with a warning; throws CaptureError where a column is missing that a scenario needs.
NetworksCapture ParseNmcliList(std::string_view text, const std::string& source);

} // namespace calvix::host
