#include "plan/RowColors.h"

#include "support/RuntimeMatchers.h"

using form::Colour;
using plan::RowColors;
using runtime::ErrorNumber;

namespace
{

/// The three components that a random source with this seed makes a colour of.
Colour drawn(runtime::RandomSource& random)
{
    const int red = qRound(random.next() * 255);
    const int green = qRound(random.next() * 255);
    const int blue = qRound(random.next() * 255);
    return Colour::fromRgb(red, green, blue);
}

} // namespace

TEST(RowColors, drawRedFirstThenGreenThenBlue)
{
    runtime::RandomSource random(7);
    RowColors colors(random);
    runtime::RandomSource same(7);
    EXPECT_EQ(colors.randomColor(), drawn(same));
    EXPECT_EQ(colors.randomColor(), drawn(same));
}

TEST(RowColors, fillAll256EntriesInOrder)
{
    runtime::RandomSource random(7);
    RowColors colors(random);
    colors.fillRandomly();
    runtime::RandomSource same(7);
    for (int index = 0; index < 256; ++index) {
        EXPECT_EQ(colors.at(index), drawn(same)) << index;
    }
}

TEST(RowColors, stayAsTheyAreWhilePaleColoursAreOff)
{
    runtime::RandomSource random(7);
    const RowColors colors(random);
    std::int16_t red = 10;
    std::int16_t green = 20;
    std::int16_t blue = 30;
    EXPECT_EQ(colors.MakeColor(red, green, blue), Colour::fromRgb(10, 20, 30));
    EXPECT_EQ(red, 10);
}

TEST(RowColors, areRaisedAndCappedWhilePaleColoursAreOn)
{
    runtime::RandomSource random(7);
    RowColors colors(random);
    colors.PaleColors = true;
    std::int16_t red = 10;
    std::int16_t green = 80;
    std::int16_t blue = 200;
    EXPECT_EQ(colors.MakeColor(red, green, blue), Colour::fromRgb(185, 255, 255));
    EXPECT_EQ(red, 185); // written back
    EXPECT_EQ(green, 255);
    EXPECT_EQ(blue, 255);
}

TEST(RowColors, haveNoEntryOutside0To255)
{
    runtime::RandomSource random(7);
    RowColors colors(random);
    for (const int index : {-1, 256}) {
        EXPECT_EQ(test::errorNumberOf([&] { static_cast<void>(colors.at(index)); }),
                  ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(test::errorNumberOf([&] { colors.set(index, Colour()); }),
                  ErrorNumber::SubscriptOutOfRange);
    }
    colors.set(255, Colour::fromRgb(1, 2, 3));
    EXPECT_EQ(colors.at(255), Colour::fromRgb(1, 2, 3));
}
