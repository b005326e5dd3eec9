#include "paint/GlyphFont.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace paint
{
namespace
{

// Pixels by which two ways to round the distance of a pair may differ: nobody sees them.
constexpr double kRounding = 1.0 / 32;

/// The letters and signs of French: one glyph each, set from left to right.
bool isPlainCharacter(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= u' ' && code <= u'~') || (code >= u'À' && code <= u'ÿ') || code == u'°' ||
           code == u'«' || code == u'»' || code == u'Œ' || code == u'œ' || code == u'’' ||
           code == u'–' || code == u'…';
}

/// What fonts set closer together or join, where they do so at all.
QString pairsAndLigatures()
{
    return QStringLiteral("AVATéWaL’P.ry A ffi fi fl fj fttiTh11/2…");
}

} // namespace

GlyphFont::GlyphFont(const QFont& font)
    : m_font(font), m_raw(QRawFont::fromFont(font)), m_height(QFontMetricsF(font).height()),
      m_ascent(QFontMetricsF(font).ascent()), m_agrees(agreesWithLayout())
{
}

double GlyphFont::width(const QString& text) const
{
    const auto glyphs = glyphsOf(text);
    if (!glyphs) {
        return QFontMetricsF(m_font).horizontalAdvance(text);
    }
    double width = 0;
    for (const QPointF advance : glyphs->advances) {
        width += advance.x();
    }
    return width;
}

QString GlyphFont::elided(const QString& text, double available) const
{
    return width(text) <= available
               ? text
               : QFontMetricsF(m_font).elidedText(text, Qt::ElideRight, available);
}

void GlyphFont::draw(QPainter& surface, QPointF baseline, const QString& text) const
{
    // In a line from right to left, signs at the ends of a text change places.
    const bool rightToLeft = surface.layoutDirection() == Qt::RightToLeft;
    if (const auto glyphs = rightToLeft ? std::nullopt : glyphsOf(text)) {
        QVarLengthArray<QPointF, 64> positions;
        QPointF position;
        for (const QPointF advance : glyphs->advances) {
            positions.append(position);
            position += advance;
        }
        QGlyphRun run;
        run.setRawFont(m_raw);
        run.setRawData(glyphs->indexes.constData(), positions.constData(),
                       static_cast<int>(positions.size()));
        surface.drawGlyphRun(baseline, run);
        return;
    }
    const QFont before = surface.font();
    surface.setFont(m_font);
    surface.drawText(baseline, text);
    surface.setFont(before);
}

std::optional<GlyphFont::Glyphs> GlyphFont::glyphsOf(const QString& text) const
{
    return m_agrees && std::all_of(text.begin(), text.end(), isPlainCharacter) ? lookUp(text)
                                                                               : std::nullopt;
}

std::optional<GlyphFont::Glyphs> GlyphFont::lookUp(const QString& text) const
{
    Glyphs glyphs;
    auto count = static_cast<int>(text.size());
    glyphs.indexes.resize(count);
    glyphs.advances.resize(count);
    if (!m_raw.glyphIndexesForChars(text.constData(), count, glyphs.indexes.data(), &count) ||
        glyphs.indexes.contains(0U) || // a character that the font lacks
        !m_raw.advancesForGlyphIndexes(glyphs.indexes.constData(), glyphs.advances.data(), count,
                                       QRawFont::KernedAdvances)) {
        return std::nullopt;
    }
    return glyphs;
}

/// A font may keep its pairs and ligatures in a table that only the layout reads.
bool GlyphFont::agreesWithLayout() const
{
    const QString text = pairsAndLigatures();
    QTextLayout layout(text, m_font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    const auto glyphs = m_raw.isValid() ? lookUp(text) : std::nullopt;
    if (!glyphs || runs.size() != 1 || runs.front().rawFont() != m_raw) {
        return false;
    }
    const QList<quint32> indexes = runs.front().glyphIndexes();
    const QList<QPointF> positions = runs.front().positions();
    bool agrees =
        std::equal(indexes.begin(), indexes.end(), glyphs->indexes.begin(), glyphs->indexes.end());
    for (qsizetype glyph = 1; agrees && glyph < positions.size(); ++glyph) {
        const double step = positions[glyph].x() - positions[glyph - 1].x();
        agrees = std::abs(step - glyphs->advances[glyph - 1].x()) <= kRounding;
    }
    return agrees;
}

} // namespace paint
