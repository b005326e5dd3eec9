// What a sheet looks like, on a picture of 144 dots per inch: a pixel is ten twips, a point two
// pixels. The plan starts 20 pixels from the top, and 150 from the left.

#include "print/PrintedSheet.h"

#include "paint/Canvas.h"
#include "paint/CellBox.h"
#include "print/SheetDesk.h"
#include "print/Targets.h"
#include "support/RuntimeMatchers.h"

using namespace test;

namespace
{

constexpr int top = 20;

QImage paper()
{
    constexpr double inch = 0.0254; // metres
    QImage image(1800, 600, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(144 / inch));
    image.setDotsPerMeterY(qRound(144 / inch));
    return image;
}

/// The rows of the desk's plan as they are printed.
Canvas bodyOf(PlanDesk& desk)
{
    desk.draw();
    Canvas canvas(1800, 600);
    const paint::DrawingTarget target = print::UsePrinterTarget(paper());
    canvas.draw([&](QPainter& painter) {
        painter.translate(0, top);
        print::PrintPlanBody(painter, target, sheetOf(desk));
    });
    return canvas;
}

// The rows are 450 twips high, the first one from 345 on: between them lie 68.
constexpr QRect name(150, top + 34, 150, 46);   // of row 1
constexpr QRect first(312, top + 34, 170, 46);  // the box from 8h00 to 9h30 in row 1
constexpr QRect second(482, top + 34, 170, 46); // from 9h30 to 11h00

QColor colorOf(form::Colour color)
{
    return {color.red(), color.green(), color.blue()};
}

/// The part of a rectangle that its frame leaves.
QRect inner(const QRect& place)
{
    return place.adjusted(3, 3, -3, -3);
}

} // namespace

TEST(PrintedSheet, fillsNamesAndBoxesWithTheRowsColour)
{
    PlanDesk desk(3);
    desk.meeting(1, 1).set("Classe", ".");
    const Canvas canvas = bodyOf(desk);
    const QColor color = colorOf(desk.drawn()[0].color);
    for (const QRect& place : {name, first}) {
        EXPECT_GT(canvas.count(color, inner(place)), inner(place).width() * 20);
    }
    EXPECT_FALSE(canvas.isTouched(second.center().x(), second.center().y()));
}

TEST(PrintedSheet, framesNamesAndPlacesAndWritesThemAtTheirOuterSides)
{
    PlanDesk desk(3);
    desk.tick(desk.form.Colorer, false);
    const Canvas canvas = bodyOf(desk);
    const QColor frame(60, 60, 60);
    const QColor fill(240, 240, 240);
    // The axis ends with 19h00 at 1620 + 12467 twips, the places begin 60 further right and are
    // 540 wide: 1564.7 to 1618.7 pixels.
    for (const auto& [left, right] : {std::pair(150, 300), std::pair(1564, 1618)}) {
        EXPECT_EQ(canvas.at(left, name.center().y()), frame) << left;
        EXPECT_EQ(canvas.at(right, name.center().y()), frame) << right;
        EXPECT_EQ(canvas.at(left + 2, name.top() + 3), fill) << left;
        EXPECT_EQ(canvas.at(right - 2, name.bottom() - 3), fill) << right;
        EXPECT_FALSE(canvas.isTouched(left - 2, name.center().y())) << left;
    }
    const QRect room = canvas.bounds(fill, inner(name));
    EXPECT_NEAR(room.left(), 150 + 4 + 1, 2); // two points off the frame
    EXPECT_LT(room.right(), 225);
    EXPECT_NEAR(room.center().y(), name.center().y(), 2);
    const QRect places = canvas.bounds(fill, {1567, name.top() + 3, 49, 40});
    EXPECT_NEAR(places.right(), 1618 - 4 - 1, 2);
    EXPECT_GT(places.left(), 1585);
}

TEST(PrintedSheet, isPaleGreyWhileColorerIsNotTicked)
{
    PlanDesk desk(3);
    desk.tick(desk.form.Colorer, false);
    desk.meeting(1, 1).set("Classe", ".");
    const Canvas canvas = bodyOf(desk);
    const QRect secondName = name.translated(0, 52); // 450 + 68 twips further down
    for (const QRect& place : {name, secondName, first}) {
        EXPECT_GT(canvas.count(QColor(240, 240, 240), inner(place)), inner(place).width() * 20);
    }
    EXPECT_EQ(canvas.count(QColor(215, 215, 215), QRect(0, 0, 1800, 600)), 0);
}

