#include "runtime/RandomSource.h"

#include <gtest/gtest.h>

using runtime::RandomSource;

TEST(RandomSource, startsTheSameSequenceAtEverySeedingWhenTheSeedIsFixed)
{
    RandomSource first(7);
    RandomSource second(7);
    const double number = first.next();
    EXPECT_EQ(number, second.next());
    EXPECT_NE(number, first.next());
    first.seedFromClock();
    EXPECT_EQ(number, first.next());
}

TEST(RandomSource, givesTheSameNumbersOnEveryPlatform)
{
    // The generator's first number for its standard seed is 3499211612, of 2^32.
    RandomSource source(5489);
    EXPECT_EQ(source.next(), 3499211612.0 / 4294967296.0);
}

TEST(RandomSource, staysWithinZeroAndOne)
{
    RandomSource source;
    for (int i = 0; i < 10000; ++i) {
        const double number = source.next();
        ASSERT_GE(number, 0.0);
        ASSERT_LT(number, 1.0);
    }
}
