#include "paint/ClockLine.h"

#include "paint/Canvas.h"
#include "support/RuntimeMatchers.h"

using namespace paint;
using test::Canvas;

namespace
{

const QDate wednesday(2025, 3, 19);
constexpr QColor red(208, 2, 27);
constexpr QRectF hours(100, 0, 400, 20);
constexpr QRectF boxes(100, 20, 400, 200);

Canvas drawnAt(double x)
{
    Canvas canvas(600, 300);
    canvas.draw([&](QPainter& painter) { drawClockLine(painter, x, hours, boxes, 545); });
    return canvas;
}

} // namespace

TEST(ClockMinute, isOnTodaysPlanAlone)
{
    const QDateTime now(wednesday, QTime(9, 5, 59));
    EXPECT_EQ(clockMinute(now, wednesday), 545);
    EXPECT_EQ(clockMinute(now, wednesday.addDays(1)), std::nullopt);
    EXPECT_EQ(clockMinute(now, wednesday.addDays(-7)), std::nullopt);
    EXPECT_EQ(clockMinute(now, QDate()), std::nullopt);
}

TEST(ClockLine, standsOverTheBoxesWithTheTimeAboveIt)
{
    EXPECT_EQ(clockText(545), "09:05");
    const Canvas canvas = drawnAt(300);
    EXPECT_EQ(canvas.at(300, 21), red);
    EXPECT_EQ(canvas.at(300, 218), red);
    EXPECT_FALSE(canvas.isTouched(300, 221));
    EXPECT_FALSE(canvas.isTouched(304, 100));
    EXPECT_EQ(canvas.at(282, 3), red); // the badge, 46 wide
}

TEST(ClockLine, keepsItsTimeAmongTheHours)
{
    EXPECT_EQ(drawnAt(100).touched().left(), 99); // the line itself
    EXPECT_EQ(drawnAt(500).touched().right(), 500);
}

TEST(ClockLine, isNotThereBeyondTheHours)
{
    EXPECT_TRUE(drawnAt(99).touched().isEmpty());
    EXPECT_TRUE(drawnAt(501).touched().isEmpty());
}
