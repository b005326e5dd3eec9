#include "app/asking/OverviewView.h"

#include "app/PlainTexts.h"
#include "paint/WeekInks.h"
#include "print/Targets.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

namespace app
{
namespace
{

} // namespace

OverviewView::OverviewView()
{
    setObjectName(QStringLiteral("OverviewView"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    setMinimumSize(420, 240);
}

void OverviewView::show(answers::RoomWeeks weeks, std::vector<form::Colour> roomColors)
{
    const std::size_t before = m_cursor.value_or(0);
    m_weeks = std::move(weeks);
    m_roomColors = std::move(roomColors);
    m_cursor.reset();
    updateScrollBars();
    if (!m_weeks.rows.empty()) {
        setCursorRow(std::min(before, m_weeks.rows.size() - 1));
    }
    viewport()->update();
}

paint::OverviewPainter OverviewView::painter() const
{
    const paint::DrawingTarget target = print::UseScreenTarget();
    const double height =
        std::max(static_cast<double>(viewport()->height()),
                 paint::OverviewPainter::leastHeight(m_weeks.rows.size(), target));
    return {m_weeks, m_roomColors, target, QRectF(0, 0, viewport()->width(), height)};
}

void OverviewView::updateScrollBars()
{
    const double height =
        paint::OverviewPainter::leastHeight(m_weeks.rows.size(), print::UseScreenTarget());
    verticalScrollBar()->setRange(
        0, std::max(0, static_cast<int>(std::ceil(height)) - viewport()->height()));
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setSingleStep(m_weeks.rows.empty()
                                           ? 1
                                           : static_cast<int>(height) /
                                                 static_cast<int>(m_weeks.rows.size() + 1));
}

QPointF OverviewView::toPicture(QPointF viewportPoint) const
{
    return viewportPoint + QPointF(0, verticalScrollBar()->value());
}

QRectF OverviewView::nameRectangle(std::size_t row) const
{
    return painter().nameRectangle(row).translated(0, -verticalScrollBar()->value());
}

QString OverviewView::wordsOf(std::size_t row) const
{
    const answers::RoomWeek& room = m_weeks.rows.at(row);
    QString words = QStringLiteral("%1, %2 places, ").arg(room.name).arg(room.places);
    words += room.boxes.empty()       ? QStringLiteral("rien cette semaine")
             : room.boxes.size() == 1 ? QStringLiteral("1 séance")
                                      : QStringLiteral("%1 séances").arg(room.boxes.size());
    return words;
}

void OverviewView::setCursorRow(std::size_t row)
{
    m_cursor = row;
    const QString words = wordsOf(row);
    setAccessibleDescription(words);
    QAccessibleEvent told(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
    if (onCursor) {
        onCursor(words);
    }
    const QRectF place = painter().rowRectangle(row);
    const double heading = paint::OverviewPainter::headingHeight(print::UseScreenTarget());
    if (place.top() - verticalScrollBar()->value() < heading) {
        verticalScrollBar()->setValue(static_cast<int>(place.top() - heading));
    } else if (place.bottom() - verticalScrollBar()->value() > viewport()->height()) {
        verticalScrollBar()->setValue(static_cast<int>(std::ceil(place.bottom())) -
                                      viewport()->height());
    }
    viewport()->update();
}

void OverviewView::paintEvent(QPaintEvent* event)
{
    QPainter surface(viewport());
    surface.fillRect(event->rect(), Qt::white);
    const paint::OverviewPainter overview = painter();
    if (m_weeks.isEmpty()) {
        overview.paint(surface);
        return;
    }
    const int scrolled = verticalScrollBar()->value();
    surface.translate(0, -scrolled);
    overview.paintRows(surface, QRectF(event->rect()).translated(0, scrolled));
    if (m_cursor && hasFocus()) {
        surface.setPen(QPen(paint::kWeekCursor, 2));
        surface.drawRect(overview.rowRectangle(*m_cursor).adjusted(1, 1, -1, -1));
    }
    surface.translate(0, scrolled);
    overview.paintHeading(surface);
}

void OverviewView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
}

void OverviewView::scrollContentsBy(int dx, int dy)
{
    Q_UNUSED(dx)
    Q_UNUSED(dy)
    viewport()->update();
}

void OverviewView::keyPressEvent(QKeyEvent* event)
{
    if (!m_cursor) {
        QAbstractScrollArea::keyPressEvent(event);
        return;
    }
    const std::size_t last = m_weeks.rows.size() - 1;
    const int key = event->key();
    if (key == Qt::Key_Down) {
        setCursorRow(std::min(*m_cursor + 1, last));
    } else if (key == Qt::Key_Up) {
        setCursorRow(*m_cursor == 0 ? 0 : *m_cursor - 1);
    } else if (key == Qt::Key_Home) {
        setCursorRow(0);
    } else if (key == Qt::Key_End) {
        setCursorRow(last);
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && onOpenRoom) {
        onOpenRoom(m_weeks.rows[*m_cursor]);
    } else {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void OverviewView::mousePressEvent(QMouseEvent* event)
{
    if (const auto row = painter().rowAt(toPicture(event->position()))) {
        setCursorRow(*row);
    }
}

void OverviewView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPointF point = toPicture(event->position());
    const paint::OverviewPainter overview = painter();
    const auto box = overview.boxAt(point);
    const auto row = overview.rowAt(point);
    if (box && onOpen) {
        onOpen(m_weeks.rows.at(box->row).boxes.at(box->box));
    } else if (row && onOpenRoom) {
        onOpenRoom(m_weeks.rows.at(*row));
    }
}

bool OverviewView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QAbstractScrollArea::viewportEvent(event);
    }
    const auto& help = dynamic_cast<const QHelpEvent&>(*event);
    const QPointF point = toPicture(help.pos());
    const paint::OverviewPainter overview = painter();
    QString words;
    if (const auto which = overview.boxAt(point)) {
        const answers::RoomWeek& room = m_weeks.rows.at(which->row);
        const answers::WeekBox& box = room.boxes.at(which->box);
        words = room.name + u'\n' +
                answers::boxWords(box, m_weeks.days.at(static_cast<std::size_t>(box.day)).title);
    } else if (const auto row = overview.rowAt(point)) {
        words = wordsOf(*row);
        const auto day = overview.dayAt(point);
        if (day && !m_weeks.rows[*row].unknown.at(static_cast<std::size_t>(*day)).isEmpty()) {
            words += u'\n' + m_weeks.rows[*row].unknown.at(static_cast<std::size_t>(*day));
        }
    }
    if (words.isEmpty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(help.globalPos(), plainToolTip(words), viewport());
    }
    return true;
}

} // namespace app