TEST(PrintedSheet, hatchesMakeUpsAndNothingElse)
{
    PlanDesk desk(3);
    desk.tick(desk.form.Check2);
    desk.tick(desk.form.Colorer, false);
    desk.makeUp(1, 1).set("DateX", db::Value(QString("2026-10-12"))).set("Classe", ".");
    desk.meeting(1, 2).set("Classe", ".");
    const Canvas canvas = bodyOf(desk);
    ASSERT_EQ(desk.drawn()[0].boxes.size(), 2);
    const QRect left(first.left() + 5, first.top() + 4, 12, 38); // beside the text
    const QRect right = left.translated(170, 0);
    EXPECT_LT(canvas.count(QColor(240, 240, 240), left), left.width() * left.height() * 9 / 10);
    EXPECT_EQ(canvas.count(QColor(240, 240, 240), right), right.width() * right.height());
}

TEST(PrintedSheet, drawsTheGridWithoutTheGreyLines)
{
    PlanDesk desk(3);
    desk.tick(desk.form.ChkGrille);
    const Canvas canvas = bodyOf(desk);
    // From row 0's foot, 30 pixels down, to row 2's at 131: an hour is 113.33 pixels from 312 on,
    // a quarter of one 28.
    const int between = top + 83; // the rows themselves lie elsewhere
    for (const int hour : {312, 425, 538, 652, 1558 - 113}) {
        EXPECT_EQ(canvas.at(hour, between), QColor(0, 0, 180)) << hour;
    }
    for (const int quarter : {340, 368, 396, 453}) {
        EXPECT_EQ(canvas.at(quarter, between), QColor(0, 180, 0)) << quarter;
    }
    EXPECT_FALSE(canvas.isTouched(326, between));
    EXPECT_FALSE(canvas.isTouched(312, top + 28));
    EXPECT_EQ(canvas.count(QColor(125, 125, 125), QRect(0, 0, 1800, 600)), 0);
}

TEST(PrintedSheet, drawsNoGridWhileItIsNotTicked)
{
    PlanDesk desk(3);
    const Canvas canvas = bodyOf(desk);
    EXPECT_EQ(canvas.count(QColor(0, 0, 180), QRect(0, 0, 1800, 600)), 0);
}

TEST(PrintedSheet, printsNoRowZero)
{
    PlanDesk desk(3); // R00, R01, R02
    const Canvas canvas = bodyOf(desk);
    // Two rows of 450 twips and 68 between them.
    EXPECT_NEAR(canvas.touched().height(), 97, 2);
}

TEST(PrintedSheet, printsCapacitiesOnlyInsteadOfTheGroupCounter)
{
    for (const bool groups : {true, false}) {
        for (const bool capacities : {true, false}) {
            PlanDesk desk(3);
            desk.tick(desk.form.Colorer, false);
            desk.tick(desk.form.Check3, groups);
            desk.tick(desk.form.Opt_Cap, capacities);
            desk.meeting(1, 1);
            desk.rows.students["GC1"] = 20;
            const int blue = bodyOf(desk).count(QColor(0, 0, 255), first);
            EXPECT_EQ(blue > 50, !groups && capacities);
        }
    }
}

TEST(PrintedSheet, saysInACornerHowManyOtherGroupsThereAre)
{
    PlanDesk desk(3);
    desk.meeting(1, 1).set("Classe", ".");
    desk.meeting(1, 1).set("Classe", ".");
    desk.meeting(1, 2).set("Classe", ".");
    const QColor frame(220, 220, 220);
    const Canvas canvas = bodyOf(desk);
    const QRect corner(first.right() - 20, first.bottom() - 16, 18, 14);
    EXPECT_GT(canvas.count(frame, corner), 20);
    EXPECT_EQ(canvas.count(frame, corner.translated(second.left() - first.left(), 0)), 0); // alone
    desk.tick(desk.form.Check3, false);
    EXPECT_EQ(bodyOf(desk).count(frame, corner), 0);
}

TEST(PrintedSheet, printsCapacitiesInTheirColours)
{
    PlanDesk desk(3);
    desk.tick(desk.form.Colorer, false);
    desk.tick(desk.form.Check3, false);
    desk.tick(desk.form.Opt_Cap);
    desk.meeting(1, 1);
    desk.rows.students["GC1"] = 31;
    desk.meeting(1, 2).set("Classe", "GC2");
    desk.meeting(1, 2).set("Classe", "GC3");
    const Canvas canvas = bodyOf(desk);
    EXPECT_GT(canvas.count(QColor(255, 0, 0), first), 50);
    EXPECT_GT(canvas.count(QColor(220, 220, 220), second), 30);
    EXPECT_LT(canvas.lightness(inner(first)).first, 40); // the text is black
}

