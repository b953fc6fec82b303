#include "import/column_roles.h"

#include "import/capture_terms.h"
#include "import/capture_text.h"
#include "text_forms.h"

#include <algorithm>
#include <functional>
#include <set>

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
constexpr std::array<ColumnName, 22> kColumnNames{
    {{"BSSID", ListColumn::bssid},     {"SSID", ListColumn::ssid},       {"SSID-HEX", ListColumn::ssidHex},
     {"MODE", ListColumn::mode},       {"CHAN", ListColumn::channel},    {"FREQ", ListColumn::frequency},
     {"RATE", ListColumn::rate},       {"SIGNAL", ListColumn::signal},   {"SECURITY", ListColumn::security},
     {"IN-USE", ListColumn::inUse},    {"*", ListColumn::inUse},         {"ACTIVE", ListColumn::active},
     {"DEVICE", ListColumn::device},   {"BARS", ListColumn::other},      {"NAME", ListColumn::other},
     {"BANDWIDTH", ListColumn::other}, {"WPA-FLAGS", ListColumn::other}, {"RSN-FLAGS", ListColumn::other},
     {"DBUS-PATH", ListColumn::other}, {"AP", ListColumn::other},        {"LAST-SEEN", ListColumn::other},
     {"LAST SEEN", ListColumn::other}}};

using Cells = std::vector<std::string>;
using Test = std::function<bool(const std::string&)>;

ListColumn NamedColumn(std::string_view name)
{
    const auto found = std::find_if(kColumnNames.begin(), kColumnNames.end(),
                                    [name](const ColumnName& each) { return SameWord(each.name, name); });
    return found == kColumnNames.end() ? ListColumn::unknown : found->column;
}

/// Every cell that has something passes, and one has something.
bool All(const Cells& cells, const Test& test)
{
    bool any = false;
    for (const std::string& cell : cells)
    {
        any |= !cell.empty();
        if (!cell.empty() && !test(cell))
            return false;
    }
    return any;
}

bool IsEmpty(const Cells& cells)
{
    return std::all_of(cells.begin(), cells.end(), [](const std::string& cell) { return cell.empty(); });
}

/// "2437 MHz", in either alphabet.
bool IsMegahertz(const std::string& cell)
{
    return FirstNumber(cell) >= 2400 && cell[0] >= '0' && cell[0] <= '9' && cell.find(' ') != std::string::npos &&
           WholeNumber(std::string_view(cell).substr(0, cell.find(' '))) >= 2400;
}

/// "130 Mbit/s", whatever the units are called: nothing else has a slash behind a number.
bool IsRate(const std::string& cell)
{
    return cell[0] >= '0' && cell[0] <= '9' && cell.find('/') != std::string::npos;
}

bool IsBars(const std::string& cell)
{
    constexpr std::array<std::string_view, 7> kBars{"▂", "▄", "▆", "█", "_", "*", " "};
    std::string_view rest = cell;
    while (!rest.empty())
    {
        const auto bar = std::find_if(kBars.begin(), kBars.end(), [&](auto each) { return rest.starts_with(each); });
        if (bar == kBars.end())
            return false;
        rest.remove_prefix(bar->size());
    }
    return cell.size() > 1;
}

bool IsSecurity(const std::string& cell)
{
    constexpr std::array<std::string_view, 10> kTokens{"WPA1", "WPA2",   "WPA3", "802.1X", "WEP",
                                                       "OWE",  "OWE-TM", "--",   "WPA",    "802.1x"};
    std::string_view rest = cell;
    while (!rest.empty())
    {
        const std::string_view token = rest.substr(0, rest.find(' '));
        if (std::find(kTokens.begin(), kTokens.end(), token) == kTokens.end())
            return false;
        rest = Trim(rest.substr(token.size()));
    }
    return true;
}

