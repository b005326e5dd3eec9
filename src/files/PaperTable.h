#pragma once

#include "files/AnswerTable.h"
#include "files/PaperFlow.h"
#include "files/PaperText.h"

#include <QPaintDevice>
#include <vector>

namespace files
{

/// Pixels of the paper in a point.
inline constexpr double kPaperPoint = 10;

/// A table on paper: how wide its columns are, and its rows as blocks below its header. Figures
/// stand to the right, shares beside bars or on shades, as on the page for browsers.
class PaperTable
{
public:
    /// `width` is the page's, in pixels of the paper.
    PaperTable(const TableSection& section, double width, QPaintDevice& paper);

    /// The header, kept with the first row, and the rows; a row too long for a page comes in
    /// pieces. They share what they need and outlive the table.
    [[nodiscard]] std::vector<PaperBlock> blocks() const;

    /// How wide each column is, left to right: as its texts ask for, or as the page leaves them.
    [[nodiscard]] const std::vector<double>& widths() const { return m_widths; }

private:
    struct Fonts {
        PaperText plain;
        PaperText bold;
    };

    void measure(const TableSection& section, double width);
    [[nodiscard]] std::vector<PaperBlock> rowBlocks(const TableRow& row) const;

    std::shared_ptr<const Fonts> m_fonts;
    std::shared_ptr<const std::vector<TableColumn>> m_columns;
    std::vector<TableRow> m_rows;
    std::vector<double> m_widths;
};

} // namespace files
