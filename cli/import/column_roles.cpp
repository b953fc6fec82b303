#include "import/column_roles.h"

#include "import/capture_text.h"

#include <algorithm>
#include <array>

namespace calvix::host
{

namespace
{

struct ColumnName
{
    std::string_view name;
    ListColumn column;
};

/// "*" is what old versions call IN-USE.
constexpr std::array<ColumnName, 22> kColumnNames{{{"BSSID", ListColumn::bssid},
                                                   {"SSID", ListColumn::ssid},
                                                   {"SSID-HEX", ListColumn::ssidHex},
                                                   {"MODE", ListColumn::mode},
                                                   {"CHAN", ListColumn::channel},
                                                   {"FREQ", ListColumn::frequency},
                                                   {"RATE", ListColumn::rate},
                                                   {"SIGNAL", ListColumn::signal},
                                                   {"SECURITY", ListColumn::security},
                                                   {"IN-USE", ListColumn::inUse},
                                                   {"*", ListColumn::inUse},
                                                   {"ACTIVE", ListColumn::active},
                                                   {"DEVICE", ListColumn::device},
                                                   {"WPA-FLAGS", ListColumn::wpaFlags},
                                                   {"RSN-FLAGS", ListColumn::rsnFlags},
                                                   {"BARS", ListColumn::other},
                                                   {"NAME", ListColumn::other},
                                                   {"BANDWIDTH", ListColumn::other},
                                                   {"DBUS-PATH", ListColumn::other},
                                                   {"AP", ListColumn::other},
                                                   {"LAST-SEEN", ListColumn::other},
                                                   {"LAST SEEN", ListColumn::other}}};

using Columns = std::vector<ListColumn>;

ListColumn NamedColumn(std::string_view name)
{
    const auto found = std::find_if(kColumnNames.begin(), kColumnNames.end(),
                                    [name](const ColumnName& each) { return SameWord(each.name, name); });
    return found == kColumnNames.end() ? ListColumn::unknown : found->column;
}

Columns NamedColumns(const std::vector<std::string>& names)
{
    Columns columns;
    for (const std::string& name : names)
        columns.push_back(NamedColumn(name));
    return columns;
}

/// What nmcli prints unless it is told otherwise.
Columns OwnColumns()
{
    return NamedColumns({"IN-USE", "BSSID", "SSID", "MODE", "CHAN", "RATE", "SIGNAL", "BARS", "SECURITY"});
}

/// A list without names is nmcli's own or the one that the manual advises, which tells frequencies in the sixth column,
/// with or without the bars.
Columns ColumnsByFrequency(const ValueTable& table)
{
    constexpr std::size_t kFrequency = 5;
    const bool hasFrequency = std::any_of(
        table.rows.begin(), table.rows.end(),
        [](const ValueRow& row) { return row.cells.size() > kFrequency && row.cells[kFrequency].ends_with(" MHz"); });
    const auto width = [&table](std::size_t wanted)
    {
        return std::any_of(table.rows.begin(), table.rows.end(),
                           [wanted](const ValueRow& row) { return row.cells.size() == wanted; });
    };
    Columns columns = OwnColumns();
    if (hasFrequency)
        columns.insert(columns.begin() + kFrequency, ListColumn::frequency);
    if (hasFrequency && !width(columns.size()))
        columns.erase(std::find(columns.begin(), columns.end(), ListColumn::other));
    return width(columns.size()) ? columns : Columns();
}

} // namespace

std::vector<ListColumn> ListColumnsOf(const ValueTable& table, const std::vector<std::string>& names)
{
    if (!names.empty())
        return NamedColumns(names);
    if (table.labels.empty())
        return ColumnsByFrequency(table);
    const Columns columns = NamedColumns(table.labels);
    // SSID and BSSID are the same in every language; the others may be translated, in nmcli's own order.
    const bool isTranslated = std::count(columns.begin(), columns.end(), ListColumn::unknown) > 1;
    return isTranslated && columns.size() == OwnColumns().size() ? OwnColumns() : columns;
}

int StrengthFromPercentage(int percentage)
{
    return -100 + std::clamp(percentage, 0, 100) * 60 / 100;
}

} // namespace calvix::host
