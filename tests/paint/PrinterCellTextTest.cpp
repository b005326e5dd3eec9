#include "paint/PrinterCellText.h"

#include "paint/Canvas.h"
#include "paint/CellBox.h"
#include "plan/CellLayout.h"
#include "support/RuntimeMatchers.h"

#include <QFontMetricsF>

using namespace paint;
using namespace plan;
using test::Canvas;

namespace
{

/// 720 dots per inch: a point is ten pixels.
DrawingTarget paper()
{
    DrawingTarget target;
    target.TargetIsPrinter = true;
    target.TargetXOffset = 150;
    target.TargetTwipsPerPixelX = 2;
    target.TargetTwipsPerPixelY = 2;
    target.SlotWidth = context::TimeAxis::kPrinterSlotWidth;
    target.PixelsPerPoint = 10;
    target.FontSize = 9;
    return target;
}

QFont arial(int points)
{
    QFont font("Arial");
    font.setPixelSize(points * 10);
    return font;
}

double widthAt(int points, const QString& text)
{
    return TextRuler(arial(points)).width(text);
}

/// The setting of a text in a rectangle as high as anybody may wish.
PrinterSetting setIn(double width, const QString& text, double height = 5000)
{
    return printerSetting(TextRuler(arial(9)), paper(), QSizeF(width, height), text);
}

const QString word = "Thermodynamique";

} // namespace

TEST(PrinterCellText, startsFromNinePoints)
{
    EXPECT_EQ(setIn(2000, word).points, 9);
    EXPECT_EQ(setIn(2000, word).lines, QStringList({word}));
}

TEST(PrinterCellText, isLoweredByOnePointWhereNineAreTooWide)
{
    EXPECT_EQ(setIn(widthAt(9, word), word).points, 9);
    EXPECT_EQ(setIn(widthAt(9, word) - 1, word).points, 8);
}

TEST(PrinterCellText, isLoweredAsFarAsItTakes)
{
    EXPECT_EQ(setIn(widthAt(3, word) + 1, word).points, 3);
    EXPECT_EQ(setIn(1, word).points, 1); // and no further
}

TEST(PrinterCellText, keepsItsLinesAsLongAsTheyCanBeRead)
{
    const QString text = "Résistance des matériaux";
    EXPECT_EQ(setIn(widthAt(7, text) + 1, text).lines, QStringList({text}));
    EXPECT_EQ(setIn(widthAt(7, text) + 1, text).points, 7);
}

TEST(PrinterCellText, isBrokenBetweenWordsRatherThanUnreadable)
{
    const QString text = "Résistance des matériaux";
    const PrinterSetting setting = setIn(widthAt(4, text), text);
    EXPECT_EQ(setting.points, 7);
    EXPECT_EQ(setting.lines, QStringList({"Résistance", "des matériaux"}));
}

TEST(PrinterCellText, isLoweredWhereItsLinesAreTooHigh)
{
    const int one = setIn(2000, "GC1", 60).points;
    EXPECT_LT(one, 9);
    EXPECT_LT(setIn(2000, "GC1\r\nDupont\r\nAlgèbre", 120).points, 9);
}

TEST(PrinterCellText, setsTheLinesOfTheTextWithoutItsSeparators)
{
    EXPECT_EQ(setIn(2000, "GC1\r\n Dupont\r\n").lines, QStringList({"GC1", "Dupont"}));
    EXPECT_TRUE(setIn(2000, "\r\n ").lines.isEmpty());
}

TEST(PrinterCellText, leavesThePaintersFontAsItWas)
{
    Canvas canvas(2000, 1000);
    canvas.draw([](QPainter& painter) {
        painter.setFont(arial(9));
        PrinterCellText(painter, paper(), QRectF(100, 100, 200, 200), word,
                        CellLayout::kCentredLines);
        EXPECT_EQ(painter.font(), arial(9));
    });
}

TEST(PrinterCellText, staysInItsRectangle)
{
    for (const int format : {CellLayout::kCentredLines, CellLayout::kWordBreak}) {
        Canvas canvas(2000, 1000);
        canvas.draw([format](QPainter& painter) {
            painter.setFont(arial(9));
            PrinterCellText(painter, paper(), QRectF(300, 200, 850, 350),
                            "L3 Informatique G1\r\n Dupont/Durand\r\n Algorithmique et structures "
                            "de données\r\n",
                            format);
        });
        EXPECT_FALSE(canvas.touched().isEmpty());
        EXPECT_TRUE(QRect(300, 200, 850, 350).contains(canvas.touched()));
    }
}

