#include "paint/PlanPainter.h"

#include "paint/Canvas.h"
#include "paint/CellBox.h"
#include "paint/Overlays.h"
#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using namespace paint;
using namespace plan;
using test::Canvas;
using test::PlanDesk;

namespace
{

/// Rooms R01 to R04 over one day, drawn on a screen of 15 twips a pixel: rows of 300 twips, each
/// 20 pixels high, from 23 (row 0) and 47.5 (row 1) on.
class APaintedPlan : public testing::Test
{
protected:
    APaintedPlan()
    {
        for (std::size_t row = 0; row < desk.form.Salle.size(); ++row) {
            desk.form.Salle[row].backColor = desk.form.Cap[row].backColor = yellow;
        }
    }

    Canvas paint(void (PlanPainter::*band)())
    {
        const PlanScene scene = sceneOf(desk.state, desk.engine.content(), DrawingTarget());
        Canvas canvas(1500, 400);
        canvas.draw([&](QPainter& painter) {
            PlanPainter plan(painter, scene);
            (plan.*band)();
        });
        return canvas;
    }
    /// The rectangle of a box, by its marker.
    [[nodiscard]] QRect place(int marker, int row)
    {
        const PlanBox& box = desk.box(marker);
        const DrawingTarget screen;
        const form::Place& room = desk.form.Salle[static_cast<std::size_t>(row)].place;
        return boxRectangle(screen, screen.toPixelsX(box.x), screen.toPixelsY(room.top),
                            box.minutes, 300);
    }

    static constexpr form::Colour yellow = form::Colour::fromRgb(250, 230, 120);
    PlanDesk desk{5};
};

} // namespace

TEST_F(APaintedPlan, hasItsBoxesAndNothingOutsideThem)
{
    desk.meeting(1, 1);
    desk.meeting(1, 1).set("Classe", "GC2 avec un très long nom de groupe");
    desk.meeting(3, 4).set("Durée", "180");
    desk.rows.students["GC1"] = 135;
    desk.absences.classes = desk.absences.students = {"GC1"};
    desk.draw();
    const Canvas canvas = paint(&PlanPainter::paintBoxes);
    const QRect first = place(1, 1);
    const QRect second = place(2, 3);
    EXPECT_EQ(first, QRect(108, 48, 160, 20));
    EXPECT_EQ(second, QRect(588, 97, 320, 20)); // 345 + 3 * 368 = 1449 twips
    int strays = 0;
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 1500; ++x) {
            // The labels over a box lie in its place to the fraction of a pixel.
            if (canvas.isTouched(x, y) && !first.adjusted(-1, -1, 1, 1).contains(x, y) &&
                !second.adjusted(-1, -1, 1, 1).contains(x, y)) {
                ++strays;
            }
        }
    }
    EXPECT_EQ(strays, 0);
    EXPECT_TRUE(canvas.isTouched(110, 60));
    EXPECT_TRUE(canvas.isTouched(900, 100));
}

TEST_F(APaintedPlan, hasNoBoxesInHiddenRows)
{
    desk.meeting(2, 1);
    desk.draw();
    desk.form.Salle[2].visible = false;
    EXPECT_TRUE(paint(&PlanPainter::paintBoxes).touched().isEmpty());
}

TEST_F(APaintedPlan, isEmptyWithoutOccupiedRooms)
{
    desk.draw();
    EXPECT_TRUE(paint(&PlanPainter::paintBoxes).touched().isEmpty());
}

TEST_F(APaintedPlan, hasNothingWhereABoxHasNoLength)
{
    desk.meeting(1, 1).set("Durée", "0");
    desk.meeting(2, 1).set("Durée", "-30");
    desk.rows.students["GC1"] = 135;
    desk.draw();
    EXPECT_EQ(desk.engine.markers().MarkerCount(), 2);
    EXPECT_TRUE(paint(&PlanPainter::paintBoxes).touched().isEmpty());
}

TEST_F(APaintedPlan, showsTheGroupCountersOnlyWhileTheyAreTicked)
{
    desk.meeting(1, 1);
    desk.rows.students["GC1"] = 135;
    desk.draw();
    const QImage shown = paint(&PlanPainter::paintBoxes).image();
    PlanDesk::tick(desk.form.Check3, false);
    EXPECT_NE(paint(&PlanPainter::paintBoxes).image(), shown);
}

TEST_F(APaintedPlan, givesTheGroupCountersAnEdgeOnADarkRow)
{
    desk.meeting(1, 1);
    desk.rows.students["GC1"] = 135;
    desk.form.Colorer.setChecked(true);
    desk.colors.PaletteName = "Contraste";
    const auto leftEdge = [this](form::Colour row) {
        desk.colors.set(3, row); // row 1 has the palette's fourth colour
        desk.draw();
        const QRect label =
            overlayPlaces(desk.form, DrawingTarget(), 1, desk.box(1), OverlayFonts())
                .Label2.toRect();
        const Canvas canvas = paint(&PlanPainter::paintBoxes);
        EXPECT_LT(canvas.at(label.left() + 1, label.center().y()).lightness(), 80);
        return canvas.at(label.left(), label.center().y());
    };
    EXPECT_EQ(leftEdge(form::Colour::fromRgb(10, 30, 80)), QColor(Qt::white));
    EXPECT_LT(leftEdge(yellow).lightness(), 80);
}

