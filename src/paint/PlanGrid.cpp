#include "paint/PlanGrid.h"

#include "paint/Inks.h"
#include "plan/RoomRows.h"
#include "runtime/Numbers.h"

#include <QColor>
#include <algorithm>

namespace paint
{
namespace
{

constexpr form::Colour kSlotLine = form::Colour::fromRgb(0, 0, 180);
constexpr form::Colour kQuarterLine = form::Colour::fromRgb(0, 180, 0);
constexpr form::Colour kRowLine = form::Colour::fromRgb(125, 125, 125);
// Points that a line is wide on paper.
constexpr double kPaperLine = 0.3;

/// Rounded as the edges of boxes are.
QPoint nearestPixel(QPointF point)
{
    return {runtime::nearestInteger(point.x()), runtime::nearestInteger(point.y())};
}

} // namespace

std::vector<GridLine> planGridLines(const form::PlanForm& form, int rowsShown, bool targetIsPrinter)
{
    if (!form.ChkGrille.isChecked() || rowsShown < 0 || rowsShown >= form::PlanForm::kRows) {
        return {};
    }
    const form::Place& origin = form.Label1[0].place;
    // On paper the ticks are not a whole number of twips apart: each hour starts at its own.
    const int step = form.Label1[1].place.left - origin.left;
    const form::Place& last = form.Salle[static_cast<std::size_t>(rowsShown)].place;
    const int top = origin.top + origin.height;
    const int bottom = last.top + last.height;
    std::vector<GridLine> lines;
    for (const form::Label& tick : form.Label1) {
        lines.push_back({tick.place.left, top, tick.place.left, bottom, kSlotLine});
    }
    for (const form::Label& tick : form.Label1) {
        const int left = tick.place.left;
        for (int quarter = 1; quarter <= 3; ++quarter) {
            const int x = left + quarter * step / 4;
            lines.push_back({x, top, x, bottom, kQuarterLine});
        }
    }
    if (!targetIsPrinter) {
        const int right = form.Label1.back().place.left + step;
        for (int row = 0; row < rowsShown; ++row) {
            const form::Place& place = form.Salle[static_cast<std::size_t>(row)].place;
            const int y = place.top + place.height + plan::kRowGap / 2;
            lines.push_back({origin.left, y, right, y, kRowLine});
        }
    }
    return lines;
}

void DrawPlanGrid(QPainter& surface, const DrawingTarget& target,
                  const std::vector<GridLine>& lines)
{
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing, false);
    for (const GridLine& line : lines) {
        const QColor color = toColor(line.color);
        const QPointF begin(target.toPixelsX(line.x1) + target.TargetXOffset,
                            target.toPixelsY(line.y1));
        const QPointF end(target.toPixelsX(line.x2) + target.TargetXOffset,
                          target.toPixelsY(line.y2));
        if (target.TargetIsPrinter) {
            // A hairline would be too thin to see.
            surface.setPen(QPen(color, std::max(1.0, kPaperLine * target.PixelsPerPoint)));
            surface.drawLine(begin, end);
        } else {
            // Lines go straight across or down: filling their pixels is quicker than drawing them.
            surface.fillRect(QRect(nearestPixel(begin), nearestPixel(end)), color);
        }
    }
    surface.restore();
}

} // namespace paint
