#include "paint/TextRuler.h"

#include <QFontInfo>
#include <QFontMetricsF>

namespace paint
{

namespace
{

/// The same font with its size in pixels.
QFont inPixels(QFont font)
{
    if (font.pixelSize() <= 0) {
        font.setPixelSize(QFontInfo(font).pixelSize());
    }
    return font;
}

} // namespace

TextRuler::TextRuler(const QFont& font)
    : m_font(inPixels(font)), m_height(QFontMetricsF(m_font).height()),
      m_ascent(QFontMetricsF(m_font).ascent())
{
}

double TextRuler::width(QChar character) const
{
    const std::size_t code = character.unicode();
    double& width = code < kLatin ? m_latin[code] : other(character);
    if (width == kUnknown) {
        width = QFontMetricsF(m_font).horizontalAdvance(character);
    }
    return width;
}

double& TextRuler::other(QChar character) const
{
    const auto known = m_others.find(character);
    return known != m_others.end() ? *known : *m_others.insert(character, kUnknown);
}

double TextRuler::width(QStringView text) const
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

const GlyphFont& TextRuler::inSize(int pixels) const
{
    const auto known = m_sizes.find(pixels);
    if (known != m_sizes.end()) {
        return known->second;
    }
    QFont font = m_font;
    font.setPixelSize(pixels);
    return m_sizes.emplace(pixels, font).first->second;
}

} // namespace paint
