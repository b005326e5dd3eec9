// What of the plan is brought into view: the frame around what somebody looks for, the cell that
// the keyboard is on, the top of a page.

#include "app/PlanAccess.h"
#include "app/PlanKeys.h"
#include "app/PlanView.h"
#include "plan/RoomRows.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>

namespace app
{
namespace
{

// What is looked for: seen on every row colour, by the light line around the dark one. Both lie
// around the box, so that they cover none of its words.
constexpr QColor kFrameLine(178, 34, 34);
constexpr QColor kFrameHalo(255, 255, 255);
constexpr int kFrameWidth = 3;
// The cell of the keyboard, told from the frame by its colour; thin while the keys go elsewhere.
constexpr QColor kCursorLine(16, 42, 110);
constexpr int kRestingWidth = 1;
constexpr int kHaloWidth = kFrameWidth + 2; ///< a pixel on either side of the line

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

QRectF PlanView::rowAcross(const form::Place& room) const
{
    QRectF across = m_target.toPixels(room);
    across.setRight(axisEnd());
    return across;
}

std::optional<PlanTable::Cell> PlanView::framedCell() const
{
    const bool isOfThisPlan = m_frame && m_frame->refresh == m_engine.refreshCount();
    return isOfThisPlan ? table().cellOf(m_frame->room, m_frame->slot) : std::nullopt;
}

QString PlanView::roomInFocus() const
{
    if (m_frame) {
        return m_frame->room;
    }
    const auto cell = cursor();
    return cell ? table().rowOf(*cell).room : QString();
}

void PlanView::paintFrame(QPainter& painter, const Bands& view) const
{
    paintRing(painter, view, framed(), kFrameLine, kFrameWidth);
}

void PlanView::paintRing(QPainter& painter, const Bands& view, const QRectF& place, QColor line,
                         int width) const
{
    if (place.isEmpty()) {
        return;
    }
    const bool beginsWithName = place.left() < view.boxes.left();
    const QPointF corner(beginsWithName ? place.left()
                                        : place.left() - horizontalScrollBar()->value(),
                         place.top() - verticalScrollBar()->value());
    painter.save();
    const QRect rows = beginsWithName ? view.boxes.united(view.names) : view.boxes;
    painter.setClipRect(rows.adjusted(-kHaloWidth, -kHaloWidth, kHaloWidth, kHaloWidth));
    painter.setRenderHint(QPainter::Antialiasing);
    const double outside = width / 2.0; // what it surrounds is to be read
    const QRectF ring = QRectF(corner, place.size()).adjusted(-outside, -outside, outside, outside);
    painter.setPen(QPen(kFrameHalo, width + 2));
    painter.drawRoundedRect(ring, 3, 3);
    painter.setPen(QPen(line, width));
    painter.drawRoundedRect(ring, 3, 3);
    painter.restore();
}

std::optional<PlanTable::Cell> PlanView::cursor() const
{
    return m_keys->cursor().cell(table());
}

void PlanView::paintCursor(QPainter& painter, const Bands& view) const
{
    // A menu of the cell leaves the focus where it is.
    const bool isInUse = hasFocus() || QApplication::activePopupWidget() != nullptr;
    if (const auto cell = cursor()) {
        const PlanTable words = table();
        const QRectF place = words.placeOf(*cell);
        const auto row = static_cast<std::size_t>(words.rowOf(*cell).index);
        // A slot that the day lacks has no place of its own.
        paintRing(painter, view,
                  place.isEmpty() ? rowAcross(m_engine.form().Salle.at(row).place) : place,
                  kCursorLine, isInUse ? kFrameWidth : kRestingWidth);
    } else if (isInUse && m_focusIsShown) {
        painter.save();
        painter.setPen(QPen(kCursorLine, 2));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
        painter.restore();
    }
}

void PlanView::showCursor()
{
    if (const auto cell = cursor()) {
        bringIntoView(table().placeOf(*cell));
    }
    viewport()->update();
    tellScreenReadersOfCursor(*this);
}

std::optional<PlanTable::Cell> PlanView::firstInSight() const
{
    const PlanTable words = table();
    const QRect boxes = bands().boxes;
    std::optional<PlanTable::Cell> first;
    for (int row = 0; row < words.rowCount() && !first; ++row) {
        for (const PlanTable::Cell& cell : words.cellsOf(row)) {
            const QRect place = inViewport(cell);
            if (cell.column > 0 && place.top() >= boxes.top() && place.left() >= boxes.left() - 1) {
                first = cell;
                break;
            }
        }
    }
    return first ? first : words.cellAt(0, 0);
}

int PlanView::rowsInSight() const
{
    const double row = m_target.toPixelsY(m_lastRowHeight + plan::kRowGap);
    return std::max(static_cast<int>(bands().boxes.height() / row), 1);
}

void PlanView::openMenu(const PlanTable::Cell& cell)
{
    if (!m_asking.showMenu || m_shownRefresh != m_engine.refreshCount()) {
        return;
    }
    const PlanTable words = table();
    const QRect place = inViewport(cell).intersected(viewport()->rect());
    m_asking.showMenu({words.rowOf(cell).room, words.slotOf(cell), words.boxOf(cell)},
                      viewport()->mapToGlobal(place.bottomLeft() + QPoint(8, 0)));
}

void PlanView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
        reason == Qt::ShortcutFocusReason) {
        m_focusIsShown = true;
    } else if (reason == Qt::MouseFocusReason) {
        m_focusIsShown = false;
    }
    if (cursor()) {
        // The toolkit tells of the plan as a whole after this: the cell has the last word.
        QTimer::singleShot(0, this, [this] { tellScreenReadersOfCursor(*this); });
    }
    viewport()->update();
}

void PlanView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

} // namespace app
