// The week of all rooms in a user's hands: rooms R0, R1 and so on, which have nothing.

#include "app/asking/OverviewView.h"

#include "paint/Weeks.h"

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <gtest/gtest.h>

using namespace test;

namespace
{

class TheOverview : public testing::Test
{
protected:
    void open(int rooms, QSize size = {900, 400})
    {
        view.onCursor = [this](const QString& words) { told << words; };
        view.onOpenRoom = [this](const answers::RoomWeek& room) { opened << room.name; };
        view.resize(size);
        view.QWidget::show();
        view.show(plainRooms(rooms), {});
    }
    void press(Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&view, &event);
    }
    void mouse(QEvent::Type type, QPointF place)
    {
        QMouseEvent event(type, place, view.viewport()->mapToGlobal(place), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &event);
    }

    app::OverviewView view;
    QStringList told;
    QStringList opened;
};

} // namespace

TEST_F(TheOverview, movesItsCursorByKeysAndStopsAtTheEnds)
{
    open(4);
    press(Qt::Key_Up);
    EXPECT_EQ(view.cursor(), 0U);
    press(Qt::Key_Down);
    EXPECT_EQ(view.cursor(), 1U);
    press(Qt::Key_End);
    EXPECT_EQ(view.cursor(), 3U);
    press(Qt::Key_Down);
    EXPECT_EQ(view.cursor(), 3U);
    press(Qt::Key_Home);
    EXPECT_EQ(view.cursor(), 0U);
}

TEST_F(TheOverview, tellsTheRoomUnderItsCursorToThoseWhoListen)
{
    open(2);
    told.clear();
    press(Qt::Key_Down);
    EXPECT_EQ(told, QStringList("R1, 30 places, rien cette semaine"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->text(QAccessible::Description),
              "R1, 30 places, rien cette semaine");
}

TEST_F(TheOverview, opensTheRoomUnderItsCursor)
{
    open(3);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    press(Qt::Key_End);
    press(Qt::Key_Enter);
    EXPECT_EQ(opened, QStringList({"R1", "R2"}));
}

TEST_F(TheOverview, putsItsCursorWhereTheMouseIsAndOpensOnADoubleClick)
{
    open(3);
    const QPointF place = view.nameRectangle(2).center();
    mouse(QEvent::MouseButtonPress, place);
    EXPECT_EQ(view.cursor(), 2U);
    EXPECT_TRUE(opened.isEmpty());
    mouse(QEvent::MouseButtonDblClick, place);
    EXPECT_EQ(opened, QStringList("R2"));
}

TEST_F(TheOverview, bringsItsCursorIntoView)
{
    open(120);
    ASSERT_GT(view.verticalScrollBar()->maximum(), 0);
    press(Qt::Key_End);
    const QRectF last = view.nameRectangle(119);
    EXPECT_LE(last.bottom(), view.viewport()->height() + 1);
    EXPECT_GT(last.top(), 0);
    press(Qt::Key_Home);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_F(TheOverview, hasNoCursorWithoutRooms)
{
    open(0);
    EXPECT_FALSE(view.cursor());
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(view.cursor());
    EXPECT_TRUE(opened.isEmpty());
}
