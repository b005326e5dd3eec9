#include "paint/Lettering.h"

#include "paint/Canvas.h"
#include "support/RuntimeMatchers.h"

using namespace paint;
using test::Canvas;

namespace
{

DrawingTarget paper()
{
    DrawingTarget target;
    target.TargetIsPrinter = true;
    target.PixelsPerPoint = 2;
    return target;
}

QRect set(const DrawingTarget& target, const QString& text, const QRectF& area,
          Qt::AlignmentFlag side = Qt::AlignLeft)
{
    Canvas canvas;
    canvas.draw([&](QPainter& surface) {
        surface.setPen(Qt::black);
        Lettering(target, 20).draw(surface, area, text, side);
    });
    return canvas.touched();
}

} // namespace

TEST(Lettering, standsAtTheSideThatIsAskedFor)
{
    const QRectF area(50, 50, 300, 40);
    for (const DrawingTarget& target : {DrawingTarget(), paper()}) {
        EXPECT_NEAR(set(target, "HHH", area).left(), 50, 4);
        EXPECT_NEAR(set(target, "HHH", area, Qt::AlignRight).right(), 350, 4);
        EXPECT_NEAR(set(target, "HHH", area, Qt::AlignHCenter).center().x(), 200, 2);
        EXPECT_NEAR(set(target, "HHH", area).center().y(), 70, 3);
    }
}

TEST(Lettering, shrinksAndIsThenCut)
{
    for (const DrawingTarget& target : {DrawingTarget(), paper()}) {
        const QRect large = set(target, "HHHHHHHHHH", QRectF(50, 50, 300, 40));
        const QRect small = set(target, "HHHHHHHHHH", QRectF(50, 50, 100, 40));
        EXPECT_LT(small.height(), large.height());
        EXPECT_LE(small.right(), 150);
        EXPECT_LE(set(target, "HHHHHHHHHH", QRectF(50, 50, 30, 40)).right(), 80);
    }
}
