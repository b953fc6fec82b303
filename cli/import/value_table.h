#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace calvix::host
{

/// One access point of a list of values.
struct ValueRow
{
    std::size_t line = 0;
    std::vector<std::string> cells; ///< without the blanks around them
};

/// A list of access points whose columns are still to be understood.
struct ValueTable
{
    std::vector<std::string> labels; ///< empty where the list has none
    std::vector<ValueRow> rows;
};

/// The lists that nmcli prints, by what they look like. None for a text that is no such list.
std::optional<ValueTable> ColonTable(std::string_view text);
std::optional<ValueTable> AlignedTable(std::string_view text);

} // namespace calvix::host
