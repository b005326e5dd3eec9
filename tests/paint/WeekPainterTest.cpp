#include "paint/WeekPainter.h"

#include "paint/Canvas.h"
#include "paint/Inks.h"
#include "paint/WeekInks.h"
#include "paint/Weeks.h"
#include "support/RuntimeMatchers.h"

using namespace paint;
using namespace test;
using answers::WeekGrid;
using form::Colour;
using timetable::MeetingKind;

namespace
{

constexpr QRect weekArea(0, 0, 1340, 640);
const std::vector<Colour> colors{Colour::fromRgb(250, 230, 120)};
constexpr QColor wheat(250, 230, 120);

WeekPainter painterOf(const WeekGrid& grid, const QRect& where = weekArea)
{
    return {grid, colors, {}, where};
}

Canvas drawn(const WeekGrid& grid, const QRect& where = weekArea)
{
    Canvas canvas(where.right() + 11, where.bottom() + 11);
    canvas.draw([&](QPainter& surface) { painterOf(grid, where).paint(surface); });
    return canvas;
}

/// The darkest pixel of the weekArea is no darker than a line.
bool isBlank(const Canvas& canvas, const QRect& where)
{
    return canvas.lightness(where).first > 100;
}

} // namespace

TEST(AWeek, hasSixColumnsOfOneWidth)
{
    const WeekGrid grid = plainGrid();
    const WeekPainter painter = painterOf(grid);
    const double width = painter.dayRectangle(0).width();
    for (int day = 0; day < 6; ++day) {
        EXPECT_NEAR(painter.dayRectangle(day).width(), width, 1e-6);
        EXPECT_EQ(painter.dayRectangle(day).top(), 0);
        EXPECT_EQ(painter.dayAt(painter.dayRectangle(day).center()), day);
    }
    EXPECT_NEAR(painter.dayRectangle(5).right(), weekArea.width(), 2);
    EXPECT_EQ(painter.dayAt({1, 320}), std::nullopt); // among the hours
}

TEST(AWeek, drawsNothingBesideItsArea)
{
    WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(0, 480, 240, {"L1"}), boxAt(5, 480, 30000, {"L2"})};
    EXPECT_EQ(drawn(grid, QRect(10, 20, 800, 400)).touched(), QRect(10, 20, 800, 400));
}

TEST(AWeek, hasBoxesAtTheirTimes)
{
    WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(1, 480, 120), boxAt(1, 600, 120), boxAt(1, 600, 30000)};
    const WeekPainter painter = painterOf(grid);
    const QRectF day = painter.dayRectangle(1);
    const QRectF first = painter.boxRectangle(0);
    const QRectF second = painter.boxRectangle(1);
    EXPECT_EQ(first.bottom(), second.top()); // 10h00
    EXPECT_NEAR(first.height(), second.height(), 1);
    EXPECT_NEAR(second.bottom(), day.bottom(), 1);                // the end of the axis
    EXPECT_EQ(painter.boxRectangle(2).bottom(), second.bottom()); // never beyond it
    EXPECT_GE(first.left(), day.left());
    EXPECT_LE(first.right(), day.right());
    EXPECT_GT(first.width(), 0.95 * day.width());
}

TEST(AWeek, keepsAShortBoxAtTheEndOfTheDayWithinIt)
{
    WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(1, 719, 1)};
    const WeekPainter painter = painterOf(grid);
    EXPECT_GE(painter.boxRectangle(0).height(), 2);
    EXPECT_NEAR(painter.boxRectangle(0).bottom(), painter.dayRectangle(1).bottom(), 1);
}

TEST(AWeek, isDrawnWhereThereIsNoRoomForIt)
{
    WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(1, 480, 90, {"L1"})};
    grid.unplaced = {{timetable::HoldingId(0), 0, "Lundi : L1"}};
    EXPECT_TRUE(drawn(grid, QRect(5, 5, 20, 10)).isTouched(10, 10));
}

TEST(AWeek, dividesTheWidthAmongLanes)
{
    WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(2, 480, 120), boxAt(2, 480, 120)};
    grid.boxes[0].lanes = grid.boxes[1].lanes = 2;
    grid.boxes[1].lane = 1;
    const WeekPainter painter = painterOf(grid);
    const QRectF left = painter.boxRectangle(0);
    const QRectF right = painter.boxRectangle(1);
    EXPECT_EQ(left.right(), right.left());
    EXPECT_NEAR(left.width(), right.width(), 1);
    EXPECT_EQ(left.top(), right.top());
}

