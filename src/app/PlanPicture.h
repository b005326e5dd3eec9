#pragma once

#include "paint/PlanPainter.h"

#include <QColor>
#include <QPixmap>
#include <QSize>

namespace app
{

/// The plan of the last refresh as a picture, unscrolled: a repaint copies from it, so that
/// scrolling, tooltips and uncovered windows lay nothing out again.
class PlanPicture
{
public:
    /// Height of the totals band, in device-independent pixels.
    static constexpr int kTotalsHeight = 26;
    /// What lies behind the bands around the boxes, and the rest of the window with them.
    static constexpr QColor kBandFill{246, 247, 250};

    /// Draws everything anew. `size` covers rows and time axis, `ratio` is the screen's device
    /// pixel ratio.
    void draw(const paint::PlanScene& scene, QSize size, double ratio);
    /// Draws the last row of the scene's content and the totals anew; other rows stay.
    void drawLastRow(const paint::PlanScene& scene);

    /// Ticks, names, boxes and places, at their places in the window.
    [[nodiscard]] const QPixmap& plan() const { return m_plan; }
    /// The totals line, with its top at 0.
    [[nodiscard]] const QPixmap& totals() const { return m_totals; }

private:
    void drawTotals(const paint::PlanScene& scene);

    QPixmap m_plan;
    QPixmap m_totals;
};

} // namespace app
