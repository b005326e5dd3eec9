#include "paint/FittingSize.h"

#include <gtest/gtest.h>
#include <vector>

using paint::fittingSize;

TEST(FittingSize, isTheLargestThatFits)
{
    EXPECT_EQ(fittingSize(13, 9, [](int size) { return size <= 11; }), 11);
    EXPECT_EQ(fittingSize(13, 9, [](int) { return true; }), 13);
    EXPECT_EQ(fittingSize(13, 9, [](int size) { return size == 9; }), 9);
}

TEST(FittingSize, isNoneWhereTheSmallestIsTooLarge)
{
    EXPECT_EQ(fittingSize(13, 9, [](int size) { return size <= 8; }), std::nullopt);
    EXPECT_EQ(fittingSize(1, 2, [](int) { return true; }), std::nullopt); // none to try
}

TEST(FittingSize, asksNoFurtherThanItMust)
{
    std::vector<int> asked;
    (void)fittingSize(13, 9, [&asked](int size) {
        asked.push_back(size);
        return size == 12;
    });
    EXPECT_EQ(asked, std::vector<int>({13, 12}));
}