TEST(PrintedSheet, keepsAnAbsurdlyLongBoxInsideThePlan)
{
    PlanDesk desk(3);
    desk.meeting(1, 6).set("Durée", 30000);
    const Canvas canvas = bodyOf(desk);
    // Midnight is 18133 twips behind 8h00 at 1620; the places, 600 with their gap, end the sheet.
    EXPECT_LE(canvas.touched().right(), 150 + (1620 + 18133 + 600) / 10 + 1);
}

TEST(PrintedHeader, standsAboveTheHours)
{
    PlanDesk desk(3);
    desk.draw();
    Canvas canvas(1800, 600);
    const paint::DrawingTarget target = print::UsePrinterTarget(paper());
    canvas.draw([&](QPainter& painter) {
        painter.translate(0, 200);
        print::PrintHeader(painter, target, sheetOf(desk));
    });
    // The title starts with the sheet, 1050 twips above the hours; they are 300 high.
    const QRect drawn = canvas.touched();
    EXPECT_GE(drawn.left(), 150);
    EXPECT_LT(drawn.left(), 155);
    EXPECT_GE(drawn.top(), 200 - 105);
    EXPECT_LE(drawn.bottom(), 200 + 30);
}

TEST(PrintedHeader, keepsManyChoicesLegible)
{
    PlanDesk desk(3);
    desk.form.CbTranche.design({"Semestre 1 2026-2027"}, 0);
    desk.form.OptB().select();
    desk.form.cb_Locaux.design({"0", "1"}, 1);
    desk.tick(desk.form.ElemDep);
    desk.form.Combo1.design({"GC"}, 0);
    desk.tick(desk.form.Chk_Neutre);
    desk.tick(desk.form.Check1);
    desk.form.Cb_Mat.design({"Algorithmique"}, 0);
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    Canvas canvas(1800, 600);
    const paint::DrawingTarget target = print::UsePrinterTarget(paper());
    canvas.draw([&](QPainter& painter) {
        painter.translate(0, 200);
        print::PrintHeader(painter, target, sheet);
    });
    // Beside the title, above the dates. Seven points are 14 pixels: the line has capitals with
    // accents and letters that reach below it.
    const QRect line = canvas.bounds(Canvas::untouched, QRect(800, 95, 1000, 48));
    EXPECT_GE(line.height(), 14);
    EXPECT_LE(line.right(), 150 + sheet.width / 10);
}

namespace
{

/// The header over an empty plan of two rows, its hours from 200 pixels down on.
Canvas headerOf(PlanDesk& desk)
{
    Canvas canvas(1800, 600);
    const paint::DrawingTarget target = print::UsePrinterTarget(paper());
    canvas.draw([&](QPainter& painter) {
        painter.translate(0, 200);
        print::PrintHeader(painter, target, sheetOf(desk));
    });
    return canvas;
}

} // namespace

TEST(PrintedHeader, hasAMarkBelowEveryHour)
{
    PlanDesk desk(3);
    desk.draw();
    const Canvas canvas = headerOf(desk);
    // Four points, or eight pixels, down to the header's foot at 30.
    for (const int hour : {312, 425, 538}) {
        EXPECT_EQ(canvas.at(hour, 228), QColor(Qt::black)) << hour;
        EXPECT_EQ(canvas.at(hour, 223), QColor(Qt::black)) << hour;
        EXPECT_FALSE(canvas.isTouched(hour + 3, 228)) << hour;
        EXPECT_FALSE(canvas.isTouched(hour, 232)) << hour;
    }
}

TEST(PrintedHeader, framesTheTotalsUnderTheirSlots)
{
    PlanDesk desk(3);
    desk.draw();
    desk.totals.isOld = false;
    desk.form.Tot[1].visible = true;
    desk.form.Tot[1].caption = "30";
    // 9h30 lies 1700 twips behind 8h00; the rows end at 345 + 518 + 450 = 1313 twips, and the
    // totals begin 60 below them: 137.3 to 165.8 pixels.
    const Canvas canvas = headerOf(desk);
    const QColor frame(60, 60, 60);
    EXPECT_EQ(canvas.at(482, 350), frame);
    EXPECT_EQ(canvas.at(652, 350), frame);
    EXPECT_FALSE(canvas.isTouched(484, 339));
    EXPECT_FALSE(canvas.isTouched(567, 334));
    EXPECT_FALSE(canvas.isTouched(567, 368));
    EXPECT_FALSE(canvas.isTouched(312, 350)); // the hidden ones
    const QRect within(485, 340, 164, 22);
    const QRect number = canvas.bounds(Canvas::untouched, within);
    EXPECT_NEAR(number.center().x(), 567, 2);
    EXPECT_NEAR(number.center().y(), 351, 3);
    EXPECT_EQ(canvas.lightness(number).first, 0);
    desk.totals.isOld = true; // greyed
    EXPECT_NEAR(headerOf(desk).lightness(number).first, 130, 2);
}
