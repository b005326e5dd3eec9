#include "form/Colour.h"

#include <gtest/gtest.h>

using form::Colour;

TEST(Colour, holdsRedInTheLowByte)
{
    // 10 + 256 * 20 + 65536 * 30
    EXPECT_EQ(Colour::fromRgb(10, 20, 30).value, 1971210U);
}

TEST(Colour, givesItsComponentsBack)
{
    const Colour color{0xc08040};
    EXPECT_EQ(color.red(), 0x40);
    EXPECT_EQ(color.green(), 0x80);
    EXPECT_EQ(color.blue(), 0xc0);
}
