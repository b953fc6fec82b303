#pragma once

#include "output/terminal.h"

#include <ostream>
#include <string>
#include <vector>

namespace calvix::host
{

/// How a text is meant; a terminal with colours shows it.
enum class Tone
{
    plain,
    strong,
    good,
    fair,
    poor,
    faint
};

/// The text in its tone, or as it is without colours.
std::string Toned(const std::string& text, Tone tone, const TerminalTraits& terminal);

struct Cell
{
    Cell(std::string cellText, Tone cellTone = Tone::plain) : text(std::move(cellText)), tone(cellTone) {}
    Cell(const char* cellText, Tone cellTone = Tone::plain) : text(cellText), tone(cellTone) {}

    std::string text;
    Tone tone;
};

enum class Align
{
    left,
    right
};

struct Column
{
    std::string title;
    Align align = Align::left;
};

/// Rows under a heading, each column as wide as its widest text.
class Table
{
public:
    explicit Table(std::vector<Column> columns) : m_columns(std::move(columns)) {}

    void AddRow(std::vector<Cell> cells) { m_rows.push_back(std::move(cells)); }
    void Print(std::ostream& out, const TerminalTraits& terminal) const;

private:
    std::vector<std::size_t> Widths() const;

    std::vector<Column> m_columns;
    std::vector<std::vector<Cell>> m_rows;
};

/// "name:  value" lines, values aligned.
void PrintPairs(std::ostream& out, const std::vector<std::pair<std::string, std::string>>& pairs);

/// Four bars for a signal quality from 0 to 100.
Cell SignalBars(unsigned long quality, const TerminalTraits& terminal);

} // namespace calvix::host
