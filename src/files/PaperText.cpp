#include "files/PaperText.h"

#include <QTextLayout>
#include <algorithm>

namespace files
{
namespace
{

/// On one line: a name may hold a line's end.
QString onOneLine(QString text)
{
    for (QChar& character : text) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph) {
            character = u' ';
        }
    }
    return text;
}

} // namespace

PaperText::PaperText(const QFont& font, QPaintDevice& paper)
    : m_font(font), m_paper(paper), m_metrics(font, &paper)
{
}

double PaperText::width(const QString& text) const
{
    return m_metrics.horizontalAdvance(onOneLine(text));
}

double PaperText::longestWord(const QString& text) const
{
    double longest = 0;
    for (const QString& word : onOneLine(text).split(u' ')) {
        longest = std::max(longest, width(word));
    }
    return longest;
}

QStringList PaperText::lines(const QString& text, double width) const
{
    const QString all = onOneLine(text);
    if (this->width(all) <= width) {
        return {all};
    }
    QTextLayout layout(all, m_font, &m_paper);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines << all.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}

void PaperText::draw(QPainter& surface, const QStringList& lines, QPointF topLeft, double width,
                     Qt::Alignment alignment, const QColor& ink) const
{
    surface.setFont(m_font);
    surface.setPen(ink);
    double baseline = topLeft.y() + m_metrics.ascent();
    for (const QString& line : lines) {
        const double indent = alignment.testFlag(Qt::AlignLeft) ? 0 : width - this->width(line);
        const double left =
            topLeft.x() + (alignment.testFlag(Qt::AlignHCenter) ? indent / 2 : indent);
        surface.drawText(QPointF(left, baseline), line);
        baseline += lineHeight();
    }
}

} // namespace files
