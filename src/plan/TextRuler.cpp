#include "plan/TextRuler.h"

#include <QFontMetricsF>

namespace plan
{

TextRuler::TextRuler(const QFont& font)
    : m_font(font), m_height(QFontMetricsF(font).height()), m_ascent(QFontMetricsF(font).ascent())
{
}

double TextRuler::width(QChar character) const
{
    const auto known = m_widths.constFind(character);
    if (known != m_widths.constEnd()) {
        return *known;
    }
    const double width = QFontMetricsF(m_font).horizontalAdvance(character);
    m_widths.insert(character, width);
    return width;
}

double TextRuler::width(const QString& text) const
{
    double sum = 0;
    for (const QChar character : text) {
        sum += width(character);
    }
    return sum;
}

QString TextRuler::elided(const QString& text, double available) const
{
    if (width(text) <= available) {
        return text;
    }
    double left = available - width(QChar(u'…'));
    qsizetype kept = 0;
    while (kept < text.size() && width(text[kept]) <= left) {
        left -= width(text[kept]);
        ++kept;
    }
    return text.left(kept).trimmed() + u'…';
}

} // namespace plan