TEST(AWeek, tellsWhichBoxLiesUnderAPoint)
{
    WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(0, 480, 120), boxAt(0, 600, 120)};
    const WeekPainter painter = painterOf(grid);
    const QRectF first = painter.boxRectangle(0);
    EXPECT_EQ(painter.boxAt(first.center()), 0);
    EXPECT_EQ(painter.boxAt(first.topLeft()), 0);
    EXPECT_EQ(painter.boxAt({first.left(), first.bottom()}), 1);
    EXPECT_EQ(painter.boxAt({first.left(), first.top() - 1}), std::nullopt);
    EXPECT_EQ(painter.boxAt(painter.dayRectangle(3).center()), std::nullopt);
}

TEST(AWeek, fillsBoxesWithTheColourOfTheirRoom)
{
    WeekGrid grid = plainGrid();
    grid.boxes = {boxAt(0, 480, 120), boxAt(1, 480, 120), boxAt(2, 480, 120)};
    grid.boxes[1].room = timetable::RoomId(7); // none of the plan's
    grid.boxes[2].room = {};
    const Canvas canvas = drawn(grid);
    const WeekPainter painter = painterOf(grid);
    const auto middle = [&](std::size_t box) {
        const QPoint point = painter.boxRectangle(box).center().toPoint();
        return canvas.at(point.x(), point.y());
    };
    EXPECT_EQ(middle(0), wheat);
    EXPECT_EQ(middle(1), QColor(225, 225, 225));
    EXPECT_EQ(middle(2), QColor(225, 225, 225));
}

TEST(AWeek, growsItsTextsWithItsArea)
{
    const auto titleHeight = [](int scale) {
        const QRect large(0, 0, weekArea.width() * scale, weekArea.height() * scale);
        const WeekGrid grid = plainGrid();
        const QRectF day = painterOf(grid, large).dayRectangle(0);
        const QRect title = QRectF(day.left() + 2, 0, day.width() - 4, 20 * scale).toRect();
        return drawn(grid, large).bounds(kTitleGround, title).height();
    };
    EXPECT_NEAR(titleHeight(3), 3 * titleHeight(1), 4);
}

TEST(AWeek, saysThatThereIsNothing)
{
    WeekGrid grid = plainGrid();
    const QRectF body(painterOf(grid).dayRectangle(0).left(), 100, 1200, 500);
    EXPECT_FALSE(isBlank(drawn(grid), body.toRect()));
    grid.unplaced = {{timetable::HoldingId(0), 0, "Lundi : L1"}};
    EXPECT_TRUE(isBlank(drawn(grid), body.toRect()));
}

TEST(AWeek, tellsBeneathWhatHasNoKnownTime)
{
    WeekGrid grid = plainGrid();
    EXPECT_TRUE(painterOf(grid).unplacedRectangle().isEmpty());
    grid.boxes = {boxAt(0, 480, 240)};
    grid.unplaced = {{timetable::HoldingId(0), 0, "Lundi : L1"}};
    const QRectF one = painterOf(grid).unplacedRectangle();
    EXPECT_EQ(one.bottom(), weekArea.height());
    EXPECT_LE(painterOf(grid).boxRectangle(0).bottom(), one.top());
    EXPECT_FALSE(isBlank(drawn(grid), one.toRect()));
    grid.unplaced.resize(3, grid.unplaced[0]);
    EXPECT_NEAR(painterOf(grid).unplacedRectangle().height(), 3 * one.height(), 1);
    grid.unplaced.resize(50, grid.unplaced[0]); // the third line tells how many more there are
    EXPECT_NEAR(painterOf(grid).unplacedRectangle().height(), 3 * one.height(), 1);
}

TEST(AWeek, showsEveryHourWhereTheDaysHaveNoSlots)
{
    WeekGrid grid = plainGrid();
    for (answers::WeekDay& day : grid.days) {
        day.slotTimes.clear();
    }
    const QRect hours(0, 0, static_cast<int>(painterOf(grid).dayRectangle(0).left()) - 1, 640);
    const Canvas canvas = drawn(grid);
    int labels = 0;
    bool wasBlank = true;
    for (int y = hours.top(); y <= hours.bottom(); ++y) {
        const bool isLine = isBlank(canvas, QRect(hours.left(), y, hours.width(), 1));
        labels += wasBlank && !isLine ? 1 : 0;
        wasBlank = isLine;
    }
    EXPECT_EQ(labels, 5); // 8h00 to 12h00
}
