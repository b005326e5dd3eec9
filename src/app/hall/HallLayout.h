#pragma once

#include "app/hall/HallPlan.h"
#include "plan/ShownHours.h"

#include <QRectF>
#include <QSize>
#include <QSizeF>

namespace app
{

/// How many rooms a page of the screen in the hall holds so that three lines of a box can be read
/// from afar; 1 to 18.
[[nodiscard]] int hallRoomsFor(QSize screen);

/// What of the time axis has something to show on any of the pages.
using HallHours = plan::ShownHours;
[[nodiscard]] HallHours hallHoursOf(const std::vector<plan::PlanPage>& pages);

/// Where everything stands on the screen in the hall. It is laid out in pixels of its own, which
/// are `scale` pixels of the screen wide and high: the plan's drawing has texts of one size.
/// Unless told, rectangles are in its own pixels.
struct HallLayout {
    /// Of a plan whose fullest page has `rows` rooms.
    HallLayout(QSize screen, int rows, bool hasRemark);

    double scale = 1;
    QRectF header;
    QRectF remark; ///< the line below it; empty without a remark
    QRectF hours;  ///< the marks of the hours
    QRectF names;
    QRectF boxes;
    QRectF places;
    double rowHeight = 0; ///< from one row to the next
};

} // namespace app
