#pragma once

#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QRawFont>
#include <QString>
#include <QVarLengthArray>
#include <optional>

namespace paint
{

/// A font in one size that sets plain texts by looking up their glyphs. Laying a text out, with a
/// look at its scripts, its directions, its ligatures and the fonts that help out, costs more than
/// painting it, and nearly all texts of a plan need none of that. Those that do, and fonts that
/// would look different without it, are laid out.
class GlyphFont
{
public:
    /// The font's size is in pixels.
    explicit GlyphFont(const QFont& font);

    /// Line height and ascent in pixels.
    [[nodiscard]] double height() const { return m_height; }
    [[nodiscard]] double ascent() const { return m_ascent; }
    /// Width in pixels, as QFontMetricsF measures it.
    [[nodiscard]] double width(const QString& text) const;
    /// As much of the text as fits the width (pixels), as QFontMetricsF shortens it.
    [[nodiscard]] QString elided(const QString& text, double width) const;
    /// Draws the text with the painter's pen, as QPainter::drawText does in this font. `baseline`
    /// is its left end.
    void draw(QPainter& surface, QPointF baseline, const QString& text) const;

    /// Whether the text is set by its glyphs alone.
    [[nodiscard]] bool isPlain(const QString& text) const { return glyphsOf(text).has_value(); }

private:
    /// The glyphs of a plain text and, in pixels, how far each takes the line on.
    struct Glyphs {
        QVarLengthArray<quint32, 64> indexes;
        QVarLengthArray<QPointF, 64> advances;
    };

    /// Nothing when the text has to be laid out.
    [[nodiscard]] std::optional<Glyphs> glyphsOf(const QString& text) const;
    [[nodiscard]] std::optional<Glyphs> lookUp(const QString& text) const;
    [[nodiscard]] bool agreesWithLayout() const;

    QFont m_font;
    QRawFont m_raw;
    double m_height;
    double m_ascent;
    bool m_agrees;
};

} // namespace paint