bool IsMode(const std::string& cell)
{
    return SameWord(cell, "Infra") || SameWord(cell, "Ad-Hoc") || SameWord(cell, "Mesh") || SameWord(cell, "AP");
}

bool IsFlags(const std::string& cell)
{
    return cell == "(none)" || cell.starts_with("pair_") || cell.starts_with("group_");
}

ListColumn ColumnByShape(const Cells& cells, bool isFirst)
{
    const auto is = [&cells](const Test& test) { return All(cells, test); };
    if (is([](const std::string& cell) { return IsAddress(cell); }))
        return ListColumn::bssid;
    if (is(IsMegahertz))
        return ListColumn::frequency;
    if (is(IsRate))
        return ListColumn::rate;
    if (IsEmpty(cells))
        return isFirst ? ListColumn::inUse : ListColumn::security;
    if (is([](const std::string& cell) { return cell == "*"; }))
        return ListColumn::inUse;
    if (is([](const std::string& cell) { return cell == "yes" || cell == "no"; }))
        return ListColumn::active;
    if (is([](const std::string& cell) { return cell.starts_with("/org/"); }) ||
        is([](const std::string& cell) { return cell.starts_with("AP[") && cell.ends_with(']'); }) || is(IsFlags) ||
        is(IsBars))
        return ListColumn::other;
    if (is(IsSecurity))
        return ListColumn::security;
    return is(IsMode) ? ListColumn::mode : ListColumn::unknown;
}

bool IsHexOf(const std::string& hex, const std::string& text)
{
    return !hex.empty() && SameWord(HexText(text), hex);
}

class ColumnFinder
{
public:
    explicit ColumnFinder(const ValueTable& table, std::size_t width)
        : m_columns(width, ListColumn::unknown), m_cells(width)
    {
        for (const ValueRow& row : table.rows)
            for (std::size_t i = 0; row.cells.size() == width && i < width; ++i)
                m_cells[i].push_back(row.cells[i]);
    }

    std::vector<ListColumn> Find(const std::vector<std::string>& names)
    {
        for (std::size_t i = 0; i < m_columns.size() && i < names.size(); ++i)
            m_columns[i] = NamedColumn(names[i]);
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            Take(i, ColumnByShape(m_cells[i], i == 0));
        Numbers();
        Hexadecimal();
        Texts();
        return std::move(m_columns);
    }

private:
    bool Has(ListColumn column) const
    {
        return std::find(m_columns.begin(), m_columns.end(), column) != m_columns.end();
    }

    /// A second column of one kind would be a mistake.
    void Take(std::size_t index, ListColumn column)
    {
        if (m_columns[index] == ListColumn::unknown && (column == ListColumn::other || !Has(column)))
            m_columns[index] = column;
    }

    bool IsWhole(std::size_t index) const
    {
        return m_columns[index] == ListColumn::unknown &&
               All(m_cells[index], [](const std::string& cell) { return WholeNumber(cell) >= 0; });
    }

    /// Where frequencies are listed, they tell which of two numbers is the channel. Where not, strengths go to 100, and
    /// the channel is the first of both in nmcli's own order.
    void Numbers()
    {
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            if (IsWhole(i) && FitsFrequencies(i))
                Take(i, ListColumn::channel);
        std::vector<std::size_t> both;
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            if (IsWhole(i))
                both.push_back(i);
        if (both.size() == 2 && !Has(ListColumn::channel) && !Has(ListColumn::signal))
        {
            const bool swapped = Exceeds(both[1], 100) && !Exceeds(both[0], 100);
            Take(both[swapped ? 1 : 0], ListColumn::channel);
            Take(both[swapped ? 0 : 1], ListColumn::signal);
        }
        else if (both.size() == 1)
        {
            const bool channelKnown = Has(ListColumn::channel) || Has(ListColumn::frequency);
            Take(both[0], channelKnown              ? ListColumn::signal
                          : Has(ListColumn::signal) ? ListColumn::channel
                                                    : ListColumn::unknown);
        }
    }

