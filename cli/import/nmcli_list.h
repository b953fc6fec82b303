#pragma once

#include "import/netsh_networks.h"

#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// Whether a text looks like what `nmcli dev wifi list` prints: a table, or a table with colons (-t).
bool LooksLikeNmcliList(std::string_view text);

/// Reads such a text; `source` is what messages call it. `columns` names the columns in English, as they were given to -f;
/// otherwise they are those of the labels, of nmcli's own order, or of the order that the manual advises. Signal strengths are percentages of nmcli's own,
/// and PHY types are guessed from bands and rates, with a warning. Rows that do not fit are left out with a warning; throws
/// CaptureError where a column is missing that a scenario needs.
NetworksCapture
ParseNmcliList(std::string_view text, const std::string& source, const std::vector<std::string>& columns);

} // namespace calvix::host
