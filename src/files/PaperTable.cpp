#include "files/PaperTable.h"

#include "files/ShareShade.h"
#include "paint/CellBox.h"
#include "paint/Inks.h"

#include <QSet>
#include <algorithm>
#include <numeric>

namespace files
{
namespace
{

constexpr double kAside = 5 * kPaperPoint; ///< between a cell's text and its neighbours
constexpr double kAbove = 2 * kPaperPoint; ///< and the lines above and below it
constexpr double kBar = 62 * kPaperPoint;  ///< the longest bar
constexpr double kBarHeight = 6 * kPaperPoint;
constexpr double kLine = 0.5 * kPaperPoint;
constexpr double kGap = 1 * kPaperPoint; ///< around shades
constexpr int kTextSize = static_cast<int>(8.5 * kPaperPoint);
constexpr double kLongestWord = 90 * kPaperPoint; ///< what is longer may be broken
constexpr qsizetype kLinesOfPiece = 30;           ///< fewer than any page has
constexpr QColor kHeadGround(0x1f, 0x3a, 0x5f);
constexpr QColor kRowLine(0xd5, 0xdb, 0xe4);

/// One column of a row or of the header, ready to be drawn.
struct PaperCell {
    QRectF area; ///< its top is that of the row
    QStringList lines;
    ColumnLook look = ColumnLook::Text;
    std::optional<double> share;
};

Qt::Alignment alignmentOf(ColumnLook look)
{
    return look == ColumnLook::Number  ? Qt::AlignRight
           : look == ColumnLook::Shade ? Qt::AlignHCenter
                                       : Qt::AlignLeft;
}

double barTextWidth(const PaperText& text)
{
    return text.width(QStringLiteral("< 100 %"));
}

/// What the column takes beside its texts.
double extraOf(ColumnLook look)
{
    return 2 * kAside + (look == ColumnLook::Bar ? kAside + kBar : 0);
}

void drawBar(QPainter& surface, const PaperText& text, const PaperCell& cell, double top)
{
    const double width = barTextWidth(text);
    const QPointF corner(cell.area.left() + kAside, top + kAbove);
    text.draw(surface, cell.lines, corner, width, Qt::AlignRight, kPaperInk);
    const double room = cell.area.right() - kAside - (corner.x() + width + kAside);
    const QRectF frame(corner.x() + width + kAside,
                       corner.y() + (text.lineHeight() - kBarHeight) / 2, std::min(room, kBar),
                       kBarHeight);
    surface.fillRect(QRectF(frame.topLeft(), QSizeF(frame.width() * *cell.share, kBarHeight)),
                     kHeadGround);
    surface.setPen(QPen(kPaperInk, kLine));
    surface.setBrush(Qt::NoBrush);
    surface.drawRect(frame);
}

void drawCell(QPainter& surface, const PaperText& text, const PaperCell& cell, double top,
              double height)
{
    if (cell.share && cell.look == ColumnLook::Bar) {
        drawBar(surface, text, cell, top);
        return;
    }
    QColor ink = kPaperInk;
    if (cell.share && cell.look == ColumnLook::Shade) {
        const form::Colour ground = shadeOf(*cell.share);
        ink = paint::toColor(paint::readableOn(ground));
        surface.fillRect(QRectF(cell.area.left(), top, cell.area.width(), height)
                             .adjusted(kGap, kGap, -kGap, -kGap),
                         paint::toColor(ground));
    }
    text.draw(surface, cell.lines, QPointF(cell.area.left() + kAside, top + kAbove),
              cell.area.width() - 2 * kAside, alignmentOf(cell.look), ink);
}

/// Widths that fill the page: all get their least, and of what is left over those that wish for
/// little more get it before those that could use everything. Where even the least ones do not fit,
/// all shrink alike.
std::vector<double> fitted(std::vector<double> least, const std::vector<double>& wished,
                           double width)
{
    std::vector<std::size_t> order(least.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        return wished[left] - least[left] < wished[right] - least[right];
    });
    double spare = std::max(0.0, width - std::accumulate(least.begin(), least.end(), 0.0));
    std::size_t waiting = order.size();
    for (const std::size_t column : order) {
        const double more =
            std::min(wished[column] - least[column], spare / static_cast<double>(waiting));
        least[column] += more;
        spare -= more;
        --waiting;
    }
    const double all = std::accumulate(least.begin(), least.end(), 0.0);
    for (double& each : least) {
        each *= width / all;
    }
    return least;
}

} // namespace