    bool Exceeds(std::size_t index, int limit) const
    {
        return std::any_of(m_cells[index].begin(), m_cells[index].end(),
                           [limit](const std::string& cell) { return WholeNumber(cell) > limit; });
    }

    bool FitsFrequencies(std::size_t index) const
    {
        const auto frequencies = std::find(m_columns.begin(), m_columns.end(), ListColumn::frequency);
        if (frequencies == m_columns.end())
            return false;
        const Cells& other = m_cells[static_cast<std::size_t>(frequencies - m_columns.begin())];
        for (std::size_t i = 0; i < other.size(); ++i)
            if (ChannelOfMegahertz(FirstNumber(other[i])) != WholeNumber(m_cells[index][i]))
                return false;
        return true;
    }

    void Hexadecimal()
    {
        for (std::size_t i = 0; i < m_columns.size(); ++i)
            for (std::size_t j = 0; m_columns[i] == ListColumn::unknown && j < m_columns.size(); ++j)
                if (i != j && m_columns[j] == ListColumn::unknown && !m_cells[i].empty() && IsHexOfColumn(i, j))
                {
                    Take(i, ListColumn::ssidHex);
                    Take(j, ListColumn::ssid);
                }
    }

    bool IsHexOfColumn(std::size_t hex, std::size_t text) const
    {
        bool any = false;
        for (std::size_t i = 0; i < m_cells[hex].size(); ++i)
        {
            const bool fits = IsHexOf(m_cells[hex][i], m_cells[text][i]);
            any |= fits;
            if (!fits && !m_cells[hex][i].empty() && !m_cells[text][i].empty() && m_cells[text][i] != "--")
                return false;
        }
        return any;
    }

    /// What is left is the name, then the mode of networks in another language, which hardly differs between rows; then
    /// the adapter's name.
    void Texts()
    {
        for (std::size_t i = 0; i < m_columns.size(); ++i)
        {
            if (m_columns[i] != ListColumn::unknown)
                continue;
            const std::size_t kinds = std::set<std::string>(m_cells[i].begin(), m_cells[i].end()).size();
            if (!Has(ListColumn::ssid))
                m_columns[i] = ListColumn::ssid;
            else if (!Has(ListColumn::mode) && i > 0 && m_columns[i - 1] == ListColumn::ssid && kinds <= 2)
                m_columns[i] = ListColumn::mode;
            else if (!Has(ListColumn::device) && kinds == 1)
                m_columns[i] = ListColumn::device;
        }
    }

    std::vector<ListColumn> m_columns;
    std::vector<Cells> m_cells; ///< by column
};

} // namespace

std::vector<ListColumn> ListColumnsOf(const ValueTable& table, const std::vector<std::string>& names)
{
    const std::vector<std::string>& known = names.empty() ? table.labels : names;
    std::size_t width = known.size();
    // Without names, most rows agree on their number.
    std::vector<std::size_t> widths;
    for (const ValueRow& row : table.rows)
        widths.push_back(row.cells.size());
    std::sort(widths.begin(), widths.end());
    if (width == 0 && !widths.empty())
        width = widths[widths.size() / 2];
    return ColumnFinder(table, width).Find(known);
}

int StrengthFromPercentage(int percentage)
{
    return -100 + std::clamp(percentage, 0, 100) * 60 / 100;
}

int ChannelOfMegahertz(int megahertz)
{
    if (megahertz == 2484)
        return 14;
    if (megahertz >= 2412 && megahertz <= 2472)
        return (megahertz - 2407) / 5;
    if (megahertz == 5935)
        return 2;
    if (megahertz >= 5955 && megahertz <= 7115)
        return (megahertz - 5950) / 5;
    return megahertz >= 5160 && megahertz <= 5885 ? (megahertz - 5000) / 5 : 0;
}

} // namespace calvix::host
