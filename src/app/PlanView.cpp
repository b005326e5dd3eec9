#include "app/PlanView.h"

#include "app/PlainTexts.h"
#include "app/PlanAccess.h"
#include "app/PlanHit.h"
#include "app/PlanKeys.h"
#include "app/ViewScale.h"
#include "app/WrappedText.h"
#include "context/PageRule.h"
#include "plan/RoomRows.h"
#include "shell/Shell.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <cmath>

namespace app
{
namespace
{

constexpr std::chrono::seconds kClockStep{5}; // that its line is behind at most
constexpr QColor kBandEdge(190, 196, 208);
// Laid over what is out of date: enough of it stays to be read.
constexpr QColor kVeil(245, 246, 249, 150);

} // namespace

PlanView::PlanView(shell::Shell& shell, Forward forward, MarkerClick markerClick)
    : m_shell(shell), m_engine(shell.engine()), m_forward(std::move(forward)),
      m_markerClick(std::move(markerClick)), m_keys(std::make_unique<PlanKeys>(*this))
{
    setObjectName(QStringLiteral("PlanView"));
    setFrameShape(QFrame::NoFrame);
    viewport()->setMouseTracking(true);
    setMinimumHeight(160);
    offerPlanToScreenReaders();
    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, [this] { followClock(); });
    clock->start(kClockStep);
}

void PlanView::setClock(std::function<QDateTime()> now)
{
    m_now = std::move(now);
    viewport()->update();
}

PlanView::~PlanView() = default;

paint::PlanScene PlanView::scene() const
{
    return paint::windowSceneOf(m_engine.state(), m_engine.content(), m_target, m_hours);
}

plan::ShownHours PlanView::hoursWanted() const
{
    return plan::shownHours(m_engine.state(), m_engine.content());
}

PlanView::Bands PlanView::bands() const
{
    const form::PlanForm& form = m_engine.form();
    const int width = viewport()->width();
    const int height = viewport()->height();
    const int top = static_cast<int>(m_target.toPixelsY(form.Salle.front().place.top)) - 1;
    const int left = static_cast<int>(m_target.toPixelsX(form.Label1.front().place.left)) - 4;
    const int right = static_cast<int>(m_target.toPixelsX(form.Cap.front().place.left)) - 3;
    const int bottom = height - m_totalsHeight;
    return {QRect(left, 0, right - left, top), QRect(0, top, left, bottom - top),
            QRect(left, top, right - left, bottom - top),
            QRect(right, top, width - right, bottom - top),
            QRect(left, bottom, right - left, m_totalsHeight)};
}

int PlanView::totalsHeight() const
{
    const bool needed = m_engine.form().Chk_Compt.isChecked() || m_engine.state().totals.isShown();
    return needed ? PlanPicture::kTotalsHeight : 0;
}

void PlanView::fit()
{
    const form::PlanForm& form = m_engine.form();
    m_lastRowHeight = form.Salle.front().place.height;
    m_lastRows = rowsWanted();
    m_totalsHeight = totalsHeight();
    const QSize room(viewport()->width(), viewport()->height() - m_totalsHeight);
    m_hours = hoursWanted();
    m_target = fitPlan(form, m_hours, m_lastRows, room);
    m_shell.layOut(static_cast<int>(viewport()->width() * m_target.TargetTwipsPerPixelX),
                   viewport()->height() * m_target.TargetTwipsPerPixelY);
    updateScrollBars();
    viewport()->update();
    if (!m_isOutOfDate) { // else the rows to come are drawn, and not one without its boxes
        drawPicture();
    }
}

void PlanView::updateScrollBars()
{
    const Bands view = bands();
    const int bottom = static_cast<int>(std::ceil(paint::PlanPainter::rowsBottom(scene()))) + 1;
    const int end = static_cast<int>(std::ceil(axisEnd()));
    verticalScrollBar()->setRange(0, std::max(0, bottom - (view.boxes.y() + view.boxes.height())));
    verticalScrollBar()->setPageStep(view.boxes.height());
    verticalScrollBar()->setSingleStep(
        static_cast<int>(m_target.toPixelsY(m_lastRowHeight + plan::kRowGap)));
    // Both edges are rounded: a pixel between them is none of the plan's.
    const int beyond = end - (view.boxes.x() + view.boxes.width());
    horizontalScrollBar()->setRange(0, beyond > 1 ? beyond : 0);
    horizontalScrollBar()->setPageStep(view.boxes.width());
}

