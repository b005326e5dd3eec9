#pragma once

#include "answers/RoomWeeks.h"
#include "form/Colour.h"
#include "paint/OverviewPainter.h"

#include <QAbstractScrollArea>
#include <functional>
#include <optional>
#include <vector>

namespace app
{

/// Shows the week of all rooms, a row each. The days stay in view while the rooms scroll. One row
/// has the cursor: Up, Down, Home and End move it, and Enter opens the room's week, as a double
/// click on its name does; a double click on a box opens the box.
class OverviewView : public QAbstractScrollArea
{
public:
    OverviewView();

    void show(answers::RoomWeeks weeks, std::vector<form::Colour> roomColors);
    [[nodiscard]] const answers::RoomWeeks& weeks() const { return m_weeks; }
    /// The row with the cursor; nothing without rooms.
    [[nodiscard]] std::optional<std::size_t> cursor() const { return m_cursor; }
    /// Where a room's name lies in the viewport.
    [[nodiscard]] QRectF nameRectangle(std::size_t row) const;

    std::function<void(const answers::RoomWeek& room)> onOpenRoom;
    std::function<void(const answers::WeekBox& box)> onOpen;
    std::function<void(const QString& words)> onCursor;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;

private:
    /// In the coordinates of the whole picture, unscrolled.
    [[nodiscard]] paint::OverviewPainter painter() const;
    [[nodiscard]] QPointF toPicture(QPointF viewportPoint) const;
    [[nodiscard]] QString wordsOf(std::size_t row) const;
    void updateScrollBars();
    void setCursorRow(std::size_t row);

    answers::RoomWeeks m_weeks;
    std::vector<form::Colour> m_roomColors;
    std::optional<std::size_t> m_cursor;
};

} // namespace app
