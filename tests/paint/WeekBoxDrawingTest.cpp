#include "paint/WeekBoxDrawing.h"

#include "paint/Canvas.h"
#include "paint/Inks.h"
#include "paint/Weeks.h"
#include "support/RuntimeMatchers.h"

using namespace paint;
using namespace test;
using timetable::MeetingKind;

namespace
{

constexpr form::Colour fill = form::Colour::fromRgb(250, 230, 120);
constexpr QColor straw(250, 230, 120);
constexpr QRect place(20, 20, 200, 90);

Canvas drawnBox(const answers::WeekBox& box, const QRect& where = place, bool isDense = false)
{
    Canvas canvas;
    canvas.draw([&](QPainter& surface) {
        const Lettering text({}, 13);
        (isDense ? drawDenseWeekBox : drawWeekBox)(surface, {}, box, where, fill, text, 9);
    });
    return canvas;
}

/// What is written there: whatever is not of the fill's colour.
QRect written(const Canvas& canvas, const QRect& where = place)
{
    return canvas.bounds(straw, where.adjusted(3, 3, -3, -3));
}

} // namespace

TEST(ABoxOfAWeek, fillsItsPlace)
{
    const Canvas canvas = drawnBox(boxAt(0, 480, 90));
    EXPECT_EQ(canvas.touched(), place);
    EXPECT_TRUE(written(canvas).isEmpty());
}

TEST(ABoxOfAWeek, hasALineForEachThing)
{
    const int one = written(drawnBox(boxAt(0, 480, 90, {"Hx"}))).height();
    const QRect three = written(drawnBox(boxAt(0, 480, 90, {"Hx", "Hx", "Hx"})));
    EXPECT_GT(three.height(), 3 * one);
    EXPECT_NEAR(three.center().y(), place.center().y(), 3);
}

TEST(ABoxOfAWeek, leavesOutTheLastLinesThatFindNoRoom)
{
    const QRect low(20, 20, 200, 16);
    EXPECT_EQ(drawnBox(boxAt(0, 480, 90, {"Hx", "oo", "oo"}), low).image(),
              drawnBox(boxAt(0, 480, 90, {"Hx"}), low).image());
}

TEST(ABoxOfAWeek, tellsItsTimeWhereTheHoursDoNot)
{
    answers::WeekBox box = boxAt(0, 500, 90, {"Hx"});
    box.isOffSlots = true;
    EXPECT_EQ(drawnBox(box).image(), drawnBox(boxAt(0, 500, 90, {"Hx", "8h20–9h50"})).image());
}

TEST(ABoxOfAWeek, tellsInItsCornerWhichWeekItIsOf)
{
    answers::WeekBox box = boxAt(0, 480, 90);
    box.corner = "A";
    const QRect corner(200, 20, 20, 15);
    EXPECT_GT(drawnBox(box).count(kHeaderInk, corner), 50);
    EXPECT_EQ(drawnBox(boxAt(0, 480, 90)).count(kHeaderInk, corner), 0);
    const QRect narrow(20, 20, 20, 90);
    EXPECT_EQ(drawnBox(box, narrow).count(kHeaderInk, narrow), 0);
}

TEST(ABoxOfAWeek, leavesItsCornerFreeOfText)
{
    answers::WeekBox box = boxAt(0, 480, 90, {"HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH"});
    box.lines << box.lines << box.lines << box.lines;
    const QRect narrow(20, 20, 80, 90);
    const QRect wholeNarrow = written(drawnBox(box, narrow), narrow);
    const QRect whole = written(drawnBox(box));
    box.corner = "A";
    const QRect left(20, 20, 40, 90); // away from the label
    EXPECT_GT(written(drawnBox(box, narrow), left).top(), wholeNarrow.top() + 5);
    const QRect half(20, 20, 100, 90);
    EXPECT_GT(written(drawnBox(box), half).left(), whole.left() + 5); // beside it, in a wide box
}