TEST_F(APaintedPlan, showsAnAbsencePictureBesideTheLabelThatWouldHideIt)
{
    desk.meeting(1, 1);
    desk.rows.students["GC1"] = 135;
    desk.absences.students = {"GC1"};
    desk.draw();
    const auto orange = [this] {
        return paint(&PlanPainter::paintBoxes).count(QColor(255, 170, 0), place(1, 1));
    };
    const int withLabels = orange();
    PlanDesk::tick(desk.form.Check3, false);
    const int alone = orange();
    EXPECT_GT(alone, 50);
    EXPECT_GT(withLabels, alone * 3 / 4); // at another fraction of a pixel
}

TEST_F(APaintedPlan, showsEachAbsencePicture)
{
    desk.meeting(1, 1);
    desk.draw();
    const QImage none = paint(&PlanPainter::paintBoxes).image();
    desk.absences.classes = {"GC1"};
    desk.draw();
    const QImage classAbsent = paint(&PlanPainter::paintBoxes).image();
    desk.absences.classes.clear();
    desk.absences.students = {"GC1"};
    desk.draw();
    EXPECT_NE(classAbsent, none);
    EXPECT_NE(paint(&PlanPainter::paintBoxes).image(), classAbsent);
}

TEST_F(APaintedPlan, greysRowZero)
{
    for (const auto labels : {&PlanPainter::paintRoomLabels, &PlanPainter::paintPlaces}) {
        const Canvas canvas = paint(labels);
        const int left = canvas.touched().left();
        EXPECT_EQ(canvas.at(left + 1, 25), QColor(236, 236, 236)); // whatever its back colour
        EXPECT_EQ(canvas.at(left + 1, 50), QColor(250, 230, 120));
    }
}

TEST_F(APaintedPlan, namesItsRoomsAtTheLeftAndTheirPlacesAtTheRight)
{
    EXPECT_EQ(paint(&PlanPainter::paintRoomLabels).touched().left(), 0);
    EXPECT_EQ(paint(&PlanPainter::paintRoomLabels).touched().right(), 99); // 1500 twips
    // The window's 22000 twips less a margin of 250.
    EXPECT_EQ(paint(&PlanPainter::paintPlaces).touched().right(), 21750 / 15 - 1);
}

TEST_F(APaintedPlan, hasNoLabelsInHiddenRows)
{
    desk.form.Salle[4].visible = false;
    const double bottom = (345 + 3 * 368 + 300) / 15.0;
    EXPECT_LE(paint(&PlanPainter::paintRoomLabels).touched().bottom(), bottom + 1);
}

TEST_F(APaintedPlan, hasAGridOnlyWhileItIsTicked)
{
    EXPECT_TRUE(paint(&PlanPainter::paintGrid).touched().isEmpty());
    desk.form.ChkGrille.setChecked(true);
    const Canvas canvas = paint(&PlanPainter::paintGrid);
    EXPECT_EQ(canvas.at(108, 60), QColor(0, 0, 180));
    EXPECT_EQ(canvas.touched().top(), 20); // the header's foot
}

TEST_F(APaintedPlan, hasATickAtEveryHour)
{
    const Canvas canvas = paint(&PlanPainter::paintTicks);
    EXPECT_TRUE(canvas.isTouched(108, 18));                              // 1620 twips
    EXPECT_TRUE(canvas.isTouched(214, 18) || canvas.isTouched(215, 18)); // 3220
    EXPECT_LE(canvas.touched().bottom(), 20);
}

TEST_F(APaintedPlan, keepsTheTicksInTheirLabels)
{
    for (form::Label& tick : desk.form.Label1) {
        tick.place.top = 1500;
    }
    const QRect ink = paint(&PlanPainter::paintTicks).touched();
    EXPECT_GE(ink.top(), 100);
    EXPECT_LE(ink.bottom(), 120);
}

TEST_F(APaintedPlan, showsTheTotalsThatAreNotHidden)
{
    EXPECT_TRUE(paint(&PlanPainter::paintTotals).touched().isEmpty());
    desk.form.Tot[1].visible = true;
    desk.form.Tot[1].caption = "300";
    const QRect total = paint(&PlanPainter::paintTotals).touched();
    EXPECT_GE(total.left(), 268); // 9h30
    EXPECT_LE(total.right(), 428);
}

TEST_F(APaintedPlan, greysTheTotalsThatWereCountedBeforeTheLastChoice)
{
    desk.form.Tot[1].visible = true;
    desk.form.Tot[1].caption = "300";
    const QRect inside(275, 3, 30, 12); // 9h30 is at 268, the number in the middle of 160 pixels
    EXPECT_EQ(paint(&PlanPainter::paintTotals).count(Qt::white, inside), 30 * 12);
    desk.totals.isOld = true;
    EXPECT_EQ(paint(&PlanPainter::paintTotals).count(QColor(236, 236, 236), inside), 30 * 12);
}

TEST_F(APaintedPlan, endsWithItsLastRow)
{
    const PlanScene scene = sceneOf(desk.state, desk.engine.content(), DrawingTarget());
    EXPECT_NEAR(PlanPainter::rowsBottom(scene), (345 + 4 * 368 + 300) / 15.0, 1e-9);
    desk.page.RowsShown = -1;
    const PlanScene empty = sceneOf(desk.state, desk.engine.content(), DrawingTarget());
    EXPECT_NEAR(PlanPainter::rowsBottom(empty), (345 + 300) / 15.0, 1e-9);
}
