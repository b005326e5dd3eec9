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

TEST(PrintedBox, isHatchedWithLinesOfItsOwn)
{
    BoxStyle style;
    style.fill = form::Colour::fromRgb(250, 230, 120);
    style.hatched = true;
    style.rowHeight = 400;
    Canvas canvas(1200, 400);
    canvas.draw([&](QPainter& painter) { DrawCellBox(painter, paper(), style, 100, 50, 90, ""); });
    // 1700 × 400 twips at 250, 50. A line of half a point stands every six and a half.
    const QRect inside(256, 56, 838, 188);
    const int filled = canvas.count(QColor(250, 230, 120), inside);
    const int all = inside.width() * inside.height();
    EXPECT_GT(filled, all / 2);
    EXPECT_LT(filled, all * 9 / 10);
    EXPECT_TRUE(QRect(247, 47, 857, 207).contains(canvas.touched()));
}
