#include "paint/BoxText.h"

#include "paint/Canvas.h"
#include "plan/CellLayout.h"
#include "support/RuntimeMatchers.h"

#include <QFontMetricsF>

using plan::CellLayout;
using test::Canvas;

namespace
{

constexpr QRect textArea(100, 50, 160, 60);

QFont arial(int pixels)
{
    QFont font("Arial");
    font.setPixelSize(pixels);
    return font;
}

double lineHeight()
{
    return QFontMetricsF(arial(13)).height();
}

double ascent()
{
    return QFontMetricsF(arial(13)).ascent();
}

/// The first rows below each block of ink: the baselines of lines of capitals.
QList<int> feetOf(const Canvas& canvas)
{
    QList<int> feet;
    bool inked = false;
    for (int y = 0; y < canvas.image().height(); ++y) {
        const bool ink =
            !canvas.bounds(Canvas::untouched, {0, y, canvas.image().width(), 1}).isEmpty();
        if (inked && !ink) {
            feet << y;
        }
        inked = ink;
    }
    return feet;
}

Canvas written(const QString& text, int format = CellLayout::kCentredLines,
               const QRectF& place = textArea)
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

// An H is as high as a capital and stands on the baseline; the textArea's middle is 180, 80.
// Letters of 13 pixels take lines of `lineHeight`, whose baseline lies `ascent` below their top.

TEST(BoxText, isCentredBothWays)
{
    const QRect ink = written("H").touched();
    EXPECT_NEAR(ink.center().x(), 179.5, 1);
    EXPECT_NEAR(ink.bottom() + 1, 80 - lineHeight() / 2 + ascent(), 1);
    EXPECT_NEAR(ink.height(), 9, 1);
}

TEST(BoxText, startsAtTheTopLeftWhenItsLinesAreBroken)
{
    const QRect ink = written("H", CellLayout::kWordBreak).touched();
    EXPECT_NEAR(ink.left(), textArea.left() + 1, 1);
    EXPECT_NEAR(ink.bottom() + 1, textArea.top() + ascent(), 1);
}

TEST(BoxText, standsOneLineBelowTheOther)
{
    const QList<int> feet = feetOf(written("H\r\nH\r\nH"));
    ASSERT_EQ(feet.size(), 3);
    for (int line = 0; line < 3; ++line) {
        EXPECT_NEAR(feet[line], 80 + (line - 1.5) * lineHeight() + ascent(), 1) << line;
    }
}

TEST(BoxText, hasEachLineInTheMiddle)
{
    const Canvas canvas = written("HHHHHH\r\nH");
    EXPECT_NEAR(canvas.bounds(Canvas::untouched, {100, 50, 160, 29}).center().x(), 179.5, 1);
    EXPECT_NEAR(canvas.bounds(Canvas::untouched, {100, 82, 160, 28}).center().x(), 179.5, 1);
}

TEST(BoxText, movesLinesTogetherThatAreTooManyForTheirArea)
{
    // Four lines of nine pixels, each more than ten high, in 38: nine and a half for each.
    const QRectF low(100, 50, 160, 38);
    const QList<int> feet = feetOf(written("H\r\nH\r\nH\r\nH", CellLayout::kCentredLines, low));
    ASSERT_EQ(feet.size(), 4);
    EXPECT_NEAR(feet[3] - feet[0], 3 * 9.5, 1);
    const QFontMetricsF nine(arial(9));
    EXPECT_NEAR(feet[0], 50 + (9.5 - nine.height()) / 2 + nine.ascent(), 1);
}

TEST(BoxText, isCutOnlyWhereItsLinesCannotMoveCloser)
{
    // The lines move together until a line is as high as its ascent, about eight pixels.
    const QFontMetricsF nine(arial(9));
    const QString fourLines = "H\r\nH\r\nH\r\nH";
    const auto feetIn = [&](double height) {
        return feetOf(written(fourLines, CellLayout::kCentredLines, {100, 50, 160, height}));
    };
    // In 33 each line has 8.25, and what its blank rows lack is taken from above and below alike.
    const QList<int> whole = feetIn(33);
    ASSERT_EQ(whole.size(), 4);
    for (int line = 0; line < 4; ++line) {
        const double top = 50 + 8.25 * line + (8.25 - nine.height()) / 2;
        EXPECT_NEAR(whole[line], top + nine.ascent(), 0.6) << line;
    }
    // In 20 two lines have room, and a pixel below the textArea shows the next one's head.
    const QList<int> cut = feetIn(20);
    ASSERT_GE(cut.size(), 2);
    for (int line = 0; line < 2; ++line) {
        const double top = 50 + nine.ascent() * line + (nine.ascent() - nine.height()) / 2;
        EXPECT_NEAR(cut[line], top + nine.ascent(), 0.6) << line;
    }
    EXPECT_LE(cut.last(), 50 + 20 + 1);
}

TEST(BoxText, isAsLargeAsItsAreaAllows)
{
    // One line of 13 pixels takes 15 of height, one of 11 takes 12.6; one pixel may be missing.
    const auto capital = [](double height) {
        return written("H", CellLayout::kCentredLines, {100, 50, 160, height}).touched().height();
    };
    EXPECT_EQ(capital(lineHeight()), capital(60));
    EXPECT_EQ(capital(lineHeight() - 1), capital(60));
    EXPECT_LT(capital(lineHeight() - 2.5), capital(60));
    EXPECT_NEAR(capital(8), 6.5, 1); // nine pixels, however low the textArea is
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
    EXPECT_TRUE(textArea.adjusted(-2, -1, 2, 1).contains(broken));
}

TEST(BoxText, staysInItsAreaHoweverLongItIs)
{
    const QString word = QString("Anticonstitutionnellement").repeated(10);
    for (const int format : {CellLayout::kCentredLines, CellLayout::kWordBreak}) {
        for (const QString& text :
             QStringList{word, QStringList(30, word).join("\r\n"), word + " " + word}) {
            const QRect ink = written(text, format).touched();
            EXPECT_FALSE(ink.isEmpty());
            EXPECT_TRUE(textArea.adjusted(-2, -1, 2, 1).contains(ink));
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
    const double baseline = 80 - lineHeight() / 2 + ascent();
    const QRect left = label("H", textArea).touched();
    EXPECT_NEAR(left.left(), textArea.left() + 1, 1);
    EXPECT_NEAR(left.bottom() + 1, baseline, 1);
    const QRect right = label("H", textArea, Qt::AlignRight).touched();
    EXPECT_NEAR(right.right(), textArea.right() - 1, 1);
    EXPECT_NEAR(right.bottom() + 1, baseline, 1);
}

TEST(LabelText, takesTwoLinesForANameThatIsTooLongForOne)
{
    const Canvas canvas = label("HHHHH HHHH", {100, 50, 60, 38});
    const QList<int> feet = feetOf(canvas);
    ASSERT_EQ(feet.size(), 2);
    EXPECT_NEAR(feet[0], 69 - lineHeight() + ascent(), 1);
    EXPECT_NEAR(feet[1], 69 + ascent(), 1);
    const QRect upper = canvas.bounds(Canvas::untouched, {100, 50, 60, feet[0] - 50});
    const QRect lower = canvas.bounds(Canvas::untouched, {100, feet[0], 60, 30});
    EXPECT_NEAR(upper.left(), 101, 1);
    EXPECT_NEAR(lower.left(), 101, 1);
    EXPECT_NEAR(lower.width() * 5.0 / 4, upper.width(), 3); // four letters below five
}

TEST(LabelText, shrinksForANameThatIsALittleTooLongInALowRow)
{
    const QString name = "HHHHHHHHHH";
    const double whole = label(name, {100, 50, 200, 16}).touched().width();
    const QRect shrunk = label(name, {100, 50, whole - 4, 16}).touched();
    EXPECT_GT(shrunk.width(), whole * 11 / 13); // one size smaller, or two, and not cut
    EXPECT_LT(shrunk.width(), whole - 3);
    EXPECT_TRUE(QRectF(98, 49, whole, 18).contains(shrunk));
}

TEST(LabelText, shrinksInOneLineWhereTwoHaveNoRoom)
{
    // Two lines of the smallest size are more than 20 high.
    const QString name = "HHHHH HHHH";
    const double whole = label(name, {100, 50, 200, 16}).touched().width();
    const Canvas shrunk = label(name, {100, 50, whole - 4, 16});
    EXPECT_EQ(feetOf(shrunk).size(), 1);
    EXPECT_GT(shrunk.touched().width(), whole * 11 / 13); // both words
    // Where two lines have room they are broken at once, in the size of all other names.
    const Canvas broken = label(name, {100, 50, whole - 4, 32});
    EXPECT_EQ(feetOf(broken).size(), 2);
    EXPECT_EQ(broken.touched().width(), label("HHHHH", textArea).touched().width());
}

TEST(LabelText, isCutInOneLineWhereNeitherLinesNorSizesHelp)
{
    EXPECT_EQ(feetOf(label("HHHHHHHHHHHH HHHH", {100, 50, 40, 26})).size(), 1);
}

// A name that is cut looks the same whatever it goes on with.

TEST(LabelText, isCutWhereNothingElseHelps)
{
    const QRectF tiny(100, 50, 50, 13);
    const Canvas cut = label("Amphi Al Khwarizmi", tiny);
    EXPECT_FALSE(cut.touched().isEmpty());
    EXPECT_EQ(cut.image(), label("Amphi Al Khwarizmu", tiny).image());
}
