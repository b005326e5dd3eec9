#include "app/hall/HallLayout.h"

#include <algorithm>

namespace app
{
namespace
{

constexpr double kHeaderHeight = 70;
constexpr double kRemarkHeight = 28;
constexpr double kHoursHeight = 22;
constexpr double kHallMargin = 8;
constexpr double kNamesWidth = 150;
constexpr double kPlacesWidth = 48;
// A row of three lines of text, and what a row does not outgrow.
constexpr double kUsualRow = 47;
constexpr double kHighestRow = 72;
constexpr double kNarrowest = 1100; ///< for the names and a whole day
constexpr double kUsualHeight = 720;
constexpr int kMostRooms = 18; ///< with more of them, boxes have a single line
constexpr double kAround = kHeaderHeight + kHoursHeight + kHallMargin;

/// How much a layout that wants this height can be enlarged. Less than once would swallow lines of
/// one pixel.
double scaleFor(QSize screen, double height)
{
    return std::max(1.0, std::min(screen.height() / height, screen.width() / kNarrowest));
}

} // namespace

int hallRoomsFor(QSize screen)
{
    const double rows = (screen.height() / scaleFor(screen, kUsualHeight) - kAround) / kUsualRow;
    return std::clamp(static_cast<int>(rows), 1, kMostRooms);
}

HallHours hallHoursOf(const std::vector<plan::PlanPage>& pages)
{
    plan::HoursExtent extent;
    for (const plan::PlanPage& page : pages) {
        extent.take(page.state, page.content);
    }
    return extent.hours();
}

HallLayout::HallLayout(QSize screen, int rows, bool hasRemark)
{
    const double around = kAround + (hasRemark ? kRemarkHeight : 0);
    const double wanted = around + kUsualRow * std::max(1, rows);
    scale = scaleFor(screen, wanted);
    const QSizeF size = QSizeF(screen) / scale;
    header = {0, 0, size.width(), kHeaderHeight};
    double top = header.height();
    if (hasRemark) {
        remark = {0, top, size.width(), kRemarkHeight};
        top += kRemarkHeight;
    }
    const double left = kHallMargin + kNamesWidth;
    const double right = size.width() - kHallMargin - kPlacesWidth;
    hours = {left, top, right - left, kHoursHeight};
    top += kHoursHeight;
    rowHeight = std::min(kHighestRow, (size.height() - kHallMargin - top) / std::max(1, rows));
    const double height = rowHeight * rows;
    names = {kHallMargin, top, kNamesWidth, height};
    boxes = {left, top, right - left, height};
    places = {right, top, kPlacesWidth, height};
}

} // namespace app