PaperTable::PaperTable(const TableSection& section, double width, QPaintDevice& paper)
    : m_fonts(
          std::make_shared<const Fonts>(Fonts{PaperText(paint::planFont(kTextSize), paper),
                                              PaperText(paint::planFont(kTextSize, true), paper)})),
      m_columns(std::make_shared<const std::vector<TableColumn>>(section.columns)),
      m_rows(section.rows)
{
    measure(section, width);
}

void PaperTable::measure(const TableSection& section, double width)
{
    std::vector<double> least;
    std::vector<double> wished;
    for (std::size_t column = 0; column < section.columns.size(); ++column) {
        const TableColumn& known = section.columns[column];
        const double extra = extraOf(known.look);
        double longestWord = m_fonts->bold.longestWord(known.title);
        double longest = m_fonts->bold.width(known.title);
        if (known.look == ColumnLook::Bar) {
            longestWord = longest = barTextWidth(m_fonts->plain);
        }
        const PaperText& text = column == 0 ? m_fonts->bold : m_fonts->plain;
        QSet<QString> measured; // long lists say the same thing again and again
        for (const TableRow& row : section.rows) {
            const QString& words = row[column].text;
            if (!measured.contains(words)) {
                measured.insert(words);
                longestWord = std::max(longestWord, text.longestWord(words));
                longest = std::max(longest, text.width(words));
            }
        }
        least.push_back(std::min(longestWord, kLongestWord) + extra);
        wished.push_back(longest + extra);
    }
    m_widths = fitted(std::move(least), wished, width);
}

std::vector<PaperBlock> PaperTable::blocks() const
{
    TableRow titles;
    for (const TableColumn& column : *m_columns) {
        titles.push_back({column.title, std::nullopt});
    }
    std::vector<PaperCell> heads;
    double left = 0;
    qsizetype lines = 1;
    for (std::size_t column = 0; column < titles.size(); ++column) {
        const QStringList text =
            m_fonts->bold.lines(titles[column].text, m_widths[column] - 2 * kAside);
        lines = std::max(lines, text.size());
        heads.push_back(
            {QRectF(left, 0, m_widths[column], 0), text, (*m_columns)[column].look, {}});
        left += m_widths[column];
    }
    const double height = static_cast<double>(lines) * m_fonts->bold.lineHeight() + 2 * kAbove;
    const auto header = std::make_shared<PaperBlock>();
    header->height = height;
    header->keepsNext = true;
    header->draw = [fonts = m_fonts, heads, height, width = left](QPainter& surface, double top) {
        surface.fillRect(QRectF(0, top, width, height), kHeadGround);
        for (const PaperCell& cell : heads) {
            fonts->bold.draw(surface, cell.lines, QPointF(cell.area.left() + kAside, top + kAbove),
                             cell.area.width() - 2 * kAside, alignmentOf(cell.look), Qt::white);
        }
    };
    std::vector<PaperBlock> blocks{*header};
    // A grid of shades is seen as a whole.
    const bool isGrid = m_columns->back().look == ColumnLook::Shade;
    for (const TableRow& row : m_rows) {
        for (PaperBlock& block : rowBlocks(row)) {
            block.header = header;
            block.keepsNext = isGrid && &row != &m_rows.back();
            blocks.push_back(std::move(block));
        }
    }
    return blocks;
}

std::vector<PaperBlock> PaperTable::rowBlocks(const TableRow& row) const
{
    std::vector<PaperCell> cells;
    double left = 0;
    qsizetype lines = 1;
    for (std::size_t column = 0; column < row.size(); ++column) {
        const PaperText& text = column == 0 ? m_fonts->bold : m_fonts->plain;
        const QStringList written = text.lines(row[column].text, m_widths[column] - 2 * kAside);
        lines = std::max(lines, written.size());
        cells.push_back({QRectF(left, 0, m_widths[column], 0), written, (*m_columns)[column].look,
                         row[column].share});
        left += m_widths[column];
    }
    std::vector<PaperBlock> blocks;
    for (qsizetype first = 0; first < lines; first += kLinesOfPiece) {
        const qsizetype count = std::min(kLinesOfPiece, lines - first);
        std::vector<PaperCell> piece = cells;
        for (PaperCell& cell : piece) {
            cell.lines = cell.lines.mid(first, count);
        }
        const double height = static_cast<double>(count) * m_fonts->plain.lineHeight() + 2 * kAbove;
        blocks.push_back(
            {height,
             [fonts = m_fonts, piece, height, width = left](QPainter& surface, double top) {
                 for (const PaperCell& cell : piece) {
                     const bool isFirst = &cell == &piece.front();
                     drawCell(surface, isFirst ? fonts->bold : fonts->plain, cell, top, height);
                 }
                 surface.fillRect(QRectF(0, top + height - kLine, width, kLine), kRowLine);
             },
             false, nullptr});
    }
    return blocks;
}

} // namespace files
