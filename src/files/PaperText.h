#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainter>
#include <QString>
#include <QStringList>

namespace files
{

/// What texts of an answer on paper are written with.
inline constexpr QColor kPaperInk(0x1c, 0x27, 0x33);

/// Texts in one font on paper, which must outlive it. All lengths are pixels of the paper.
class PaperText
{
public:
    PaperText(const QFont& font, QPaintDevice& paper);

    [[nodiscard]] double lineHeight() const { return m_metrics.height(); }
    [[nodiscard]] double width(const QString& text) const;
    /// The width of its longest word.
    [[nodiscard]] double longestWord(const QString& text) const;
    /// The lines that it takes in that width, at least one; words wider than that are broken.
    [[nodiscard]] QStringList lines(const QString& text, double width) const;

    /// Draws lines below each other from `top` on, each within the width.
    void draw(QPainter& surface, const QStringList& lines, QPointF topLeft, double width,
              Qt::Alignment alignment, const QColor& ink) const;

private:
    QFont m_font;
    QPaintDevice& m_paper;
    QFontMetricsF m_metrics;
};

} // namespace files
