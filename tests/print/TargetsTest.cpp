#include "print/Targets.h"

#include "support/RuntimeMatchers.h"

#include <QImage>

using namespace print;

namespace
{

QImage deviceOf(int dotsPerInchAcross, int dotsPerInchDown)
{
    constexpr double inch = 0.0254; // metres
    QImage image(10, 10, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(dotsPerInchAcross / inch));
    image.setDotsPerMeterY(qRound(dotsPerInchDown / inch));
    return image;
}

} // namespace

TEST(ScreenTarget, standsWhereTheWindowDoes)
{
    const paint::DrawingTarget target = UseScreenTarget();
    EXPECT_FALSE(target.TargetIsPrinter);
    EXPECT_EQ(target.TargetXOffset, 0);
    EXPECT_EQ(target.TargetTwipsPerPixelX, 15);
    EXPECT_EQ(target.TargetTwipsPerPixelY, 15);
    EXPECT_EQ(target.SlotWidth, 2400);
}

TEST(PrinterTarget, isMovedBy150PixelsAndHas1700TwipsFor90Minutes)
{
    const paint::DrawingTarget target = UsePrinterTarget(deviceOf(720, 720));
    EXPECT_TRUE(target.TargetIsPrinter);
    EXPECT_EQ(target.TargetXOffset, 150);
    EXPECT_EQ(target.SlotWidth, 1700);
    EXPECT_EQ(target.FontSize, 9);
}

TEST(PrinterTarget, hasThePrintersPixels)
{
    const paint::DrawingTarget fine = UsePrinterTarget(deviceOf(720, 720));
    EXPECT_EQ(fine.TargetTwipsPerPixelX, 2);
    EXPECT_EQ(fine.TargetTwipsPerPixelY, 2);
    EXPECT_EQ(fine.PixelsPerPoint, 10);
    // 600 dots per inch: 2.4 twips a pixel, downwards as a whole number.
    const paint::DrawingTarget common = UsePrinterTarget(deviceOf(600, 600));
    EXPECT_DOUBLE_EQ(common.TargetTwipsPerPixelX, 2.4);
    EXPECT_EQ(common.TargetTwipsPerPixelY, 2);
    const paint::DrawingTarget uneven = UsePrinterTarget(deviceOf(1200, 360));
    EXPECT_DOUBLE_EQ(uneven.TargetTwipsPerPixelX, 1.2);
    EXPECT_EQ(uneven.TargetTwipsPerPixelY, 4);
}

TEST(PrinterTarget, hasAWholeTwipOnAPrinterThatIsFinerThanTwips)
{
    EXPECT_EQ(UsePrinterTarget(deviceOf(4800, 4800)).TargetTwipsPerPixelY, 1);
}