TEST(ABoxOfAWeek, givesItsTextTheRoomOfALabelWhereThereIsLittle)
{
    answers::WeekBox box = boxAt(0, 480, 45, {"Hx", "Hx", "Hx"});
    box.kind = MeetingKind::Exam;
    const QRect low(20, 20, 90, 24); // half of it for the label would leave no line
    EXPECT_EQ(drawnBox(box, low).count(kHeaderInk, low), 0);
    const QRect high(20, 20, 90, 40);
    EXPECT_GT(drawnBox(box, high).count(kHeaderInk, high), 100);
    EXPECT_GT(drawnBox(box, high).bounds(straw, QRect(24, 36, 82, 20)).height(), 5);
}

TEST(ABoxOfAWeek, keepsItsColourInTheFrameOfALowExam)
{
    answers::WeekBox box = boxAt(0, 480, 90);
    box.kind = MeetingKind::Exam;
    const QRect low(20, 20, 40, 6);
    EXPECT_EQ(drawnBox(box, low, true).count(straw, low), 38 * 4); // a frame of one pixel
}

TEST(ABoxOfAWeek, hatchesMakeUpsAndFramesExams)
{
    answers::WeekBox box = boxAt(0, 480, 90);
    box.kind = MeetingKind::MakeUp;
    EXPECT_FALSE(written(drawnBox(box)).isEmpty());
    box.kind = MeetingKind::Exam;
    const Canvas exam = drawnBox(box);
    for (const QPoint point : {QPoint(20, 60), QPoint(22, 60), QPoint(219, 60), QPoint(100, 22),
                               QPoint(100, 107), QPoint(100, 109)}) {
        EXPECT_EQ(exam.at(point.x(), point.y()), QColor(20, 20, 20));
    }
    EXPECT_EQ(exam.at(23, 60), straw);
    EXPECT_GT(exam.count(kHeaderInk, QRect(150, 24, 65, 10)), 100); // its label
}

TEST(ADenseBox, hasItsShortTextInSeveralLines)
{
    answers::WeekBox box = boxAt(0, 480, 90, {"no"});
    box.shortText = "HHHH HHHH";
    const QRect narrow(20, 20, 50, 40);
    const QRect text = written(drawnBox(box, narrow, true), narrow);
    EXPECT_GT(text.height(), 16); // two lines
    EXPECT_LE(text.right(), narrow.right() - 1);
}

TEST(ADenseBox, leavesOutHowManyMoreWhereThatHelps)
{
    answers::WeekBox box = boxAt(0, 480, 90);
    box.shortText = "HHHH +4";
    answers::WeekBox first = box;
    first.shortText = "HHHH";
    const QRect low(20, 20, 40, 14);
    EXPECT_EQ(drawnBox(box, low, true).image(), drawnBox(first, low, true).image());
    EXPECT_NE(drawnBox(box, place, true).image(), drawnBox(first, place, true).image());
}

TEST(ADenseBox, hasTheSubjectWhereThereIsAmpleRoom)
{
    const answers::WeekBox box = boxAt(0, 480, 90, {"HHHH", "HHHH"});
    answers::WeekBox alone = box;
    alone.lines.removeLast();
    const QRect ample(20, 20, 70, 40); // two lines of 13 pixels
    EXPECT_GT(written(drawnBox(box, ample, true), ample).height(),
              2 * written(drawnBox(alone, ample, true), ample).height());
    const QRect low(20, 20, 70, 24);
    EXPECT_EQ(drawnBox(box, low, true).image(), drawnBox(alone, low, true).image());
}

TEST(ADenseBox, hasNoTextThatTellsNothing)
{
    answers::WeekBox box = boxAt(0, 480, 90);
    box.shortText = "HHHHHHHH";
    const QRect narrow(20, 20, 20, 30);
    EXPECT_TRUE(written(drawnBox(box, narrow, true), narrow).isEmpty());
    const QRect wider(20, 20, 50, 30); // "HHHH…"
    EXPECT_FALSE(written(drawnBox(box, wider, true), wider).isEmpty());
}
