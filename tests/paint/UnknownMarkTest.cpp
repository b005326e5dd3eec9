#include "paint/UnknownMark.h"

#include "paint/Canvas.h"
#include "support/RuntimeMatchers.h"

using test::Canvas;

namespace
{

constexpr QColor grey(225, 225, 225);

Canvas marked(const paint::DrawingTarget& target, int minutes)
{
    Canvas canvas(400, 60);
    canvas.draw(
        [&](QPainter& painter) { paint::drawUnknownMark(painter, target, 20, 10, minutes, 300); });
    return canvas;
}

} // namespace

TEST(AnUnknownCell, fillsTheRectangleThatItsBoxWouldHave)
{
    EXPECT_EQ(marked({}, 90).touched(), QRect(20, 10, 160, 20));
    EXPECT_EQ(marked({}, 45).touched(), QRect(20, 10, 80, 20));
    EXPECT_EQ(marked({}, 0).touched(), QRect());
}

TEST(AnUnknownCell, isGreyWithLinesAndAQuestionMarkInTheMiddle)
{
    const Canvas canvas = marked({}, 90);
    const QRect left(22, 12, 50, 16);
    const QRect middle(94, 12, 12, 16);
    EXPECT_GT(canvas.count(grey, left), left.width() * left.height() / 3);
    EXPECT_LT(canvas.count(grey, left), left.width() * left.height());
    EXPECT_GT(canvas.lightness(left).first, 120);   // lines, no ink
    EXPECT_LT(canvas.lightness(middle).first, 100); // the mark
}

TEST(AnUnknownCell, keepsToItsRectangleWhenItIsNarrow)
{
    EXPECT_EQ(marked({}, 4).touched(), QRect(20, 10, 7, 20));
}

TEST(AnUnknownCell, standsAtThePapersOffset)
{
    paint::DrawingTarget paper;
    paper.TargetIsPrinter = true;
    paper.TargetXOffset = 150;
    EXPECT_EQ(marked(paper, 90).touched(), QRect(170, 10, 160, 20));
}