void PlanView::showProgress(std::chrono::milliseconds patience)
{
    const std::size_t rows = m_engine.content().rows.size();
    if (m_shownRefresh != m_engine.refreshCount() || rows < m_shownRows) {
        m_shownRows = 0;
    }
    if (rows == m_shownRows ||
        std::chrono::steady_clock::now() - m_engine.refreshBegan() < patience) {
        return;
    }
    m_rowsAreNew = true;
    if (std::exchange(m_isOutOfDate, false)) {
        viewport()->update(); // without the veil, rows that have not changed included
    }
    noteShown();
    drawAll(); // what the plan showed before goes as a whole: no row of another day stays
}

void PlanView::noteShown()
{
    m_shownRefresh = m_engine.refreshCount();
    m_shownRows = m_engine.content().rows.size();
}

void PlanView::setOutOfDate(bool outOfDate)
{
    m_isOutOfDate = outOfDate && !m_rowsAreNew;
    if (outOfDate) {
        m_clicksAreOld = true;
    } else { // the clicks that have waited come first
        QTimer::singleShot(0, this, [this] { m_clicksAreOld = m_isOutOfDate; });
    }
    viewport()->update();
}

void PlanView::showAll()
{
    m_rowsAreNew = false;
    noteShown();
    drawAll();
    m_keys->settle();
    tellScreenReaders(*this);
}

void PlanView::drawAll()
{
    openAtTop();
    if (rowsWanted() != m_lastRows ||
        m_engine.form().Salle.front().place.height != m_lastRowHeight ||
        totalsHeight() != m_totalsHeight || hoursWanted() != m_hours) {
        fit();
    } else {
        drawPicture();
    }
}

/// Rows that the view has to find room for, the greyed one included.
int PlanView::rowsWanted() const
{
    const int first = context::PageRule(m_engine.form()).firstRow();
    return std::max(m_engine.state().page.RowsShown + 1 - first, 1);
}

QPointF PlanView::toViewport(QPointF planPoint) const
{
    return planPoint - QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

QPointF PlanView::toPlan(QPoint viewportPoint) const
{
    return QPointF(viewportPoint) +
           QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

QSize PlanView::planSize() const
{
    const int bottom = static_cast<int>(std::ceil(paint::PlanPainter::rowsBottom(scene()))) + 1;
    const int end = static_cast<int>(std::ceil(axisEnd()));
    return {std::max(viewport()->width(), end + 1),
            std::max(viewport()->height() - m_totalsHeight, bottom)};
}

void PlanView::drawPicture()
{
    const PlanPicture::Change change = m_picture.draw(scene(), planSize(), devicePixelRatioF());
    for (const QRect& part : change.plan) {
        viewport()->update(0, part.top() - verticalScrollBar()->value(), viewport()->width(),
                           part.height());
    }
    if (change.totals) {
        const QRect totals = bands().totals;
        viewport()->update(0, totals.top(), viewport()->width(), totals.height());
    }
}

void PlanView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.setClipRegion(event->region());
    painter.fillRect(viewport()->rect(), PlanPicture::kBandFill);
    const Bands view = bands();
    const int scrollX = horizontalScrollBar()->value();
    const int scrollY = verticalScrollBar()->value();
    const auto copy = [&painter](const QRect& place, const QPixmap& picture, QPoint from) {
        const double ratio = picture.devicePixelRatio();
        painter.drawPixmap(QRectF(place), picture,
                           QRectF(QPointF(from) * ratio, QSizeF(place.size()) * ratio));
    };
    const QPixmap& plan = m_picture.plan();
    copy(view.boxes, plan, view.boxes.topLeft() + QPoint(scrollX, scrollY));
    copy(view.names, plan, view.names.topLeft() + QPoint(0, scrollY));
    copy(view.places, plan, view.places.topLeft() + QPoint(0, scrollY));
    // Where the plan is wider than the view, boxes lie behind the places and go on beside them.
    const form::Place& labels = m_engine.form().Cap.front().place;
    const int placesEnd = static_cast<int>(m_target.toPixelsX(labels.left + labels.width)) + 1;
    painter.fillRect(view.places.adjusted(placesEnd - view.places.left(), 0, 0, 0),
                     PlanPicture::kBandFill);
    const QRect ticks = view.ticks.adjusted(0, 0, view.places.width(), 0);
    copy(ticks, plan, ticks.topLeft() + QPoint(scrollX, 0));
    painter.setPen(kBandEdge);
    painter.drawLine(view.boxes.left() - 1, view.boxes.top(), view.boxes.left() - 1,
                     view.boxes.top() + view.boxes.height());
    if (m_totalsHeight > 0) {
        copy(view.totals, m_picture.totals(), QPoint(view.totals.x() + scrollX, 0));
        painter.drawLine(0, view.totals.top(), viewport()->width(), view.totals.top());
    }
    paintClock(painter, view);
    paintLights(painter, view);
    paintFrame(painter, view);
    paintCursor(painter, view);
    if (m_isOutOfDate) {
        painter.fillRect(viewport()->rect(), kVeil);
    }
}

void PlanView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    fit();
}

