// The plan as the window draws it, which pictures that are written to files do not.

#include "paint/CellBox.h"
#include "paint/Inks.h"
#include "paint/Overlays.h"
#include "paint/PlanPainter.h"

#include "paint/Canvas.h"
#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using namespace paint;
using namespace plan;
using test::Canvas;
using test::PlanDesk;

namespace
{

/// Rooms R01 to R04 in yellow, drawn on a screen of 15 twips a pixel: row 1 lies from 47.5 to 67.5.
class TheWindowsPlan : public testing::Test
{
protected:
    TheWindowsPlan()
    {
        desk.colors.PaletteName = "Jaune";
        for (int row = 1; row <= 4; ++row) {
            desk.colors.set(row + 2, form::Colour::fromRgb(250, 230, 120));
        }
    }

    static constexpr QColor yellow{250, 230, 120};
    PlanDesk desk{5};
};

} // namespace

TEST_F(TheWindowsPlan, beginsWithTheHoursThatAreShown)
{
    desk.form.ChkGrille.design(true);
    desk.form.Tot[0].visible = true; // the slot from 8h00 on
    desk.meeting(1, 1).set("Debut", "7h30");
    desk.draw();
    desk.totals.isOld = false;
    DrawingTarget target;
    target.TargetXOffset = 53; // 7h30 where 8h00 was: at 108
    const ShownHours hours{820, 20820};
    const PlanScene scene = windowSceneOf(desk.state, desk.engine.content(), target, hours);
    Canvas canvas(1500, 400);
    canvas.draw([&](QPainter& painter) { PlanPainter(painter, scene).paintPlan(); });
    Canvas totals(1500, 30);
    totals.draw([&](QPainter& painter) { PlanPainter(painter, scene).paintTotals(); });
    EXPECT_EQ(canvas.at(110, 50), QColor(250, 230, 120)); // the box
    EXPECT_FALSE(canvas.isTouched(104, 50));              // not under the names
    EXPECT_EQ(canvas.at(161, 80), QColor(0, 0, 180));     // 8h00
    EXPECT_EQ(canvas.at(1441, 69), QColor(0, 0, 180));    // 20h00, which the design has no tick for
    EXPECT_EQ(totals.at(161, 10), QColor(40, 50, 70));
}

TEST_F(TheWindowsPlan, tellsThePlacesBesideTheName)
{
    desk.draw();
    const auto inkIn = [this](bool isWindow) {
        PlanScene scene = sceneOf(desk.state, desk.engine.content(), DrawingTarget());
        if (isWindow) {
            scene.hours = ShownHours{1620, 19220};
        }
        Canvas canvas(1500, 400);
        canvas.draw([&](QPainter& painter) { PlanPainter(painter, scene).paintRoomLabels(); });
        return canvas.bounds(yellow, QRect(60, 49, 38, 17)); // the right of the name's label
    };
    EXPECT_TRUE(inkIn(false).isEmpty());
    EXPECT_FALSE(inkIn(true).isEmpty());
    EXPECT_GE(inkIn(true).left(), 75); // "30" at the right end
}

TEST_F(TheWindowsPlan, hasAGreyedRowThatCanBeRead)
{
    const form::Colour fill = form::Colour::fromRgb(236, 236, 236);
    const form::Colour ink = form::Colour::fromRgb(
        kReadableGreyedInk.red(), kReadableGreyedInk.green(), kReadableGreyedInk.blue());
    EXPECT_GE(contrastRatio(fill, ink), 4.5);
}

TEST_F(TheWindowsPlan, sharesTheHeightOfARow)
{
    desk.meeting(1, 1).set("Durée", "180");
    desk.meeting(1, 2);
    desk.draw();
    ASSERT_EQ(desk.box(1).lanes, 2);
    DrawingTarget target;
    const auto whole = [&](int marker) {
        return overlayPlaces(desk.form, target, 1, desk.box(marker)).ZAbs;
    };
    EXPECT_EQ(whole(2).top(), whole(1).top());
    target.hasHints = true;
    EXPECT_DOUBLE_EQ(whole(1).height(), 10); // half of 20 pixels
    EXPECT_DOUBLE_EQ(whole(2).top(), whole(1).bottom());
    PlanScene scene = sceneOf(desk.state, desk.engine.content(), target);
    scene.hours = ShownHours{1620, 19220};
    Canvas canvas(1500, 400);
    canvas.draw([&](QPainter& painter) { PlanPainter(painter, scene).paintBoxes(); });
    EXPECT_EQ(canvas.touched(), QRect(108, 48, 320, 20));
    EXPECT_FALSE(canvas.isTouched(200, 64)); // below the first one, before the second
}

TEST_F(TheWindowsPlan, saysInACornerInWhichWeekAloneABoxIs)
{
    desk.meeting(1, 1).set("newnature", "10/20");
    desk.draw();
    DrawingTarget target;
    EXPECT_TRUE(overlayPlaces(desk.form, target, 1, desk.box(1)).week.isEmpty());
    target.hasHints = true;
    const QRectF week = overlayPlaces(desk.form, target, 1, desk.box(1)).week;
    EXPECT_EQ(week.topLeft(), QPointF(108, desk.form.Salle[1].place.top / 15.0));
    PlanScene scene = sceneOf(desk.state, desk.engine.content(), target);
    Canvas canvas(1500, 400);
    canvas.draw([&](QPainter& painter) { PlanPainter(painter, scene).paintBoxes(); });
    EXPECT_GT(canvas.count(kHeaderInk, week.toAlignedRect()), 40);
    EXPECT_GT(canvas.count(QColor(Qt::white), week.toAlignedRect()), 2); // the letter
}
