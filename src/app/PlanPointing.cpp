// What lies where in the view, and what is to be read of it.

#include "absences/MarkerToolTips.h"
#include "app/PlanHit.h"
#include "app/PlanToolTips.h"
#include "app/PlanView.h"
#include "paint/HourMarks.h"
#include "plan/EmptyPlace.h"
#include "plan/RoomRows.h"
#include "plan/SlotColumns.h"

#include <QScrollBar>
#include <cmath>

namespace app
{

QString PlanView::roomAt(QPoint point) const
{
    const Bands view = bands();
    if (!view.names.contains(point) && !view.places.contains(point)) {
        return {};
    }
    const auto row =
        plan::rowAtHeight(m_engine.form(), m_target.TargetTwipsPerPixelY * toPlan(point).y());
    return row ? m_engine.state().page.room(*row).name : QString();
}

QString PlanView::greyedRoomAt(QPoint point) const
{
    const Bands view = bands();
    const form::Label& greyed = m_engine.form().Salle.front();
    const double top = m_target.TargetTwipsPerPixelY * toPlan(point).y();
    const bool isThere = (view.names.contains(point) || view.places.contains(point)) &&
                         greyed.visible && plan::rowAtHeight(m_engine.form(), top) == 0;
    return isThere ? m_engine.state().page.room(0).name : QString();
}

std::optional<PlanView::Spot> PlanView::spotAt(QPoint point) const
{
    const QString room = roomAt(point);
    if (!room.isEmpty()) {
        return Spot{room, 0, nullptr};
    }
    if (!bands().boxes.contains(point)) {
        return std::nullopt;
    }
    const PlanTable words = table();
    const auto cell = words.cellUnder(toPlan(point));
    if (!cell) { // beside the slots: the row
        const auto row = words.roomAtHeight(toPlan(point).y());
        return row ? std::optional(Spot{words.rowOf(*row).room, 0, nullptr}) : std::nullopt;
    }
    return Spot{words.rowOf(*cell).room, words.slotOf(*cell), words.boxOf(*cell)};
}

QString PlanView::toolTipAt(QPoint point) const
{
    const Bands view = bands();
    const form::PlanForm& form = m_engine.form();
    if (view.names.contains(point) || view.places.contains(point)) {
        return roomToolTip(m_engine.state(), m_target.TargetTwipsPerPixelY * toPlan(point).y());
    }
    if (view.totals.contains(point)) {
        return totalsToolTip(m_engine.state());
    }
    if (!view.boxes.contains(point)) {
        return {};
    }
    const PlanHit hit = hitPlan(form, m_engine.content(), m_target, toPlan(point));
    if (hit.box != nullptr) {
        return boxText(*hit.row, *hit.box);
    }
    const PlanTable words = table();
    const auto room = words.roomAtHeight(toPlan(point).y());
    return room ? emptyText(words.rowOf(*room), toPlan(point).x()) : QString();
}

QString PlanView::emptyText(const plan::PlanRow& row, double x) const
{
    const double minute = paint::minuteAt(m_engine.form(), m_target.fromAxis(x));
    return plan::emptyPlaceWords(m_engine.state(), row, static_cast<int>(std::floor(minute)));
}

QString PlanView::boxText(const plan::PlanRow& row, const plan::PlanBox& box) const
{
    return boxToolTip(m_engine.form(), row, box) + QStringLiteral("\n\n") +
           absences::ZAbsToolTip(box, m_engine.markers().at(box.marker).Jour);
}

QString PlanView::fullText(const PlanTable::Cell& cell) const
{
    const PlanTable words = table();
    const plan::PlanBox* box = words.boxOf(cell);
    if (box == nullptr) {
        const plan::PlanRow& row = words.rowOf(cell);
        const QRectF place = words.placeOf(cell);
        const bool isKnown =
            cell.column > 0 && !place.isEmpty() && !plan::isUnknown(row, words.slotOf(cell));
        return isKnown ? emptyText(row, place.center().x()) : words.nameOf(cell);
    }
    const QString text = boxText(words.rowOf(cell), *box);
    return box->group && m_engine.form().Check3.isChecked()
               ? text + QStringLiteral("\n\n") + groupText(*box->group)
               : text;
}

QRect PlanView::inViewport(const PlanTable::Cell& cell) const
{
    const QPointF scrolled(cell.column == 0 ? 0 : horizontalScrollBar()->value(),
                           verticalScrollBar()->value());
    return table().placeOf(cell).translated(-scrolled).toRect();
}

QRect PlanView::onScreen(const PlanTable::Cell& cell) const
{
    const QRect place = inViewport(cell);
    return place.isNull() ? QRect() : QRect(viewport()->mapToGlobal(place.topLeft()), place.size());
}

bool PlanView::isInSight(const PlanTable::Cell& cell) const
{
    const Bands view = bands();
    return (cell.column == 0 ? view.names : view.boxes).intersects(inViewport(cell));
}

std::optional<PlanTable::Cell> PlanView::cellUnder(QPoint screenPoint) const
{
    const QPoint point = viewport()->mapFromGlobal(screenPoint);
    const Bands view = bands();
    if (view.names.contains(point) || view.places.contains(point)) {
        return table().roomAtHeight(toPlan(point).y());
    }
    return view.boxes.contains(point) ? table().cellUnder(toPlan(point)) : std::nullopt;
}

} // namespace app
