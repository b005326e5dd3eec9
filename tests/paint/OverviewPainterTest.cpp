#include "paint/OverviewPainter.h"

#include "paint/Canvas.h"
#include "paint/Weeks.h"
#include "support/RuntimeMatchers.h"

using namespace paint;
using namespace test;
using answers::RoomWeeks;
using form::Colour;

namespace
{

const std::vector<Colour> colors{Colour::fromRgb(250, 230, 120), Colour::fromRgb(20, 30, 90)};
constexpr QColor sand(250, 230, 120);
constexpr QColor ink(20, 30, 90);
constexpr QRectF sheet(0, 0, 1300, 435); // 10 rows of 40 pixels are too high; see below

Canvas drawn(const RoomWeeks& weeks, const QRectF& where = sheet)
{
    Canvas canvas(1320, 460);
    canvas.draw(
        [&](QPainter& surface) { OverviewPainter(weeks, colors, {}, where).paint(surface); });
    return canvas;
}

} // namespace

TEST(TheOverview, hasARowPerRoom)
{
    const RoomWeeks weeks = plainRooms(10);
    const OverviewPainter painter(weeks, colors, {}, sheet);
    const double heading = OverviewPainter::headingHeight({});
    EXPECT_EQ(painter.rowRectangle(0).top(), heading);
    const double height = (sheet.height() - 1 - heading) / 10; // one line below the last
    for (std::size_t row = 0; row < 10; ++row) {
        const QRectF place = painter.rowRectangle(row);
        EXPECT_NEAR(place.height(), height, 1);
        EXPECT_EQ(painter.rowAt(place.center()), row);
        EXPECT_EQ(painter.rowAt(painter.nameRectangle(row).center()), row);
    }
    EXPECT_EQ(painter.rowAt({500, heading - 1}), std::nullopt);
    EXPECT_EQ(painter.rowAt({500, sheet.bottom() + 5}), std::nullopt);
}

TEST(TheOverview, hasNoRowsHigherThanTheirTextsNeed)
{
    const RoomWeeks weeks = plainRooms(2);
    const OverviewPainter painter(weeks, colors, {}, sheet);
    EXPECT_EQ(painter.rowRectangle(0).height(), 48); // 36 points
}

TEST(TheOverview, needsTwentyPixelsForARow)
{
    EXPECT_EQ(OverviewPainter::leastHeight(64, {}) - OverviewPainter::leastHeight(0, {}), 64 * 20);
}

TEST(TheOverview, givesDaysWidthsByTheirLength)
{
    RoomWeeks weeks = plainRooms(1);
    weeks.days[5].axis = {{480}, {120}}; // half of a day
    const OverviewPainter painter(weeks, colors, {}, sheet);
    EXPECT_NEAR(painter.dayRectangle(5).width() * 2, painter.dayRectangle(0).width(), 1e-6);
    EXPECT_NEAR(painter.dayRectangle(5).right(), sheet.right(), 2);
    EXPECT_EQ(painter.dayRectangle(0).left(), painter.nameRectangle(0).right());
    EXPECT_EQ(painter.dayAt(painter.dayRectangle(3).center()), 3);
    EXPECT_EQ(painter.dayAt({1, 100}), std::nullopt); // among the names
}

TEST(TheOverview, hasBoxesAtTheirTimes)
{
    RoomWeeks weeks = plainRooms(2);
    weeks.rows[1].boxes = {boxAt(1, 480, 120), boxAt(1, 600, 120)};
    const OverviewPainter painter(weeks, colors, {}, sheet);
    const QRectF day = painter.dayRectangle(1);
    const QRectF first = painter.boxRectangle({1, 0});
    const QRectF second = painter.boxRectangle({1, 1});
    EXPECT_NEAR(first.left(), day.left(), 2);
    EXPECT_NEAR(first.right(), day.center().x(), 1);
    EXPECT_NEAR(second.right(), day.right(), 1);
    EXPECT_TRUE(painter.rowRectangle(1).contains(first));
    EXPECT_EQ(painter.boxAt(second.center()), (OverviewBox{1, 1}));
    EXPECT_EQ(painter.boxAt({second.center().x(), painter.rowRectangle(0).center().y()}),
              std::nullopt);
}

