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
        desk.colors.PaletteName = "Contraste"; // whose colours are all the same
        for (int row = 1; row <= 4; ++row) {
            desk.colors.set(row + 2, yellow);
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

    /// Where the area is brighter than half way to white.
    [[nodiscard]] static QRect brightIn(const Canvas& canvas, const QRect& area)
    {
        QRect bright;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                const QColor color = canvas.at(x, y);
                if (color.red() > 128 && color.green() > 128 && color.blue() > 128) {
                    bright |= QRect(x, y, 1, 1);
                }
            }
        }
        return bright;
    }

    static constexpr form::Colour yellow = form::Colour::fromRgb(250, 230, 120);
    static constexpr QColor headerInk{40, 50, 70};
    static constexpr QColor counterFill{30, 45, 75};
    static constexpr QColor overfullFill{178, 24, 32};
    static constexpr QColor boxFill{250, 230, 120};
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
    desk.layout.displayStyle = 1; // the counter at the left
    desk.meeting(1, 1);
    desk.rows.students["GC1"] = 135;
    desk.draw();
    const QRect box = place(1, 1); // 108, 48 and 160 by 20 pixels
    const Canvas labelled = paint(&PlanPainter::paintBoxes);
    EXPECT_EQ(labelled.at(109, 49), counterFill);
    EXPECT_EQ(labelled.at(266, 66), overfullFill);
    PlanDesk::tick(desk.form.Check3, false);
    const Canvas bare = paint(&PlanPainter::paintBoxes);
    EXPECT_EQ(bare.at(109, 49), boxFill);
    EXPECT_EQ(bare.at(266, 66), boxFill);
    EXPECT_EQ(bare.count(counterFill, box) + bare.count(overfullFill, box), 0);
}

TEST_F(APaintedPlan, writesTheGroupCountersInWhiteInTheMiddleOfTheirLabels)
{
    desk.layout.displayStyle = 1; // the counter at the left
    desk.meeting(1, 1).set("Durée", "180");
    desk.meeting(1, 1).set("Classe", "GC2").set("Durée", "180");
    desk.rows.students["GC1"] = 135;
    desk.draw();
    const OverlayPlaces places =
        overlayPlaces(desk.form, DrawingTarget(), 1, desk.box(1), OverlayFonts());
    const Canvas canvas = paint(&PlanPainter::paintBoxes);
    for (const QRectF& label : {places.Label2, places.Labelz}) {
        const QRect ink = brightIn(canvas, label.toAlignedRect());
        EXPECT_NEAR(ink.center().x(), label.center().x(), 1.5);
        EXPECT_NEAR(ink.center().y(), label.center().y(), 2.5); // letters stand on a baseline
        EXPECT_LE(ink.width(), label.width() - 3);
    }
    // Neither label goes on beyond its place.
    EXPECT_EQ(canvas.at(static_cast<int>(places.Label2.right()) + 1, 52), boxFill);
    EXPECT_EQ(canvas.at(static_cast<int>(places.Labelz.left()) - 2, 64), boxFill);
}

TEST_F(APaintedPlan, paintsTheSizeOfAGroupThatFitsLikeItsCounter)
{
    desk.meeting(1, 1);
    desk.meeting(1, 1).set("Classe", "GC2");
    desk.draw();
    const Canvas canvas = paint(&PlanPainter::paintBoxes);
    EXPECT_EQ(canvas.at(266, 66), counterFill);
    EXPECT_EQ(canvas.count(overfullFill, place(1, 1)), 0);
}

TEST_F(APaintedPlan, givesTheGroupCountersAnEdgeOnADarkRow)
{
    desk.meeting(1, 1);
    desk.rows.students["GC1"] = 135;
    const auto paintOn = [this](form::Colour row) {
        desk.colors.set(3, row); // row 1 has the palette's fourth colour
        desk.draw();
        return paint(&PlanPainter::paintBoxes);
    };
    const OverlayPlaces places = [&] {
        desk.draw();
        return overlayPlaces(desk.form, DrawingTarget(), 1, desk.box(1), OverlayFonts());
    }();
    const QRect label = places.Label2.toRect();
    const QRect size = places.Labelz.toRect();
    const Canvas dark = paintOn(form::Colour::fromRgb(10, 30, 80));
    const QColor white(Qt::white);
    EXPECT_EQ(dark.at(label.left(), label.center().y()), white);
    EXPECT_EQ(dark.at(label.right(), label.center().y()), white);
    EXPECT_EQ(dark.at(label.center().x(), label.top()), white);
    EXPECT_EQ(dark.at(label.left() + 1, label.center().y()), counterFill);
    EXPECT_EQ(dark.at(size.left(), size.center().y()), white);
    EXPECT_EQ(dark.at(size.left() + 1, size.center().y()), overfullFill);
    const Canvas light = paintOn(yellow);
    EXPECT_EQ(light.at(label.left(), label.center().y()), counterFill);
    EXPECT_EQ(light.at(size.left(), size.center().y()), overfullFill);
}

