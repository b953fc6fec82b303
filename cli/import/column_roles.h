#pragma once

#include "import/value_table.h"

#include <array>
#include <optional>
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
    other, ///< understood, but of no use: bars, names of D-Bus ...
    unknown
};

/// The columns of a list: by `names`, in English, where they are given; else by the list's own labels where those are
/// English; else by what stands in them. The order of the columns decides only between a channel and a signal strength that
/// both could be the other. Rows with another number of cells are not looked at.
std::vector<ListColumn> ListColumnsOf(const ValueTable& table, const std::vector<std::string>& names);

/// nmcli's percentage in dBm: 100 % is -40 dBm, and 0 % is -100 dBm.
int StrengthFromPercentage(int percentage);

/// The channel of a frequency in MHz, 0 for none.
int ChannelOfMegahertz(int megahertz);

} // namespace calvix::host