TEST(TheOverview, dividesTheHeightAmongLanes)
{
    RoomWeeks weeks = plainRooms(1);
    weeks.rows[0].boxes = {boxAt(0, 480, 120), boxAt(0, 480, 120)};
    weeks.rows[0].boxes[0].lanes = weeks.rows[0].boxes[1].lanes = 2;
    weeks.rows[0].boxes[1].lane = 1;
    const OverviewPainter painter(weeks, colors, {}, sheet);
    const QRectF upper = painter.boxRectangle({0, 0});
    const QRectF lower = painter.boxRectangle({0, 1});
    EXPECT_EQ(upper.bottom(), lower.top());
    EXPECT_NEAR(upper.height(), lower.height(), 1);
    EXPECT_EQ(upper.left(), lower.left());
}

TEST(TheOverview, fillsNamesAndBoxesWithTheColourOfTheRoom)
{
    RoomWeeks weeks = plainRooms(2);
    weeks.rows[1].boxes = {boxAt(0, 480, 240)};
    const Canvas canvas = drawn(weeks);
    const OverviewPainter painter(weeks, colors, {}, sheet);
    const auto at = [&](QPointF point) {
        return canvas.at(static_cast<int>(point.x()), static_cast<int>(point.y()));
    };
    EXPECT_EQ(at(painter.nameRectangle(0).topLeft() + QPointF(1, 2)), sand);
    EXPECT_EQ(at(painter.nameRectangle(1).topLeft() + QPointF(1, 2)), ink);
    EXPECT_EQ(at(painter.boxRectangle({1, 0}).center()), ink);
    EXPECT_EQ(at(painter.dayRectangle(2).center()), QColor(255, 255, 255));
}

TEST(TheOverview, marksDaysOfWhichNobodyKnows)
{
    RoomWeeks weeks = plainRooms(1);
    weeks.rows[0].unknown[3] = "L1 (Jeudi9) : ni heure de début";
    const OverviewPainter painter(weeks, colors, {}, sheet);
    const QRect day = painter.dayRectangle(3).intersected(painter.rowRectangle(0)).toRect();
    EXPECT_GT(drawn(weeks).count(QColor(225, 225, 225), day), day.width() * day.height() / 3);
}

TEST(TheOverview, drawsOnlyTheRowsThatAreAskedFor)
{
    const RoomWeeks weeks = plainRooms(10);
    const OverviewPainter painter(weeks, colors, {}, sheet);
    Canvas canvas(1320, 460);
    const QRectF exposed = painter.rowRectangle(4).adjusted(0, 5, 0, -5);
    canvas.draw([&](QPainter& surface) { painter.paintRows(surface, exposed); });
    const QRectF row = painter.rowRectangle(4);
    EXPECT_EQ(canvas.touched().top(), row.top());
    EXPECT_NEAR(canvas.touched().bottom(), row.bottom(), 1);
}

TEST(TheOverview, drawsItsHeadingByItself)
{
    const RoomWeeks weeks = plainRooms(3);
    Canvas canvas(1320, 460);
    canvas.draw([&](QPainter& surface) {
        OverviewPainter(weeks, colors, {}, sheet).paintHeading(surface);
    });
    EXPECT_NEAR(canvas.touched().bottom(), OverviewPainter::headingHeight({}), 1);
}

TEST(TheOverview, saysThatThereIsNothing)
{
    RoomWeeks weeks = plainRooms(10);
    const QRect middle(500, 150, 600, 200);
    EXPECT_LT(drawn(weeks).lightness(middle).first, 100);
    weeks.rows[9].boxes = {boxAt(0, 480, 240)};
    EXPECT_GT(drawn(weeks).lightness(middle).first, 100);
}

TEST(TheOverview, keepsAShortBoxAtTheEndOfTheDayWithinIt)
{
    RoomWeeks weeks = plainRooms(1);
    weeks.rows[0].boxes = {boxAt(2, 719, 1)};
    const OverviewPainter painter(weeks, colors, {}, sheet);
    EXPECT_GE(painter.boxRectangle({0, 0}).width(), 2);
    EXPECT_NEAR(painter.boxRectangle({0, 0}).right(), painter.dayRectangle(2).right(), 1);
}

TEST(TheOverview, isDrawnWhereThereIsNoRoomForIt)
{
    RoomWeeks weeks = plainRooms(10);
    weeks.rows[3].boxes = {boxAt(5, 480, 90, {"L1"})};
    const Canvas canvas = drawn(weeks, QRectF(20, 10, 30, 20));
    EXPECT_TRUE(canvas.isTouched(25, 15));
}

TEST(TheOverview, drawsNothingBesideItsArea)
{
    RoomWeeks weeks = plainRooms(10);
    weeks.rows[3].boxes = {boxAt(5, 480, 30000, {"L1"})};
    const QRectF where(20, 10, 1000, 400);
    EXPECT_EQ(drawn(weeks, where).touched(), where.toRect());
}
