#include "files/ShareShade.h"

#include "paint/CellBox.h"

#include <gtest/gtest.h>

using files::shadeOf;
using form::Colour;

TEST(ShareShade, goesFromWhiteToBlue)
{
    EXPECT_EQ(shadeOf(0), Colour::fromRgb(255, 255, 255));
    // Halfway, rounded: (255 + 74) / 2, (255 + 134) / 2, (255 + 208) / 2.
    EXPECT_EQ(shadeOf(0.5), Colour::fromRgb(165, 195, 232));
    EXPECT_EQ(shadeOf(1), Colour::fromRgb(0x4a, 0x86, 0xd0));
}

TEST(ShareShade, knowsNothingBeyondItsEnds)
{
    EXPECT_EQ(shadeOf(-1), shadeOf(0));
    EXPECT_EQ(shadeOf(2), shadeOf(1));
}

TEST(ShareShade, leavesBlackReadableOnAll)
{
    for (const double share : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        EXPECT_EQ(paint::readableOn(shadeOf(share)), Colour::fromRgb(0, 0, 0));
        EXPECT_GT(paint::contrastRatio(shadeOf(share), Colour::fromRgb(0, 0, 0)), 4.5);
    }
}
