#include "output/table.h"

#include "output/text_forms.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

constexpr const char* kGap = "  ";

/// By Tone.
constexpr const char* kEscapeSequences[] = {"", "\x1b[1m", "\x1b[32m", "\x1b[33m", "\x1b[31m", "\x1b[2m"};

std::string Padding(const std::string& text, std::size_t width)
{
    const std::size_t own = DisplayWidth(text);
    return std::string(own < width ? width - own : 0, ' ');
}

/// One line, without trailing blanks.
void PrintLine(std::ostream& out,
               const std::vector<Cell>& cells,
               const std::vector<Column>& columns,
               const std::vector<std::size_t>& widths,
               const TerminalTraits& terminal)
{
    std::string pending;
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        const std::string padding = Padding(cells[i].text, widths[i]);
        if (columns[i].align == Align::right)
            pending += padding;
        if (!cells[i].text.empty())
        {
            out << pending << Toned(cells[i].text, cells[i].tone, terminal);
            pending.clear();
        }
        if (columns[i].align == Align::left)
            pending += padding;
        pending += kGap;
    }
    out << '\n';
}

} // namespace

std::string Toned(const std::string& text, Tone tone, const TerminalTraits& terminal)
{
    if (!terminal.color || tone == Tone::plain)
        return text;
    return kEscapeSequences[static_cast<std::size_t>(tone)] + text + "\x1b[0m";
}

std::vector<std::size_t> Table::Widths() const
{
    std::vector<std::size_t> widths;
    for (const Column& column : m_columns)
        widths.push_back(DisplayWidth(column.title));
    for (const std::vector<Cell>& row : m_rows)
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = (std::max)(widths[i], DisplayWidth(row[i].text));
    return widths;
}

void Table::Print(std::ostream& out, const TerminalTraits& terminal) const
{
    const std::vector<std::size_t> widths = Widths();
    std::vector<Cell> titles;
    for (const Column& column : m_columns)
        titles.emplace_back(column.title, Tone::strong);
    PrintLine(out, titles, m_columns, widths, terminal);
    for (const std::vector<Cell>& row : m_rows)
        PrintLine(out, row, m_columns, widths, terminal);
}

void PrintPairs(std::ostream& out, const std::vector<std::pair<std::string, std::string>>& pairs)
{
    std::size_t width = 0;
    for (const auto& [name, value] : pairs)
        width = (std::max)(width, DisplayWidth(name) + 1);
    for (const auto& [name, value] : pairs)
        out << name << ':' << Padding(name + ":", width) << kGap << value << '\n';
}

Cell SignalBars(unsigned long quality, const TerminalTraits& terminal)
{
    constexpr const char* rising[] = {"▂", "▄", "▆", "█"};
    constexpr unsigned long needed[] = {1, 30, 55, 80};
    std::string bars;
    unsigned lit = 0;
    for (std::size_t i = 0; i < 4; ++i)
    {
        const bool isLit = quality >= needed[i];
        lit += isLit ? 1 : 0;
        if (terminal.isTerminal)
            bars += isLit ? rising[i] : "·";
        else
            bars += isLit ? '#' : '.';
    }
    return {bars, lit >= 3 ? Tone::good : lit == 2 ? Tone::fair : Tone::poor};
}

} // namespace calvix::host
