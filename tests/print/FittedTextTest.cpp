#include "print/FittedText.h"

#include "paint/Canvas.h"
#include "support/RuntimeMatchers.h"

#include <QFontMetricsF>

using namespace print;
using test::Canvas;

namespace
{

/// 720 dots per inch: a point is ten pixels.
paint::DrawingTarget fineDevice()
{
    paint::DrawingTarget target;
    target.PixelsPerPoint = 10;
    return target;
}

const form::Font twelvePoints{"Arial", 12, false};
constexpr QRectF place(100, 50, 900, 200);

struct Drawn {
    Canvas canvas{1200, 300};
    double width = 0;
    int pixels = 0; ///< size of the font at the end
};

Drawn drawn(const QString& text, const QRectF& rectangle = place,
            Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop)
{
    Drawn drawn;
    drawn.canvas.draw([&](QPainter& painter) {
        drawn.width = drawFitted(painter, fineDevice(), twelvePoints, rectangle, alignment, text);
        drawn.pixels = painter.font().pixelSize();
    });
    return drawn;
}

double widthAt(int points, const QString& text)
{
    return QFontMetricsF(paperFont(twelvePoints, fineDevice(), points)).horizontalAdvance(text);
}

} // namespace

TEST(PaperFont, hasItsSizeInTheTargetsPixels)
{
    EXPECT_EQ(paperFont(twelvePoints, fineDevice(), 9).pixelSize(), 90);
    paint::DrawingTarget screen;
    screen.PixelsPerPoint = 96.0 / 72;
    EXPECT_EQ(paperFont(twelvePoints, screen, 10).pixelSize(), 13); // 13.3
    EXPECT_EQ(paperFont(twelvePoints, screen, 0).pixelSize(), 1);
}

TEST(PaperFont, isTheFormsOwnAndOneLikeItWhereThatIsMissing)
{
    const QFont font = paperFont({"Inconnue", 12, true}, fineDevice(), 12);
    EXPECT_EQ(font.families(), QStringList({"Inconnue", "Arial", "Liberation Sans"}));
    EXPECT_TRUE(font.bold());
    EXPECT_FALSE(paperFont(twelvePoints, fineDevice(), 12).bold());
}

TEST(FittedText, isAsLargeAsTheFormSaysWhereItFits)
{
    const Drawn whole = drawn("Semaine A");
    EXPECT_EQ(whole.pixels, 120);
    EXPECT_DOUBLE_EQ(whole.width, widthAt(12, "Semaine A"));
}

TEST(FittedText, isSmallerByPointsUntilItFits)
{
    const QString text = "Université du Nord";
    const QRectF narrow(100, 50, widthAt(7, text), 200);
    EXPECT_EQ(drawn(text, narrow).pixels, 70);
    EXPECT_DOUBLE_EQ(drawn(text, narrow).width, widthAt(7, text));
    EXPECT_EQ(drawn(text, narrow.adjusted(0, 0, -1, 0)).pixels, 60);
    EXPECT_EQ(drawn(text, QRectF(100, 50, 1, 200)).pixels, 10); // a point, and no less
}

TEST(FittedText, standsWhereItIsToStand)
{
    const QRect upperLeft = drawn("H").canvas.touched();
    EXPECT_NEAR(upperLeft.left(), 100 + 9, 4); // an H begins a 13th of its size behind its place
    EXPECT_LT(upperLeft.bottom(), 50 + 120);
    const QRect lowerRight = drawn("H", place, Qt::AlignRight | Qt::AlignBottom).canvas.touched();
    EXPECT_NEAR(lowerRight.right(), 1000 - 10, 4);
    EXPECT_GT(lowerRight.top(), 250 - 120);
    const QRect middle = drawn("H", place, Qt::AlignCenter).canvas.touched();
    EXPECT_NEAR(middle.center().x(), 550, 2);
}
