#include "context/PageRule.h"

#include <gtest/gtest.h>

using context::PageRule;

TEST(PageRule, startsAPageOneRoomFurtherFromTheSecondOn)
{
    const PageRule rule(10, false);
    EXPECT_EQ(rule.startOf(0), 0);
    EXPECT_EQ(rule.startOf(1), 10);
    EXPECT_EQ(rule.startOf(2), 21);
    EXPECT_EQ(rule.startOf(3), 32);
    EXPECT_TRUE(rule.isStart(0));
    EXPECT_TRUE(rule.isStart(21));
    EXPECT_FALSE(rule.isStart(11));
    EXPECT_FALSE(rule.isStart(20));
}

TEST(PageRule, countsTheGreyedRoomAmongThoseOfAPage)
{
    const PageRule rule(10, false);
    EXPECT_EQ(rule.positionOf(0, 0), 0);
    EXPECT_EQ(rule.positionOf(0, 10), 10);
    EXPECT_EQ(rule.positionOf(10, 0), 11);
    EXPECT_EQ(rule.positionOf(10, 1), 12);
    EXPECT_EQ(rule.pageOf(10), 0);
    EXPECT_EQ(rule.pageOf(11), 1);
    EXPECT_EQ(rule.rowOf(11), 0);
    EXPECT_EQ(rule.rowOf(12), 1);
}

TEST(PageRule, countsPagesThatDrawARoom)
{
    const PageRule rule(10, false);
    EXPECT_EQ(rule.pageCount(0), 1);
    EXPECT_EQ(rule.pageCount(11), 1);
    EXPECT_EQ(rule.pageCount(12), 1); // the twelfth would stand alone in row 0
    EXPECT_EQ(rule.pageCount(13), 2);
    EXPECT_EQ(rule.pageCount(35), 4);
    EXPECT_EQ(PageRule(19, false).pageCount(64), 4);
}

TEST(PageRule, leavesNoRoomOutWhereEveryOneHasARow)
{
    const PageRule rule(10, true);
    EXPECT_EQ(rule.startOf(2), 20);
    EXPECT_TRUE(rule.isStart(20));
    EXPECT_FALSE(rule.isStart(21));
    EXPECT_EQ(rule.positionOf(20, 1), 20);
    EXPECT_EQ(rule.positionOf(20, 10), 29);
    EXPECT_EQ(rule.pageOf(20), 2);
    EXPECT_EQ(rule.rowOf(20), 1);
    EXPECT_EQ(rule.rowOf(29), 10);
    EXPECT_EQ(rule.pageCount(0), 1);
    EXPECT_EQ(rule.pageCount(10), 1);
    EXPECT_EQ(rule.pageCount(11), 2);
}

TEST(PageRule, hasAsManyRowsAsAPageCanHold)
{
    EXPECT_EQ(PageRule(0, true).rows(), 1);
    EXPECT_EQ(PageRule(-4, true).rows(), 1);
    EXPECT_EQ(PageRule(29, true).rows(), 29);
    EXPECT_EQ(PageRule(1000, true).rows(), 29);
}
