// What moves over the plan without drawing it anew: the light on the row and the hour under the
// mouse, and the line of the clock.

#include "app/PlanView.h"
#include "paint/ClockLine.h"
#include "paint/HourMarks.h"
#include "plan/RoomRows.h"

#include <QPainter>
#include <QScrollBar>
#include <cmath>

namespace app
{
namespace
{

constexpr int kHour = 60;
// Over names and hours, which are dark on light or light on dark: their contrast stays.
constexpr QColor kLight(66, 133, 244, 44);
constexpr QColor kLightEdge(66, 133, 244);
constexpr int kEdge = 2;          // pixels
constexpr double kClockRoom = 23; // of half an hour's caption, and of half the clock's
constexpr int kTickHeight = 5;

} // namespace

std::optional<int> PlanView::clockMinute() const
{
    const form::PlanForm& form = m_engine.form();
    const QDate shown = form.DTPicker1.value();
    // Back from the exams, the date goes to Monday and the list of days does not.
    const bool isOneDay = shown.isValid() && shown.dayOfWeek() == form.CbJour.listIndex() + 1;
    return form.OpEns().isSelected() && isOneDay ? paint::clockMinute(m_now(), shown)
                                                 : std::nullopt;
}

void PlanView::followClock()
{
    const std::optional<int> minute = clockMinute();
    if (minute != m_clockMinute) {
        m_clockMinute = minute;
        viewport()->update();
    }
}

PlanView::Lit PlanView::litAt(QPoint point) const
{
    const Bands view = bands();
    if (!view.boxes.contains(point) && !view.names.contains(point) &&
        !view.places.contains(point)) {
        return {};
    }
    Lit lit;
    lit.row = plan::rowAtHeight(m_engine.form(), m_target.TargetTwipsPerPixelY * toPlan(point).y());
    if (view.boxes.contains(point)) {
        const double minute =
            paint::minuteAt(m_engine.form(), m_target.fromAxis(toPlan(point).x()));
        lit.hour = static_cast<int>(std::floor(minute / kHour));
    }
    return lit;
}

void PlanView::light(const Lit& lit)
{
    if (lit != m_lit) {
        m_lit = lit;
        viewport()->update();
    }
}

void PlanView::paintLights(QPainter& painter, const Bands& view) const
{
    const form::PlanForm& form = m_engine.form();
    painter.save();
    if (m_lit.row && form.Salle.at(static_cast<std::size_t>(*m_lit.row)).visible) {
        const form::Place& row = form.Salle.at(static_cast<std::size_t>(*m_lit.row)).place;
        const double top = m_target.toPixelsY(row.top) - verticalScrollBar()->value();
        const double height = m_target.toPixelsY(row.height);
        painter.setClipRect(view.names.united(view.places));
        for (const QRect& band : {view.names, view.places}) {
            painter.fillRect(QRectF(band.left(), top, band.width(), height), kLight);
        }
        for (const double y : {top - kEdge, top + height}) {
            painter.fillRect(QRectF(0, y, viewport()->width(), kEdge), kLightEdge);
        }
    }
    if (m_lit.hour) {
        const auto at = [&](int hour) {
            return m_target.onAxis(paint::positionOf(form, hour * kHour)) -
                   horizontalScrollBar()->value();
        };
        painter.setClipRect(view.ticks);
        const double left = at(*m_lit.hour);
        const QRectF cell(left, view.ticks.top(), at(*m_lit.hour + 1) - left, view.ticks.height());
        painter.fillRect(cell, kLight);
        painter.fillRect(QRectF(cell.left(), cell.bottom() - kEdge, cell.width(), kEdge),
                         kLightEdge);
    }
    painter.restore();
}

void PlanView::paintClock(QPainter& painter, const Bands& view) const
{
    const std::optional<int> minute = clockMinute();
    if (!minute || m_engine.content().rows.empty()) {
        return;
    }
    const double x = m_target.onAxis(paint::positionOf(m_engine.form(), *minute)) -
                     horizontalScrollBar()->value();
    const double end = std::min(axisEnd() - horizontalScrollBar()->value(),
                                static_cast<double>(view.boxes.right() + 1));
    const double bottom = paint::PlanPainter::rowsBottom(scene()) - verticalScrollBar()->value();
    // An hour that the time would cover in part is not written.
    for (const paint::HourMark& mark : paint::hourMarks(m_engine.form(), m_hours)) {
        const double left = m_target.onAxis(mark.x) - horizontalScrollBar()->value() + 1;
        if (left < x + kClockRoom && left + 2 * kClockRoom > x - kClockRoom) {
            painter.fillRect(
                QRectF(left, view.ticks.top(), 2 * kClockRoom, view.ticks.height() - kTickHeight),
                PlanPicture::kBandFill);
        }
    }
    QRectF boxes(view.boxes);
    boxes.setRight(end);
    boxes.setBottom(std::min(boxes.bottom(), bottom));
    paint::drawClockLine(painter, x, view.ticks, boxes, *minute);
}

} // namespace app
