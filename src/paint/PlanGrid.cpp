#include "paint/PlanGrid.h"

#include "paint/HourMarks.h"
#include "paint/Inks.h"
#include "plan/RoomRows.h"
#include "runtime/Numbers.h"

#include <QColor>
#include <algorithm>
#include <cmath>

namespace paint
{
namespace
{

constexpr form::Colour kPlanSlotLine = form::Colour::fromRgb(0, 0, 180);
constexpr form::Colour kQuarterLine = form::Colour::fromRgb(0, 180, 0);
// The same green, as faint as a line can be that is still seen on white.
constexpr form::Colour kFaintQuarterLine = form::Colour::fromRgb(200, 236, 200);
constexpr form::Colour kRowLine = form::Colour::fromRgb(125, 125, 125);
// Points that a line is wide on paper.
constexpr double kPaperLine = 0.3;

/// Rounded as the edges of boxes are.
QPoint nearestPixel(QPointF point)
{
    return {runtime::nearestInteger(point.x()), runtime::nearestInteger(point.y())};
}

bool hasGrid(const form::PlanForm& form, int rowsShown)
{
    return form.ChkGrille.isChecked() && rowsShown >= 0 && rowsShown < form::PlanForm::kRows;
}

/// How far the lines go down.
struct Reach {
    int top = 0;
    int bottom = 0;
};

Reach reachOf(const form::PlanForm& form, int rowsShown)
{
    const form::Place& header = form.Label1.front().place;
    const form::Place& last = form.Salle[static_cast<std::size_t>(rowsShown)].place;
    return {header.top + header.height, last.top + last.height};
}

GridLine lineDown(const Reach& reach, int x, form::Colour color)
{
    return {x, reach.top, x, reach.bottom, color};
}

void addRowLines(std::vector<GridLine>& lines, const form::PlanForm& form, int rowsShown, int left,
                 int right)
{
    for (int row = 0; row < rowsShown; ++row) {
        const form::Place& place = form.Salle[static_cast<std::size_t>(row)].place;
        const int y = place.top + place.height + plan::kRowGap / 2;
        lines.push_back({left, y, right, y, kRowLine});
    }
}

} // namespace

std::vector<GridLine> planGridLines(const form::PlanForm& form, int rowsShown, bool targetIsPrinter)
{
    if (!hasGrid(form, rowsShown)) {
        return {};
    }
    const form::Place& origin = form.Label1[0].place;
    // On paper the ticks are not a whole number of twips apart: each hour starts at its own.
    const int step = form.Label1[1].place.left - origin.left;
    const Reach reach = reachOf(form, rowsShown);
    std::vector<GridLine> lines;
    for (const form::Label& tick : form.Label1) {
        lines.push_back(lineDown(reach, tick.place.left, kPlanSlotLine));
    }
    for (const form::Label& tick : form.Label1) {
        for (int quarter = 1; quarter <= 3; ++quarter) {
            lines.push_back(lineDown(reach, tick.place.left + quarter * step / 4, kQuarterLine));
        }
    }
    if (!targetIsPrinter) {
        addRowLines(lines, form, rowsShown, origin.left, form.Label1.back().place.left + step);
    }
    return lines;
}

std::vector<GridLine> windowGridLines(const form::PlanForm& form, int rowsShown,
                                      const plan::ShownHours& hours)
{
    if (!hasGrid(form, rowsShown)) {
        return {};
    }
    constexpr int quarter = 15;
    constexpr int hour = 60;
    const Reach reach = reachOf(form, rowsShown);
    const int from = static_cast<int>(std::ceil(minuteAt(form, hours.from) / quarter)) * quarter;
    const int to = static_cast<int>(std::floor(minuteAt(form, hours.to)));
    std::vector<GridLine> lines;
    for (int minute = from; minute <= to; minute += quarter) {
        const int x = runtime::nearestInteger(positionOf(form, minute));
        lines.push_back(lineDown(reach, x, minute % hour == 0 ? kPlanSlotLine : kFaintQuarterLine));
    }
    addRowLines(lines, form, rowsShown, runtime::nearestInteger(hours.from),
                runtime::nearestInteger(hours.to));
    return lines;
}

void DrawPlanGrid(QPainter& surface, const DrawingTarget& target,
                  const std::vector<GridLine>& lines)
{
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing, false);
    for (const GridLine& line : lines) {
        const QColor color = toColor(line.color);
        const QPointF begin(target.onAxis(line.x1), target.toPixelsY(line.y1));
        const QPointF end(target.onAxis(line.x2), target.toPixelsY(line.y2));
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
