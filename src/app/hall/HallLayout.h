#pragma once

#include "app/hall/HallPlan.h"

#include <QRectF>
#include <QSize>
#include <QSizeF>

namespace app
{

/// How many rooms a page of the screen in the hall holds so that three lines of a box can be read
/// from afar; 1 to 18.
[[nodiscard]] int hallRoomsFor(QSize screen);

/// The stretch of the time axis that has something to show, in twips as the plan has them: from the
/// earliest box or slot of any page to the end of the latest one. The hours that are marked where
/// there is neither.
struct HallHours {
    double from = 0;
    double to = 0; ///< behind `from`

    friend bool operator==(const HallHours&, const HallHours&) = default;
};
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
