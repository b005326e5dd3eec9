#include "files/AnswerPdf.h"

#include "files/AnswerTable.h"
#include "files/PaperFlow.h"
#include "files/PaperTable.h"
#include "files/PaperText.h"
#include "paint/Inks.h"
#include "print/Paper.h"
#include "print/PdfDocument.h"
#include "runtime/RunTimeError.h"

#include <QPageLayout>
#include <QPainter>

namespace files
{
namespace
{

constexpr double kPointsOfInch = 72;
static_assert(kPaperPoint * kPointsOfInch == print::kSheetResolution);

constexpr double kMargin = 15; ///< millimetres
constexpr double kFooter = 20 * kPaperPoint;
constexpr QColor kQuietInk(0x3d, 0x4a, 0x59);

QFont fontOf(double points, bool bold = false)
{
    return paint::planFont(static_cast<int>(points * kPaperPoint), bold);
}

void require(bool success)
{
    if (!success) {
        throw runtime::RunTimeError(runtime::ErrorNumber::PrinterError);
    }
}

/// The blocks of an answer, from its title to its notes.
class Layout
{
public:
    explicit Layout(QPdfWriter& paper) : m_paper(paper), m_width(paper.width()) {}

    void add(const AnswerTable& table)
    {
        text(table.title, fontOf(18, true), kPaperInk, 0);
        for (const QString& line : table.about) {
            text(line, fontOf(10), kPaperInk, 0);
        }
        for (const TableSection& section : table.sections) {
            add(section);
        }
        if (!table.notes.isEmpty()) {
            heading(QStringLiteral("À savoir"));
        }
        for (const QString& note : table.notes) {
            text(note, fontOf(8), kQuietInk, 2 * kPaperPoint);
            m_blocks.back().keepsNext = true;
        }
    }

    [[nodiscard]] const std::vector<PaperBlock>& blocks() const { return m_blocks; }

private:
    void add(const TableSection& section)
    {
        if (section.rows.empty() && section.none.isEmpty()) {
            return;
        }
        heading(section.heading);
        if (section.rows.empty()) {
            text(section.none, fontOf(9), kPaperInk, 0);
            return;
        }
        for (PaperBlock& block : PaperTable(section, m_width, m_paper).blocks()) {
            m_blocks.push_back(std::move(block));
        }
    }

    void heading(const QString& words)
    {
        constexpr double below = 3 * kPaperPoint;
        text(words, fontOf(11, true), kPaperInk, 14 * kPaperPoint);
        m_blocks.back().height += below;
        m_blocks.back().keepsNext = true;
    }

    /// A paragraph, which has so much space above it.
    void text(const QString& words, const QFont& font, const QColor& ink, double above)
    {
        const PaperText setter(font, m_paper);
        const QStringList lines = setter.lines(words, m_width);
        m_blocks.push_back(
            {above + static_cast<double>(lines.size()) * setter.lineHeight(),
             [setter, lines, ink, above, width = m_width](QPainter& surface, double top) {
                 setter.draw(surface, lines, QPointF(0, top + above), width, Qt::AlignLeft, ink);
             },
             false, nullptr});
    }

    QPdfWriter& m_paper;
    double m_width;
    std::vector<PaperBlock> m_blocks;
};

void drawFooter(QPainter& surface, QPdfWriter& paper, const QString& title, std::size_t number,
                std::size_t count)
{
    const PaperText setter(fontOf(8), paper);
    const double width = paper.width();
    const QPointF place(0, paper.height() - setter.lineHeight());
    const QString page = QStringLiteral("page %1/%2").arg(number).arg(count);
    setter.draw(surface, {page}, place, width, Qt::AlignRight, kQuietInk);
    // A title may be as long as somebody's search.
    const double room = width - setter.width(page) - kFooter;
    setter.draw(surface, setter.lines(title, room).mid(0, 1), place, room, Qt::AlignLeft,
                kQuietInk);
}

void drawAnswer(QPdfWriter& paper, const AnswerTable& table)
{
    require(paper.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin),
                                 QPageLayout::Millimeter));
    Layout layout(paper);
    layout.add(table);
    const auto pages = laidOut(layout.blocks(), paper.height() - kFooter);
    QPainter surface;
    require(surface.begin(&paper));
    for (std::size_t index = 0; index < pages.size(); ++index) {
        require(index == 0 || paper.newPage());
        for (const PlacedBlock& placed : pages[index]) {
            placed.block->draw(surface, placed.top);
        }
        drawFooter(surface, paper, table.title, index + 1, pages.size());
    }
    require(surface.end());
}

} // namespace

QByteArray answerAsPdf(const AnswerDocument& document)
{
    const AnswerTable table = answerTable(document, TableUse::Page);
    return print::pdfDrawn(table.title, document.date,
                           [&table](QPdfWriter& paper) { drawAnswer(paper, table); });
}

} // namespace files
