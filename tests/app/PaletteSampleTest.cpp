#include "app/PaletteSample.h"

#include <QImage>
#include <gtest/gtest.h>
#include <map>

namespace
{

/// The table in which rows 1 to 4 have four colours of their own.
plan::RowColors fourColors()
{
    plan::RowColors colors;
    for (int entry = 0; entry < plan::RowColors::kColors; ++entry) {
        colors.set(entry, form::Colour::fromRgb(200, 200, 200));
    }
    colors.set(3, form::Colour::fromRgb(250, 10, 10));
    colors.set(4, form::Colour::fromRgb(10, 250, 10));
    colors.set(5, form::Colour::fromRgb(10, 10, 250));
    colors.set(6, form::Colour::fromRgb(250, 250, 10));
    return colors;
}

std::map<QRgb, int> pixels(const QImage& image)
{
    std::map<QRgb, int> count;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++count[image.pixel(x, y)];
        }
    }
    return count;
}

} // namespace

TEST(PaletteSample, givesEachRowTheColourThatThePlanGivesIt)
{
    const QImage image = app::paletteSample(fourColors(), 1).toImage();
    std::map<QRgb, int> count = pixels(image);
    for (const QRgb color :
         {qRgb(250, 10, 10), qRgb(10, 250, 10), qRgb(10, 10, 250), qRgb(250, 250, 10)}) {
        EXPECT_GT(count[color], 1000) << QColor(color).name().toStdString();
    }
    EXPECT_EQ(count[qRgb(200, 200, 200)], 0); // nobody's row
}

TEST(PaletteSample, hasTheFaintLinesOfTheWindow)
{
    std::map<QRgb, int> count = pixels(app::paletteSample(fourColors(), 1).toImage());
    EXPECT_EQ(count[qRgb(0, 180, 0)], 0);
    EXPECT_GT(count[qRgb(200, 236, 200)], 100);
}

TEST(PaletteSample, isAsSharpAsTheScreen)
{
    const QPixmap sample = app::paletteSample(fourColors(), 2);
    EXPECT_EQ(sample.size(), app::kSampleSize * 2);
    EXPECT_EQ(sample.deviceIndependentSize().toSize(), app::kSampleSize);
}