namespace
{

constexpr QColor amber(250, 230, 120);

/// 1700 × 400 twips at 250, 50: 850 by 200 pixels.
Canvas printedBox(bool hatched, const QString& text = {}, int format = CellLayout::kCentredLines)
{
    BoxStyle style;
    style.fill = form::Colour::fromRgb(250, 230, 120);
    style.hatched = hatched;
    style.rowHeight = 400;
    style.textFormat = format;
    Canvas canvas(1200, 400);
    canvas.draw([&](QPainter& painter) {
        painter.setFont(arial(9));
        DrawCellBox(painter, paper(), style, 100, 50, 90, text);
    });
    return canvas;
}

} // namespace

TEST(PrintedBox, hasAFrameOfHalfAPoint)
{
    const Canvas canvas = printedBox(false);
    const QColor grey(60, 60, 60);
    for (const int off : {-2, 0, 2}) { // five pixels, half of them outside
        EXPECT_EQ(canvas.at(250 + off, 150), grey) << off;
        EXPECT_EQ(canvas.at(1099 + off, 150), grey) << off;
        EXPECT_EQ(canvas.at(600, 50 + off), grey) << off;
        EXPECT_EQ(canvas.at(600, 249 + off), grey) << off;
    }
    EXPECT_EQ(canvas.at(254, 150), amber);
    EXPECT_EQ(canvas.at(1094, 150), amber);
    EXPECT_EQ(canvas.at(600, 54), amber);
    EXPECT_EQ(canvas.at(600, 244), amber);
    EXPECT_TRUE(QRect(247, 47, 857, 207).contains(canvas.touched()));
}

TEST(PrintedBox, isHatchedWithLinesOfItsOwn)
{
    const Canvas canvas = printedBox(true);
    const QColor cross(187, 172, 90); // black at 64 of 255 over the fill
    // Half a point wide, a line every six and a half, each way. They start at the top 200 pixels
    // left of the box and every 65 from there, and at the bottom alike. 50 pixels below the top
    // the falling ones have come to 295 and 360, the rising ones to 265 and 330.
    for (const int x : {265, 295, 330, 360, 1045, 1075}) {
        EXPECT_EQ(canvas.at(x, 100), cross) << x;
    }
    for (const int x : {280, 312, 345, 1060}) {
        EXPECT_EQ(canvas.at(x, 100), amber) << x;
    }
    // 50 pixels above the bottom they have changed places.
    for (const int x : {265, 295, 330, 360, 1045, 1075}) {
        EXPECT_EQ(canvas.at(x, 200), cross) << x;
    }
    EXPECT_EQ(canvas.at(312, 200), amber);
    EXPECT_TRUE(QRect(247, 47, 857, 207).contains(canvas.touched()));
    EXPECT_EQ(printedBox(false).at(295, 100), amber);
}

TEST(PrintedBox, hasItsTextInTheMiddleOrAtTheTopLeft)
{
    const QColor black(0, 0, 0);
    const QRect inside(256, 56, 838, 188);
    const QRect centred = printedBox(false, "H").boundsOf(black, inside);
    EXPECT_NEAR(centred.center().x(), 674, 2);
    EXPECT_NEAR(centred.height(), 63, 3); // an H of 90 pixels is 0.72 high
    const double line = QFontMetricsF(arial(9)).height();
    const double baseline = 150 - line / 2 + QFontMetricsF(arial(9)).ascent();
    EXPECT_NEAR(centred.bottom() + 1, baseline, 3);
    const QRect left = printedBox(false, "H", CellLayout::kWordBreak).boundsOf(black, inside);
    EXPECT_NEAR(left.left(), 250 + 15 + 7, 3); // a gap of 1.5 points, and the H's own
    EXPECT_NEAR(left.bottom() + 1, 50 + QFontMetricsF(arial(9)).ascent(), 3);
}

TEST(PrintedBox, setsOneLineBelowTheOther)
{
    const QColor black(0, 0, 0);
    // Two lines of nine points, 103 pixels each, move together a little: they have 200.
    const Canvas canvas = printedBox(false, "H\r\nH");
    const QRect upper = canvas.boundsOf(black, QRect(256, 56, 838, 94));
    const QRect lower = canvas.boundsOf(black, QRect(256, 150, 838, 94));
    EXPECT_NEAR(upper.center().x(), 674, 2);
    EXPECT_NEAR(lower.center().x(), 674, 2);
    EXPECT_NEAR(lower.top() - upper.top(), std::min(100.0, QFontMetricsF(arial(9)).height()), 2);
}
