#include "answers/ClashGroups.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace timetable;

namespace
{

class TheGroups : public testing::Test
{
protected:
    const std::vector<HoldingId> candidates{HoldingId(7), HoldingId(3), HoldingId(5), HoldingId(9)};
    ClashGroups groups{candidates};
};

} // namespace

TEST_F(TheGroups, haveNobodyWhoWasNotJoined)
{
    EXPECT_TRUE(groups.groups().empty());
    groups.join(1, 1, {Week::A, {{480}, {60}}, 40});
    const std::vector<ClashGroup> found = groups.groups();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].holders, std::vector{HoldingId(3)});
    EXPECT_EQ(found[0].reason.students, 40);
}

TEST_F(TheGroups, comeByTheirFirstCandidatesWhicheverWasJoinedFirst)
{
    groups.join(3, 1, {});
    groups.join(2, 0, {});
    const std::vector<ClashGroup> found = groups.groups();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].holders, (std::vector{HoldingId(7), HoldingId(5)}));
    EXPECT_EQ(found[1].holders, (std::vector{HoldingId(3), HoldingId(9)}));
}

TEST_F(TheGroups, bringTheirReasonsAlongWhenTheyAreJoined)
{
    groups.join(0, 1, {Week::A, {{540}, {30}}, 10});
    groups.join(2, 3, {Week::B, {{600}, {60}}, 30});
    groups.join(1, 3, {Week::A, {{480}, {10}}, 20});
    const std::vector<ClashGroup> found = groups.groups();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].holders, candidates);
    EXPECT_EQ(found[0].reason.weeks, Week::Every);
    EXPECT_EQ(found[0].reason.time, (TimeSpan{{480}, {180}}));
    EXPECT_EQ(found[0].reason.students, 30);
}

TEST_F(TheGroups, keepTheWeekThatAllReasonsHave)
{
    groups.join(0, 1, {Week::B, {{540}, {30}}, 0});
    groups.join(1, 2, {Week::B, {{540}, {30}}, 0});
    EXPECT_EQ(groups.groups().at(0).reason.weeks, Week::B);
}
