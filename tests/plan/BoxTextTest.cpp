#include "plan/BoxText.h"

#include "plan/Canvas.h"
#include "plan/RoomOccupancy.h"
#include "support/RuntimeMatchers.h"

using plan::CellLayout;
using test::Canvas;

namespace
{

constexpr QRect area(100, 50, 160, 60);

Canvas written(const QString& text, int format = CellLayout::kCentredLines,
               const QRectF& place = area)
{
    Canvas canvas;
    canvas.draw([&](QPainter& painter) {
        QFont font("Arial");
        font.setPixelSize(13);
        painter.setFont(font);
        plan::drawBoxText(painter, place, text, format, plan::TextRuler(painter.font()));
    });
    return canvas;
}

} // namespace

TEST(BoxText, isCentredBothWays)
{
    const QRect ink = written("GC1").touched();
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.center().x(), area.center().x(), 2);
    EXPECT_NEAR(ink.center().y(), area.center().y(), 4);
}

TEST(BoxText, startsAtTheTopLeftWhenItsLinesAreBroken)
{
    const QRect ink = written("GC1", CellLayout::kWordBreak).touched();
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_LT(ink.left(), area.left() + 4);
    EXPECT_LT(ink.bottom(), area.center().y());
}

TEST(BoxText, standsOneLineBelowTheOther)
{
    const int one = written("GC1").touched().height();
    const int two = written("GC1\r\nGC2").touched().height();
    EXPECT_GT(two, 2 * one);
}

TEST(BoxText, isNotMovedByASeparatorAtItsEnd)
{
    EXPECT_EQ(written("GC1\r\n Dupont\r\n").image(), written("GC1\r\nDupont").image());
    EXPECT_EQ(written("GC1\r\n\r\n").image(), written("GC1").image());
}

TEST(BoxText, breaksLongLinesBetweenWords)
{
    const QString text = "Mécanique des milieux continus et résistance des matériaux";
    const QRect broken = written(text, CellLayout::kWordBreak).touched();
    EXPECT_GT(broken.height(), written("Mécanique").touched().height() * 2);
    EXPECT_TRUE(area.adjusted(-2, -1, 2, 1).contains(broken));
}

TEST(BoxText, staysInItsAreaHoweverLongItIs)
{
    const QString word = QString("Anticonstitutionnellement").repeated(10);
    for (const int format : {CellLayout::kCentredLines, CellLayout::kWordBreak}) {
        for (const QString& text :
             QStringList{word, QStringList(30, word).join("\r\n"), word + " " + word}) {
            const QRect ink = written(text, format).touched();
            EXPECT_FALSE(ink.isEmpty());
            EXPECT_TRUE(area.adjusted(-2, -1, 2, 1).contains(ink));
        }
    }
}

TEST(BoxText, paintsNothingWithoutTextOrRoom)
{
    EXPECT_TRUE(written("").touched().isEmpty());
    EXPECT_TRUE(written(" \r\n ").touched().isEmpty());
    EXPECT_TRUE(written("GC1", CellLayout::kCentredLines, {100, 50, 3, 60}).touched().isEmpty());
    EXPECT_TRUE(written("GC1", CellLayout::kCentredLines, {100, 50, 160, 3}).touched().isEmpty());
    EXPECT_TRUE(written("GC1", CellLayout::kCentredLines, {100, 50, -9, 60}).touched().isEmpty());
}

TEST(BoxText, shrinksToFitARowOfManyRooms)
{
    // 200 twips: 13 pixels, of which the box leaves 11.
    const QRect ink =
        written("GC1 Dupont", CellLayout::kCentredLines, {100, 50, 150, 11}).touched();
    EXPECT_FALSE(ink.isEmpty());
    EXPECT_TRUE(QRect(98, 49, 154, 13).contains(ink));
}
