#pragma once

#include "answers/WeekGrid.h"
#include "form/Colour.h"
#include "paint/WeekPainter.h"

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

namespace app
{

/// Shows the week of somebody or something, days across and hours down. One box has the cursor: it
/// is framed, spoken and told by `onCursor`; the keys Up and Down move it, Home and End, and Enter
/// opens it, as a double click does.
class WeekView : public QWidget
{
public:
    WeekView();

    void show(answers::WeekGrid grid, std::vector<form::Colour> roomColors);
    /// Puts the cursor on the first box of a day, 0 to 5. False where the day has none.
    bool goToDay(int day);
    [[nodiscard]] const answers::WeekGrid& grid() const { return m_grid; }
    /// The box with the cursor, of WeekGrid::boxes; nothing in an empty week.
    [[nodiscard]] std::optional<std::size_t> cursor() const { return m_cursor; }
    /// Where a box lies, in the widget's pixels.
    [[nodiscard]] QRectF boxRectangle(std::size_t box) const;

    std::function<void(const answers::WeekBox& box)> onOpen;
    std::function<void(const QString& words)> onCursor;
    /// Left and Right: the one before, the one behind.
    std::function<void(int step)> onFlip;

    [[nodiscard]] QSize sizeHint() const override { return {900, 560}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    [[nodiscard]] paint::WeekPainter painter() const;
    [[nodiscard]] QString wordsOf(std::size_t box) const;
    void setCursorBox(std::size_t box);

    answers::WeekGrid m_grid;
    std::vector<form::Colour> m_roomColors;
    std::optional<std::size_t> m_cursor;
};

} // namespace app
