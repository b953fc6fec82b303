#pragma once

#include "import/value_table.h"

#include <string>
#include <vector>

namespace calvix::host
{

/// What a column of nmcli's list holds.
enum class ListColumn
{
    bssid,
    ssid,
    ssidHex,
    mode,
    channel,
    frequency,
    rate,
    signal,
    security,
    inUse,
    active,
    device,
    wpaFlags,
    rsnFlags,
    other, ///< understood, but of no use: bars, names of D-Bus ...
    unknown
};

/// The columns of a list: by `names`, where they are given; else by the list's labels; else by nmcli's own order, or the
/// one that the manual advises. None for a list that is neither.
std::vector<ListColumn> ListColumnsOf(const ValueTable& table, const std::vector<std::string>& names);

/// nmcli's percentage in dBm: 100 % is -40 dBm, and 0 % is -100 dBm.
int StrengthFromPercentage(int percentage);

} // namespace calvix::host
