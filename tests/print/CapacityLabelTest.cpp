#include "print/CapacityLabel.h"

#include "print/SheetDesk.h"
#include "support/RuntimeMatchers.h"

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
