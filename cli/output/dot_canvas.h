#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace calvix::host
{

/// A drawing out of dots for a terminal: each character cell holds two columns and four rows of them, and may hold a
/// letter instead.
class DotCanvas
{
public:
    DotCanvas(int columns, int rows);

    int dotColumns() const { return m_columns * 2; }
    int dotRows() const { return m_rows * 4; }
    /// What lies outside is left out.
    void Dot(int x, int y);
    void Letter(int column, int row, char letter);
    /// Whether a cell is taken; one outside is.
    bool HasLetter(int column, int row) const;

    /// One line of cells: braille characters, or in plain ASCII what comes close to them.
    std::string Line(int row, bool braille) const;

private:
    struct DotCell
    {
        std::uint8_t dots = 0; ///< as Unicode numbers the dots of a braille character
        char letter = 0;
    };
    std::size_t PlaceOf(int column, int row) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) + static_cast<std::size_t>(column);
    }
    /// Null for a cell outside.
    DotCell* Find(int column, int row);

    int m_columns;
    int m_rows;
    std::vector<DotCell> m_cells;
};

} // namespace calvix::host
