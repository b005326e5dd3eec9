#pragma once

#include "paint/GlyphFont.h"

#include <QFont>
#include <QHash>
#include <QString>
#include <cstddef>
#include <map>
#include <vector>

namespace paint
{

/// Measures texts by the widths of their characters, each asked of the font once: a page holds
/// hundreds of texts, and shaping each of them several times over to fit its box would take longer
/// than drawing them. Pairs of letters that stand closer together are measured a little too wide.
class TextRuler
{
public:
    /// Other sizes of the font are measured in proportion.
    explicit TextRuler(const QFont& font);

    [[nodiscard]] const QFont& font() const { return m_font; }
    /// Width in pixels at the font's own size.
    [[nodiscard]] double width(QStringView text) const;
    [[nodiscard]] double width(QChar character) const;
    /// Line height and ascent in pixels at the font's own size.
    [[nodiscard]] double height() const { return m_height; }
    [[nodiscard]] double ascent() const { return m_ascent; }
    /// The text, or as much of it as fits the width (at the font's own size) with an ellipsis.
    [[nodiscard]] QString elided(const QString& text, double width) const;
    /// The font in that size, to draw with; made once.
    [[nodiscard]] const GlyphFont& inSize(int pixels) const;

private:
    [[nodiscard]] double& other(QChar character) const;

    QFont m_font;
    double m_height;
    double m_ascent;
    // Widths asked for so far: nearly all characters are Latin ones, which need no search.
    static constexpr std::size_t kLatin = 0x250;
    static constexpr double kUnknown = -1;
    mutable std::vector<double> m_latin = std::vector<double>(kLatin, kUnknown);
    mutable QHash<QChar, double> m_others;
    mutable std::map<int, GlyphFont> m_sizes;
};

} // namespace paint