void PlanView::scrollContentsBy(int dx, int dy)
{
    Q_UNUSED(dx)
    Q_UNUSED(dy)
    viewport()->update();
}

void PlanView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        m_keys->openMenu();
        return;
    }
    const auto spot = spotAt(event->pos());
    if (spot && m_asking.showMenu && m_shownRefresh == m_engine.refreshCount()) {
        m_asking.showMenu(*spot, event->globalPos());
    }
}

void PlanView::keyPressEvent(QKeyEvent* event)
{
    if (!m_keys->press(*event)) {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void PlanView::goToPage(void (engine::Engine::*page)())
{
    m_forward([this, page] { (m_engine.*page)(); });
}

bool PlanView::takesClicks() const
{
    return m_shownRefresh == m_engine.refreshCount() && !m_clicksAreOld;
}

void PlanView::mousePressEvent(QMouseEvent* event)
{
    unframe();
    m_keys->leaveTo(cellUnder(event->globalPosition().toPoint()));
    const bool isOfThisPlan = m_shownRefresh == m_engine.refreshCount();
    const QString greyed = greyedRoomAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && isOfThisPlan && !greyed.isEmpty() &&
        m_asking.openGreyed) {
        m_asking.openGreyed(greyed);
        return;
    }
    if (event->button() != Qt::LeftButton || !bands().boxes.contains(event->position().toPoint())) {
        return;
    }
    if (!isOfThisPlan) {
        m_markerClick(kTooLate);
        return;
    }
    const PlanHit hit =
        hitPlan(m_engine.form(), m_engine.content(), m_target, toPlan(event->position().toPoint()));
    if (hit.part == PlanHit::Part::Counter) {
        const plan::GroupCounter group = *hit.box->group;
        m_forward([this, group] { m_engine.Label2_Click(group); });
    } else if (hit.part != PlanHit::Part::Size) {
        m_markerClick(m_clicksAreOld ? kTooLate : hit.box == nullptr ? kNoBox : hit.box->marker);
    }
}

void PlanView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QString room = roomAt(event->position().toPoint());
    if (!room.isEmpty() && event->button() == Qt::LeftButton && m_asking.openRoom) {
        m_asking.openRoom(room);
        return;
    }
    mousePressEvent(event); // what comes in the place of a quick second press
}

bool PlanView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        light(litAt(dynamic_cast<const QMouseEvent&>(*event).position().toPoint()));
    } else if (event->type() == QEvent::Leave) {
        light({});
    }
    if (event->type() == QEvent::ToolTip) {
        const auto& help = dynamic_cast<const QHelpEvent&>(*event);
        const QString text = toolTipAt(help.pos());
        if (text.isEmpty()) {
            QToolTip::hideText();
        } else {
            QToolTip::showText(help.globalPos(), plainToolTip(wrapped(text, QToolTip::font())),
                               viewport());
        }
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

} // namespace app
