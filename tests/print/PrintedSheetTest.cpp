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
    const QRect all(0, 0, 1800, 600);
    EXPECT_GT(canvas.count(QColor(0, 0, 180), all), 12 * 50);
    EXPECT_GT(canvas.count(QColor(0, 180, 0), all), 33 * 50);
    EXPECT_EQ(canvas.count(QColor(125, 125, 125), all), 0);
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