TEST_F(APaintedPlan, cutsALabelThatIsTooLongForItsBox)
{
    desk.meeting(1, 1).set("Durée", "30"); // 53 pixels
    desk.rows.students["GC1"] = 1350;
    desk.draw();
    const Canvas canvas = paint(&PlanPainter::paintBoxes);
    const QRect size = overlayPlaces(desk.form, DrawingTarget(), 1, desk.box(1), OverlayFonts())
                           .Labelz.toAlignedRect();
    EXPECT_EQ(canvas.at(size.left() + 1, size.bottom() - 1), overfullFill);
    EXPECT_TRUE(place(1, 1).adjusted(-1, -1, 1, 1).contains(canvas.touched()));
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

TEST_F(APaintedPlan, showsEachAbsencePictureAtTheRightOfItsBox)
{
    // Up to 268; the pictures are 20 pixels high, as the row. A short text, which leaves their
    // places free whatever the font.
    desk.meeting(1, 1).null("Enseignant1").null("matière");
    const QPoint personsHead(258, 58);
    const QPoint cross(244, 58); // 1.7 widths from the edge, and half a width back
    const auto colorsAfter = [this, &personsHead, &cross] {
        desk.draw();
        const Canvas canvas = paint(&PlanPainter::paintBoxes);
        return std::pair(canvas.at(cross.x(), cross.y()),
                         canvas.at(personsHead.x(), personsHead.y()));
    };
    EXPECT_EQ(colorsAfter(), std::pair(boxFill, boxFill));
    desk.absences.classes = {"GC1"};
    EXPECT_EQ(colorsAfter(), std::pair(QColor(Qt::white), boxFill));
    desk.absences.classes.clear();
    desk.absences.students = {"GC1"};
    EXPECT_EQ(colorsAfter(), std::pair(boxFill, QColor(60, 30, 0)));
}

TEST_F(APaintedPlan, greysRowZero)
{
    for (const auto labels : {&PlanPainter::paintRoomLabels, &PlanPainter::paintPlaces}) {
        const Canvas canvas = paint(labels);
        const int left = canvas.touched().left();
        const QRect row0(left, 23, canvas.touched().width(), 20);
        const QRect row1 = row0.translated(0, 25);
        EXPECT_EQ(canvas.at(left + 1, 25), QColor(236, 236, 236)); // whatever its back colour
        EXPECT_EQ(canvas.at(left + 1, 50), QColor(250, 230, 120));
        EXPECT_GE(canvas.lightness(row0).first, 130);
        EXPECT_LE(canvas.lightness(row1).first, 40);
    }
}

TEST_F(APaintedPlan, fillsItsLabelsToTheirEdges)
{
    // Names: 0 to 100 pixels. Places: 36 pixels, up to the window's 22000 twips less a margin
    // of 250. Row 1 lies from 47.53 to 67.53.
    for (const auto& [labels, left, right] : {std::tuple(&PlanPainter::paintRoomLabels, 0, 99),
                                              std::tuple(&PlanPainter::paintPlaces, 1414, 1449)}) {
        const Canvas canvas = paint(labels);
        EXPECT_EQ(canvas.touched().left(), left);
        EXPECT_EQ(canvas.touched().right(), right);
        EXPECT_EQ(canvas.touched().top(), 23);
        for (const int y : {48, 67}) {
            EXPECT_EQ(canvas.at(left, y), QColor(250, 230, 120));
            EXPECT_EQ(canvas.at(right, y), QColor(250, 230, 120));
        }
        for (const int y : {45, 47, 69}) { // between the rows
            EXPECT_FALSE(canvas.isTouched(left + 1, y)) << y;
        }
    }
}

TEST_F(APaintedPlan, namesItsRoomsAtTheLeftAndTheirPlacesAtTheRight)
{
    const QColor fill(250, 230, 120);
    const QRect name = paint(&PlanPainter::paintRoomLabels).bounds(fill, {0, 48, 100, 20});
    EXPECT_NEAR(name.left(), 6, 1); // 5 pixels off the edge
    EXPECT_LT(name.right(), 45);
    EXPECT_NEAR(name.center().y(), 57, 1);
    const QRect places = paint(&PlanPainter::paintPlaces).bounds(fill, {1414, 48, 36, 20});
    EXPECT_NEAR(places.right(), 1444, 1);
    EXPECT_GT(places.left(), 1425);
    EXPECT_NEAR(places.center().y(), 57, 1);
}

TEST_F(APaintedPlan, writesBrightlyOnADarkLabel)
{
    desk.form.Salle[1].backColor = form::Colour::fromRgb(20, 30, 90);
    const auto [darkest, lightest] =
        paint(&PlanPainter::paintRoomLabels).lightness({0, 48, 99, 19});
    EXPECT_EQ(darkest, 55); // of the fill: (20 + 90) / 2
    EXPECT_GT(lightest, 215);
}

TEST_F(APaintedPlan, hasNoLabelsInHiddenRows)
{
    desk.form.Salle[4].visible = false;
    desk.form.Cap[3].visible = false;
    const Canvas rooms = paint(&PlanPainter::paintRoomLabels);
    const Canvas places = paint(&PlanPainter::paintPlaces);
    const auto middleOf = [](int row) { return (345 + row * 368 + 150) / 15; };
    EXPECT_TRUE(rooms.isTouched(2, middleOf(3)));
    EXPECT_FALSE(rooms.isTouched(2, middleOf(4)));
    EXPECT_FALSE(rooms.isTouched(2, middleOf(5)));
    EXPECT_TRUE(places.isTouched(1416, middleOf(2)));
    EXPECT_FALSE(places.isTouched(1416, middleOf(3)));
    EXPECT_TRUE(places.isTouched(1416, middleOf(4)));
}

TEST_F(APaintedPlan, hasSomeOfItsRowsAlone)
{
    desk.draw();
    const auto row = [this](int number) {
        const PlanScene scene = sceneOf(desk.state, desk.engine.content(), DrawingTarget());
        Canvas canvas(1500, 400);
        canvas.draw([&](QPainter& painter) { PlanPainter(painter, scene).paintRows({number}); });
        return canvas;
    };
    const Canvas second = row(2); // row 2, at 345 + 2 * 368 twips: 72.07 to 92.07
    EXPECT_EQ(second.touched(), QRect(0, 72, 1450, 20));
    EXPECT_EQ(second.at(1, 74), boxFill); // row 0 alone is greyed
    EXPECT_FALSE(second.isTouched(100, 80));
    EXPECT_FALSE(second.isTouched(1413, 80));
    EXPECT_TRUE(second.isTouched(1414, 80));
    desk.form.Salle[2].visible = desk.form.Cap[2].visible = false;
    EXPECT_TRUE(row(2).touched().isEmpty());
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
    // From 1620 twips on, one every 1600; the header is 20 pixels high, the mark its last four.
    const Canvas canvas = paint(&PlanPainter::paintTicks);
    for (const int x : {108, 214, 321, 428}) { // 108, 214.67, 321.33, 428
        for (const int y : {17, 19}) {
            EXPECT_EQ(canvas.at(x, y), headerInk) << x << ' ' << y;
        }
        EXPECT_FALSE(canvas.isTouched(x - 2, 18)) << x;
        EXPECT_FALSE(canvas.isTouched(x, 13)) << x;
    }
    EXPECT_EQ(canvas.touched().left(), 108);
    EXPECT_LE(canvas.touched().bottom(), 20);
}

TEST_F(APaintedPlan, namesEveryHourBesideItsTick)
{
    const Canvas canvas = paint(&PlanPainter::paintTicks);
    const QRect eight = canvas.bounds(Canvas::untouched, {109, 0, 100, 20});
    EXPECT_NEAR(eight.left(), 111, 1);
    EXPECT_NEAR(eight.center().y(), 10, 1);
    EXPECT_LT(eight.right(), 150);
    // "10h00" is a letter longer.
    const QRect ten = canvas.bounds(Canvas::untouched, {324, 0, 100, 20});
    EXPECT_GT(ten.width(), eight.width() + 4);
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
    const Canvas canvas = paint(&PlanPainter::paintTotals);
    // The slot of 9h30: 160 pixels from 268 on, less one that parts it from the next; 20 high.
    const QRect total = canvas.touched();
    EXPECT_EQ(total, QRect(268, 0, 159, 20));
    for (const QPoint& on : {QPoint(total.left(), 10), QPoint(total.right(), 10),
                             QPoint(347, total.top()), QPoint(347, total.bottom())}) {
        EXPECT_EQ(canvas.at(on.x(), on.y()), headerInk) << on.x() << ' ' << on.y();
    }
    EXPECT_EQ(canvas.at(270, 2), QColor(Qt::white));
    EXPECT_EQ(canvas.at(424, 17), QColor(Qt::white));
    const QRect number = canvas.bounds(Qt::white, total.adjusted(1, 1, -1, -1));
    EXPECT_NEAR(number.center().x(), 347, 1);
    EXPECT_NEAR(number.center().y(), 9.5, 1);
    EXPECT_LT(number.width(), 30);
}

TEST_F(APaintedPlan, greysTotalsThatWereCountedBeforeTheLastChoice)
{
    desk.form.Tot[1].visible = true;
    desk.form.Tot[1].caption = "300";
    desk.totals.isOld = true;
    const Canvas canvas = paint(&PlanPainter::paintTotals);
    EXPECT_EQ(canvas.at(347, 0), QColor(130, 130, 130));
    EXPECT_EQ(canvas.at(270, 2), QColor(236, 236, 236));
    EXPECT_GE(canvas.lightness({269, 1, 157, 18}).first, 130);
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
