#include "output/dot_canvas.h"

#include <bit>

namespace calvix::host
{

namespace
{

/// The bits of a braille character's dots, by row and column.
constexpr std::uint8_t kBrailleDots[4][2] = {{0x01, 0x08}, {0x02, 0x10}, {0x04, 0x20}, {0x40, 0x80}};

std::string BrailleText(std::uint8_t dots)
{
    if (dots == 0)
        return " ";
    // U+2800 and the dots, in UTF-8.
    return {'\xe2', static_cast<char>(0xa0 | dots >> 6U), static_cast<char>(0x80 | (dots & 0x3fU))};
}

char PlainLetter(std::uint8_t dots)
{
    unsigned rows = 0;
    for (unsigned row = 0; row < 4; ++row)
        rows |= (dots & (kBrailleDots[row][0] | kBrailleDots[row][1])) != 0 ? 1U << row : 0U;
    if (rows == 0)
        return ' ';
    if (std::popcount(rows) >= 3)
        return '|';
    return (rows & 0x01U) != 0 ? '\'' : (rows & 0x08U) != 0 ? '.' : '-';
}

} // namespace

DotCanvas::DotCanvas(int columns, int rows)
    : m_columns(columns), m_rows(rows), m_cells(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows))
{
}

DotCanvas::DotCell* DotCanvas::Find(int column, int row)
{
    const bool isInside = column >= 0 && row >= 0 && column < m_columns && row < m_rows;
    return isInside ? &m_cells[PlaceOf(column, row)] : nullptr;
}

void DotCanvas::Dot(int x, int y)
{
    if (x < 0 || y < 0)
        return;
    if (DotCell* const cell = Find(x / 2, y / 4))
        cell->dots |= kBrailleDots[y % 4][x % 2];
}

void DotCanvas::Letter(int column, int row, char letter)
{
    if (DotCell* const cell = Find(column, row))
        cell->letter = letter;
}

bool DotCanvas::HasLetter(int column, int row) const
{
    const bool isInside = column >= 0 && row >= 0 && column < m_columns && row < m_rows;
    return !isInside || m_cells[PlaceOf(column, row)].letter != 0;
}

std::string DotCanvas::Line(int row, bool braille) const
{
    std::string line;
    for (int column = 0; column < m_columns; ++column)
    {
        const DotCell& cell = m_cells[PlaceOf(column, row)];
        if (cell.letter != 0)
            line += cell.letter;
        else if (braille)
            line += BrailleText(cell.dots);
        else
            line += PlainLetter(cell.dots);
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

} // namespace calvix::host
