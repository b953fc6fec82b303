#include "import/value_table.h"

#include "import/capture_terms.h"
#include "import/capture_text.h"
#include "output/text_forms.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// More than nmcli has.
constexpr std::size_t kMostColumns = 64;

/// "Home:02\:00" as "Home" and "02:00".
std::vector<std::string> SplitAtColons(std::string_view line)
{
    std::vector<std::string> cells(1);
    for (std::size_t i = 0; i < line.size(); ++i)
        if (line[i] == '\\' && i + 1 < line.size())
            cells.back() += line[++i];
        else if (line[i] == ':')
            cells.emplace_back();
        else
            cells.back() += line[i];
    for (std::string& cell : cells)
        cell = std::string(Trim(cell));
    return cells;
}

bool HasAddress(const std::vector<std::string>& cells)
{
    return std::any_of(cells.begin(), cells.end(), [](const std::string& cell) { return IsAddress(cell); });
}

bool AnyRowHasAddress(const std::vector<ValueRow>& rows)
{
    return std::any_of(rows.begin(), rows.end(), [](const ValueRow& row) { return HasAddress(row.cells); });
}

/// A stretch of a line by columns on a screen, where some characters are two wide.
struct ColumnStart
{
    std::string label;
    std::size_t position = 0;
};

/// The end of the character at a byte.
std::size_t NextCharacter(std::string_view text, std::size_t at)
{
    do
        ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80);
    return at;
}

/// Labels stand two blanks apart at least, and may have single ones within.
std::vector<ColumnStart> LabelsOf(std::string_view header)
{
    std::vector<ColumnStart> columns;
    std::size_t position = 0;
    std::size_t measured = 0;
    for (std::size_t at = header.find_first_not_of(' '); at < header.size();)
    {
        const std::size_t end = std::min(header.find("  ", at), header.size());
        position += DisplayWidth(header.substr(measured, at - measured));
        measured = at;
        columns.push_back({std::string(Trim(header.substr(at, end - at))), position});
        at = header.find_first_not_of(' ', end);
    }
    return columns;
}

ValueRow SplitAtColumns(std::string_view line, const std::vector<ColumnStart>& columns)
{
    ValueRow row;
    std::size_t begin = 0;
    std::size_t position = 0;
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        const std::size_t last = i + 1 < columns.size() ? columns[i + 1].position : std::string_view::npos;
        std::size_t end = begin;
        while (end < line.size() && position < last)
        {
            const std::size_t next = NextCharacter(line, end);
            position += DisplayWidth(line.substr(end, next - end));
            end = next;
        }
        row.cells.emplace_back(Trim(line.substr(begin, end - begin)));
        begin = end;
    }
    return row;
}

} // namespace

std::optional<ValueTable> ColonTable(std::string_view text)
{
    ValueTable table;
    const std::vector<std::string_view> lines = LinesOf(text);
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (!Trim(lines[i]).empty())
            table.rows.push_back({i + 1, SplitAtColons(lines[i])});
    const auto count =
        std::count_if(table.rows.begin(), table.rows.end(),
                      [](const ValueRow& row)
                      { return row.cells.size() >= 3 && row.cells.size() <= kMostColumns && HasAddress(row.cells); });
    // One line may be damaged, or the last one cut off.
    const bool isTable = count > 0 && static_cast<std::size_t>(count) * 2 >= table.rows.size();
    return isTable ? std::optional(std::move(table)) : std::nullopt;
}

std::optional<ValueTable> AlignedTable(std::string_view text)
{
    ValueTable table;
    std::vector<ColumnStart> columns;
    const std::vector<std::string_view> lines = LinesOf(text);
    std::string_view header;
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        if (Trim(lines[i]).empty() || (!columns.empty() && Trim(lines[i]) == header))
            continue;
        if (!columns.empty())
        {
            table.rows.push_back(SplitAtColumns(lines[i], columns));
            table.rows.back().line = i + 1;
            continue;
        }
        columns = LabelsOf(lines[i]);
        header = Trim(lines[i]);
        if (columns.size() < 3 || columns.size() > kMostColumns)
            return std::nullopt;
    }
    for (const ColumnStart& column : columns)
        table.labels.push_back(column.label);
    return AnyRowHasAddress(table.rows) ? std::optional(std::move(table)) : std::nullopt;
}

} // namespace calvix::host
