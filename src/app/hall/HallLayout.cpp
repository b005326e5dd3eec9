#include "app/hall/HallLayout.h"

#include "context/AxisLabels.h"

#include <algorithm>
#include <limits>

namespace app
{
namespace
{

constexpr double kHeaderHeight = 70;
constexpr double kRemarkHeight = 28;
constexpr double kHoursHeight = 22;
constexpr double kMargin = 8;
constexpr double kNamesWidth = 150;
constexpr double kPlacesWidth = 48;
// A row of three lines of text, and what a row does not outgrow.
constexpr double kUsualRow = 47;
constexpr double kHighestRow = 72;
constexpr double kNarrowest = 1100; ///< for the names and a whole day
constexpr double kUsualHeight = 720;
constexpr int kMostRooms = 18; ///< with more of them, boxes have a single line
constexpr double kAround = kHeaderHeight + kHoursHeight + kMargin;

/// How much a layout that wants this height can be enlarged. Less than once would swallow lines of
/// one pixel.
double scaleFor(QSize screen, double height)
{
    return std::max(1.0, std::min(screen.height() / height, screen.width() / kNarrowest));
}

class Extent
{
public:
    void take(double from, double length)
    {
        if (length > 0) {
            m_hours.from = std::min(m_hours.from, from);
            m_hours.to = std::max(m_hours.to, from + length);
        }
    }
    [[nodiscard]] bool isEmpty() const { return m_hours.from >= m_hours.to; }
    [[nodiscard]] const HallHours& hours() const { return m_hours; }

private:
    HallHours m_hours{std::numeric_limits<double>::max(), 0};
};

void takeSlots(const plan::PlanState& state, Extent& extent)
{
    const context::TimeAxis axis = context::screenAxis(state.form);
    for (int number = 1; number <= context::DaySlots::kSlots; ++number) {
        if (const auto& slot = state.slots.slot(number)) {
            runtime::skipOnError(
                [&] { extent.take(axis.TimeToX(slot->start), axis.widthOf(slot->minutes)); });
        }
    }
}

} // namespace

int hallRoomsFor(QSize screen)
{
    const double rows = (screen.height() / scaleFor(screen, kUsualHeight) - kAround) / kUsualRow;
    return std::clamp(static_cast<int>(rows), 1, kMostRooms);
}

HallHours hallHoursOf(const std::vector<plan::PlanPage>& pages)
{
    Extent extent;
    for (const plan::PlanPage& page : pages) {
        takeSlots(page.state, extent);
        for (const plan::PlanRow& row : page.content.rows) {
            for (const plan::PlanBox& box : row.boxes) {
                extent.take(box.x, box.width);
            }
        }
    }
    if (!extent.isEmpty()) {
        return extent.hours();
    }
    const form::PlanForm plain;
    const context::TimeAxis axis = context::screenAxis(plain);
    const double from = axis.originLeft;
    return {from, axis.TimeToX(form::PlanForm::tickTime(form::PlanForm::kTicks - 1)) + 0.0};
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
    const double left = kMargin + kNamesWidth;
    const double right = size.width() - kMargin - kPlacesWidth;
    hours = {left, top, right - left, kHoursHeight};
    top += kHoursHeight;
    rowHeight = std::min(kHighestRow, (size.height() - kMargin - top) / std::max(1, rows));
    const double height = rowHeight * rows;
    names = {kMargin, top, kNamesWidth, height};
    boxes = {left, top, right - left, height};
    places = {right, top, kPlacesWidth, height};
}

} // namespace app
