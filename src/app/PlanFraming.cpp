// What of the plan is brought into view: the frame around what somebody looks for, the top of a
// page.

#include "app/PlanView.h"
#include "plan/RoomRows.h"

#include <QPainter>
#include <QScrollBar>

namespace app
{
namespace
{

// What is looked for: seen on every row colour, by the light line around the dark one.
constexpr QColor kFrameLine(178, 34, 34);
constexpr QColor kFrameHalo(255, 255, 255);
constexpr int kFrameWidth = 3;

} // namespace

/// A page that was not shown before is read from its first row on.
void PlanView::openAtTop()
{
    const context::RoomPage& page = m_engine.state().page;
    const PageShown shown{page.PageStart, page.room(1).name};
    if (shown != m_page) {
        m_page = shown;
        verticalScrollBar()->setValue(0);
    }
}

void PlanView::frame(const QString& room, int slot)
{
    openAtTop(); // now: later it would undo what follows
    m_frame = Frame{room, slot, m_engine.refreshCount()};
    bringIntoView(framed());
    viewport()->update();
}

void PlanView::unframe()
{
    if (m_frame) {
        m_frame.reset();
        viewport()->update();
    }
}

QRectF PlanView::framed() const
{
    if (!m_frame || m_frame->refresh != m_engine.refreshCount()) {
        return {};
    }
    const form::PlanForm& form = m_engine.form();
    const auto rowAcross = [&](const form::Place& room) {
        return m_target.toPixels(QRectF(room.left, room.top, axisEnd() - room.left, room.height));
    };
    const PlanTable words = table();
    const auto cell = words.cellOf(m_frame->room, m_frame->slot);
    if (!cell) {
        const bool isGreyed =
            form.Salle.front().visible && m_engine.state().page.room(0).name == m_frame->room;
        return isGreyed ? rowAcross(form.Salle.front().place) : QRectF();
    }
    if (words.boxOf(*cell) != nullptr) {
        return words.placeOf(*cell);
    }
    return rowAcross(form.Salle.at(static_cast<std::size_t>(words.rowOf(*cell).index)).place);
}

void PlanView::bringIntoView(const QRectF& place)
{
    if (place.isEmpty()) {
        return;
    }
    constexpr int margin = 8;
    const QRect boxes = bands().boxes;
    const auto scroll = [](QScrollBar* bar, double from, double to, int first, int length) {
        if (to > bar->value() + first + length) {
            bar->setValue(static_cast<int>(to) - first - length + margin);
        }
        if (from < bar->value() + first) {
            bar->setValue(static_cast<int>(from) - first - margin);
        }
    };
    scroll(verticalScrollBar(), place.top(), place.bottom(), boxes.top(), boxes.height());
    if (place.left() >= boxes.left()) { // a whole row begins with its name, which stays in view
        scroll(horizontalScrollBar(), place.left(), place.right(), boxes.left(), boxes.width());
    }
}

void PlanView::paintFrame(QPainter& painter, const Bands& view) const
{
    const QRectF place = framed();
    if (place.isEmpty()) {
        return;
    }
    const bool isRow = place.left() < view.boxes.left();
    const QPointF corner(isRow ? place.left() : place.left() - horizontalScrollBar()->value(),
                         place.top() - verticalScrollBar()->value());
    painter.save();
    painter.setClipRect(isRow ? view.boxes.united(view.names) : view.boxes);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF line = QRectF(corner, place.size()).adjusted(1, 1, -1, -1);
    painter.setPen(QPen(kFrameHalo, kFrameWidth + 3));
    painter.drawRoundedRect(line, 3, 3);
    painter.setPen(QPen(kFrameLine, kFrameWidth));
    painter.drawRoundedRect(line, 3, 3);
    painter.restore();
}

} // namespace app
