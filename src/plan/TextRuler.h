#pragma once

#include <QFont>
#include <QHash>
#include <QString>

namespace plan
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
    [[nodiscard]] double width(const QString& text) const;
    [[nodiscard]] double width(QChar character) const;
    /// Line height and ascent in pixels at the font's own size.
    [[nodiscard]] double height() const { return m_height; }
    [[nodiscard]] double ascent() const { return m_ascent; }
    /// The text, or as much of it as fits the width (at the font's own size) with an ellipsis.
    [[nodiscard]] QString elided(const QString& text, double width) const;

private:
    QFont m_font;
    double m_height;
    double m_ascent;
    mutable QHash<QChar, double> m_widths;
};

} // namespace plan
