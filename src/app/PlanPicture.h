#pragma once

#include "paint/PlanPainter.h"

#include <QColor>
#include <QPixmap>
#include <QRegion>
#include <QSize>
#include <array>
#include <optional>
#include <vector>

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

    /// What a drawing has changed.
    struct Change {
        QRegion plan; ///< in the plan's device-independent pixels
        bool totals = false;
    };

    /// Draws what is not yet in the picture as the scene has it: all of it, or single rows and the
    /// totals where nothing else differs from what was drawn last. The scene has hours. `size`
    /// covers rows and time axis, `ratio` is the screen's device pixel ratio.
    Change draw(const paint::PlanScene& scene, QSize size, double ratio);

    /// Ticks, names, boxes and places, at their places in the window.
    [[nodiscard]] const QPixmap& plan() const { return m_plan; }
    /// The totals line, with its top at 0.
    [[nodiscard]] const QPixmap& totals() const { return m_totals; }

private:
    /// All that a row's pixels come from but what all rows share.
    struct DrawnRow {
        form::Label name;
        form::Label places;
        std::optional<plan::PlanRow> content; ///< nothing before it is worked out

        friend bool operator==(const DrawnRow&, const DrawnRow&) = default;
    };
    /// All that the totals' pixels come from.
    struct DrawnTotals {
        std::array<form::Label, form::PlanForm::kSlotLabels> labels;
        bool areOld = false;

        friend bool operator==(const DrawnTotals&, const DrawnTotals&) = default;
    };
    /// What all rows share.
    struct Ground {
        form::PlanForm form; ///< without what the rows and the totals have of their own
        plan::CellLayout layout;
        paint::DrawingTarget target;
        int rowsShown = 0;
        std::optional<plan::ShownHours> hours;
        QSize size;
        double ratio = 0;

        friend bool operator==(const Ground&, const Ground&) = default;
    };

    [[nodiscard]] static std::vector<DrawnRow> rowsOf(const paint::PlanScene& scene);
    [[nodiscard]] static Ground groundOf(const paint::PlanScene& scene, QSize size, double ratio);
    [[nodiscard]] std::vector<int> changedRows(const std::vector<DrawnRow>& rows) const;
    void drawAll(const paint::PlanScene& scene, QSize size);
    [[nodiscard]] QRegion drawRows(const paint::PlanScene& scene, const std::vector<int>& rows);
    void drawTotals(const paint::PlanScene& scene);

    QPixmap m_plan;
    QPixmap m_totals;
    // What they were drawn from.
    std::optional<Ground> m_ground;
    std::vector<DrawnRow> m_rows;
    DrawnTotals m_drawnTotals;
};

} // namespace app
