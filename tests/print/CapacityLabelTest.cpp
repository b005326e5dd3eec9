#include "print/CapacityLabel.h"

#include "paint/Canvas.h"
#include "print/FittedText.h"
#include "print/SheetDesk.h"
#include "support/RuntimeMatchers.h"

#include <QFontMetricsF>

using namespace test;
using form::Colour;
using print::CapacityLabel;
using print::capacityLabel;

namespace
{

/// The label of GC1's box in a room of 30 places.
CapacityLabel labelFor(PlanDesk& desk)
{
    desk.draw();
    return capacityLabel(desk.box(1), desk.drawn()[0].places);
}

constexpr Colour blue = Colour::fromRgb(0, 0, 255);
constexpr Colour red = Colour::fromRgb(255, 0, 0);
constexpr Colour grey = Colour::fromRgb(220, 220, 220);

} // namespace

TEST(CapacityLabel, isBlueForASingleClassThatFits)
{
    PlanDesk desk(3);
    desk.meeting(1, 1);
    desk.rows.students["GC1"] = 30;
    const CapacityLabel label = labelFor(desk);
    EXPECT_EQ(label.color, blue);
    EXPECT_EQ(label.text, "30/30");
}

TEST(CapacityLabel, tellsHowManyOtherGroupsThereAre)
{
    plan::PlanBox box;
    EXPECT_EQ(print::othersLabel(box, "Serif"), std::nullopt);
    box.cell.CellRowCount = 4;
    ASSERT_TRUE(print::othersLabel(box, "Serif").has_value());
    EXPECT_EQ(print::othersLabel(box, "Serif")->text, "+3");
    EXPECT_EQ(print::othersLabel(box, "Serif")->color, grey);
    EXPECT_EQ(print::othersLabel(box, "Serif")->fontName, "Serif");
}

TEST(CapacityLabel, isRedForAnOverfullRoom)
{
    PlanDesk desk(3);
    desk.meeting(1, 1);
    desk.rows.students["GC1"] = 35;
    const CapacityLabel label = labelFor(desk);
    EXPECT_EQ(label.color, red);
    EXPECT_EQ(label.text, "Dépassement 35/30");
}

TEST(CapacityLabel, countsTheDeclaredSizeWhereNoStudentIsRegistered)
{
    PlanDesk desk(3);
    desk.meeting(1, 1);
    desk.rows.capacities["GC1"] = db::Value(std::int64_t{35});
    EXPECT_EQ(labelFor(desk).color, red);
    EXPECT_EQ(labelFor(desk).text, "Dépassement 35/30");
    desk.rows.capacities["GC1"] = db::Value(std::int64_t{12});
    EXPECT_EQ(labelFor(desk).color, blue);
    EXPECT_EQ(labelFor(desk).text, "12/30");
}

TEST(CapacityLabel, isGreyForSeveralClassesThatFit)
{
    PlanDesk desk(3);
    desk.meeting(1, 1);
    desk.meeting(1, 1).set("Classe", "GC2");
    desk.rows.students["GC1"] = 14;
    desk.rows.students["GC2"] = 16;
    const CapacityLabel label = labelFor(desk);
    EXPECT_EQ(label.color, grey);
    EXPECT_EQ(label.text, "30/30");
}

TEST(CapacityLabel, agreesWithTheGroupCounterOfTheScreen)
{
    for (const int students : {0, 29, 30, 31, 400}) {
        for (const int declared : {0, 30, 31}) {
            for (const int classes : {1, 2}) {
                PlanDesk desk(3);
                for (int row = 0; row < classes; ++row) {
                    desk.meeting(1, 1).set("Classe", row == 0 ? "GC1" : "GC2");
                }
                desk.rows.students["GC1"] = students;
                desk.rows.capacities["GC1"] = db::Value(std::int64_t{declared});
                const CapacityLabel label = labelFor(desk);
                const auto& group = desk.box(1).group;
                EXPECT_EQ(label.color == red, group && group->overfull);
                EXPECT_EQ(label.color == blue, !group);
                if (group && group->overfull) {
                    EXPECT_EQ(label.text, group->sizeLabel);
                }
            }
        }
    }
}

TEST(CapacityLabel, standsInTheLowerRightCornerOfItsBox)
{
    paint::DrawingTarget target;
    target.PixelsPerPoint = 10;
    const QRectF high(1000, 500, 850, 350);
    const CapacityLabel label{red, "Dépassement 35/30"};
    const QRectF place = print::capacityPlace(target, high, label);
    EXPECT_TRUE(high.contains(place));
    EXPECT_EQ(place.bottomRight(), high.bottomRight());
    // The text keeps what lies above.
    EXPECT_EQ(print::reservedByCapacity(target, high, place), QMarginsF(0, 0, 0, place.height()));
}

TEST(CapacityLabel, standsBesideTheTextOfALowBox)
{
    paint::DrawingTarget target;
    target.PixelsPerPoint = 10;
    const QRectF low(1000, 500, 850, 125);
    const QRectF place =
        print::capacityPlace(target, low, {red, "Dépassement 35/30 et davantage encore"});
    EXPECT_EQ(place.width(), 425);
    EXPECT_TRUE(low.contains(place));
    EXPECT_EQ(print::reservedByCapacity(target, low, place), QMarginsF(0, 0, 425, 0));
}

TEST(CapacityLabel, isAsLargeAsItsTextAndItsFrame)
{
    paint::DrawingTarget target;
    target.PixelsPerPoint = 10;
    const CapacityLabel label{blue, "12/30"};
    const QFontMetricsF metrics(print::paperFont({"Arial", 7, true}, target, 7));
    const QRectF place = print::capacityPlace(target, QRectF(1000, 500, 850, 350), label);
    // A frame of 1.2 points and a gap of 1.5 at each side; a frame above and below.
    EXPECT_DOUBLE_EQ(place.width(), metrics.horizontalAdvance("12/30") + 2 * 27);
    EXPECT_DOUBLE_EQ(place.height(), metrics.ascent() + 2 * 12);
    EXPECT_DOUBLE_EQ(print::capacityPlace(target, QRectF(0, 0, 850, 60), label).height(), 60);
}

TEST(CapacityLabel, isBlackOnWhiteInAFrameOfItsColour)
{
    paint::DrawingTarget target;
    target.PixelsPerPoint = 10;
    Canvas canvas(400, 200);
    canvas.draw([&](QPainter& painter) {
        print::drawCapacity(painter, target, QRectF(50, 40, 300, 100), {red, "31/30"});
    });
    EXPECT_EQ(canvas.touched(), QRect(50, 40, 300, 100));
    for (const QPoint& on : {QPoint(50, 40), QPoint(61, 90), QPoint(338, 90), QPoint(349, 139),
                             QPoint(200, 51), QPoint(200, 128)}) {
        EXPECT_EQ(canvas.at(on.x(), on.y()), QColor(255, 0, 0)) << on.x() << ' ' << on.y();
    }
    const QRect within(62, 52, 276, 76);
    EXPECT_EQ(canvas.at(62, 52), QColor(Qt::white));
    EXPECT_EQ(canvas.at(337, 127), QColor(Qt::white));
    const QRect text = canvas.bounds(Qt::white, within);
    EXPECT_NEAR(text.center().x(), 199.5, 4);
    EXPECT_NEAR(text.center().y(), 89.5, 4);
    EXPECT_EQ(canvas.count(QColor(255, 0, 0), within), 0);
    EXPECT_EQ(canvas.lightness(text).first, 0);
}
