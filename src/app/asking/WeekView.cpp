#include "app/asking/WeekView.h"

#include "app/PlainTexts.h"
#include "paint/WeekInks.h"
#include "print/Targets.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

namespace app
{
namespace
{

constexpr int kMargin = 6;

} // namespace

WeekView::WeekView()
{
    setObjectName(QStringLiteral("WeekView"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(420, 240);
}

void WeekView::show(answers::WeekGrid grid, std::vector<form::Colour> roomColors)
{
    m_grid = std::move(grid);
    m_roomColors = std::move(roomColors);
    m_cursor.reset();
    if (!m_grid.boxes.empty()) {
        setCursorBox(0);
    }
    update();
}

bool WeekView::goToDay(int day)
{
    const auto box = std::find_if(m_grid.boxes.begin(), m_grid.boxes.end(),
                                  [day](const answers::WeekBox& any) { return any.day == day; });
    if (box == m_grid.boxes.end()) {
        return false;
    }
    setCursorBox(static_cast<std::size_t>(box - m_grid.boxes.begin()));
    return true;
}

paint::WeekPainter WeekView::painter() const
{
    return {m_grid, m_roomColors, print::UseScreenTarget(),
            QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin)};
}

QRectF WeekView::boxRectangle(std::size_t box) const
{
    return painter().boxRectangle(box);
}

QString WeekView::wordsOf(std::size_t box) const
{
    const answers::WeekBox& shown = m_grid.boxes.at(box);
    return answers::boxWords(shown, m_grid.days.at(static_cast<std::size_t>(shown.day)).title);
}

void WeekView::setCursorBox(std::size_t box)
{
    m_cursor = box;
    const QString words = wordsOf(box);
    setAccessibleDescription(words);
    QAccessibleEvent told(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
    if (onCursor) {
        onCursor(words);
    }
    update();
}

void WeekView::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter surface(this);
    surface.fillRect(rect(), Qt::white);
    const paint::WeekPainter week = painter();
    week.paint(surface);
    if (m_cursor && hasFocus()) {
        surface.setRenderHint(QPainter::Antialiasing);
        surface.setPen(QPen(paint::kWeekCursor, 3));
        surface.drawRoundedRect(week.boxRectangle(*m_cursor).adjusted(1, 1, -1, -1), 3, 3);
    }
}

void WeekView::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if ((key == Qt::Key_Left || key == Qt::Key_Right) && onFlip) {
        onFlip(key == Qt::Key_Left ? -1 : 1);
        return;
    }
    if (!m_cursor) {
        QWidget::keyPressEvent(event);
        return;
    }
    const std::size_t last = m_grid.boxes.size() - 1;
    if (key == Qt::Key_Down) {
        setCursorBox(std::min(*m_cursor + 1, last));
    } else if (key == Qt::Key_Up) {
        setCursorBox(*m_cursor == 0 ? 0 : *m_cursor - 1);
    } else if (key == Qt::Key_Home) {
        setCursorBox(0);
    } else if (key == Qt::Key_End) {
        setCursorBox(last);
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && onOpen) {
        onOpen(m_grid.boxes[*m_cursor]);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void WeekView::mousePressEvent(QMouseEvent* event)
{
    if (const auto box = painter().boxAt(event->position())) {
        setCursorBox(*box);
    }
}

void WeekView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const auto box = painter().boxAt(event->position());
    if (box && onOpen) {
        onOpen(m_grid.boxes[*box]);
    }
}

bool WeekView::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto& help = dynamic_cast<const QHelpEvent&>(*event);
        const auto box = painter().boxAt(help.pos());
        if (box) {
            QToolTip::showText(help.globalPos(), plainToolTip(wordsOf(*box)), this);
        } else {
            QToolTip::hideText();
        }
        return true;
    }
    return QWidget::event(event);
}

} // namespace app
