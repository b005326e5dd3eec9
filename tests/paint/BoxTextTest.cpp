#include "paint/BoxText.h"

#include "paint/Canvas.h"
#include "plan/CellLayout.h"
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
        paint::drawBoxText(painter, place, text, format, paint::TextRuler(painter.font()));
    });
    return canvas;
}

Canvas label(const QString& text, const QRectF& place, Qt::AlignmentFlag side = Qt::AlignLeft)
{
    Canvas canvas;
    canvas.draw([&](QPainter& painter) {
        QFont font("Arial");
        font.setPixelSize(13);
        font.setBold(true);
        paint::drawLabelText(painter, place, text, side, paint::TextRuler(font));
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

TEST(LabelText, standsAtItsSideHalfwayDown)
{
    const QRect left = label("120", area).touched();
    EXPECT_NEAR(left.left(), area.left(), 3);
    EXPECT_NEAR(left.center().y(), area.center().y(), 4);
    const QRect right = label("120", area, Qt::AlignRight).touched();
    EXPECT_NEAR(right.right(), area.right(), 3);
    EXPECT_NEAR(right.center().y(), area.center().y(), 4);
}

// A name that is cut looks the same whatever it goes on with.

TEST(LabelText, takesTwoLinesForANameThatIsTooLongForOne)
{
    const QRectF narrow(100, 50, 90, 38);
    const Canvas whole = label("Amphi Al Khwarizmi", narrow);
    EXPECT_GT(whole.touched().height(), label("Amphi", narrow).touched().height() + 8);
    EXPECT_NE(whole.image(), label("Amphi Al Khwarizmu", narrow).image());
}

TEST(LabelText, shrinksForANameThatIsALittleTooLongInALowRow)
{
    const QRectF low(100, 50, 105, 16);
    const Canvas whole = label("Amphi Al Khwarizmi", low);
    EXPECT_TRUE(QRect(98, 49, 109, 18).contains(whole.touched()));
    EXPECT_NE(whole.image(), label("Amphi Al Khwarizmu", low).image());
}

TEST(LabelText, isCutWhereNothingElseHelps)
{
    const QRectF tiny(100, 50, 50, 13);
    const Canvas cut = label("Amphi Al Khwarizmi", tiny);
    EXPECT_FALSE(cut.touched().isEmpty());
    EXPECT_EQ(cut.image(), label("Amphi Al Khwarizmu", tiny).image());
}
