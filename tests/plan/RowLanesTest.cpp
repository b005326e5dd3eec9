#include "plan/RowLanes.h"

#include "support/RuntimeMatchers.h"

using namespace plan;

namespace
{

PlanBox boxFrom(int x, double width)
{
    PlanBox box;
    box.x = x;
    box.width = width;
    return box;
}

/// "0/2 1/2": the lane of each box, and how many share the height there.
QString lanesOf(std::initializer_list<PlanBox> boxes)
{
    PlanRow row;
    row.boxes = boxes;
    assignLanes(row);
    QStringList words;
    for (const PlanBox& box : row.boxes) {
        words << QString("%1/%2").arg(box.lane).arg(box.lanes);
    }
    return words.join(' ');
}

} // namespace

TEST(RowLanes, areOneForBoxesThatFollowEachOther)
{
    EXPECT_EQ(lanesOf({boxFrom(0, 2400), boxFrom(2400, 2400), boxFrom(6000, 800)}), "0/1 0/1 0/1");
    EXPECT_EQ(lanesOf({}), "");
}

TEST(RowLanes, forgiveWhatRoundingToTwipsMakes)
{
    EXPECT_EQ(lanesOf({boxFrom(0, 2401.6), boxFrom(2400, 2400)}), "0/1 0/1");
    EXPECT_EQ(lanesOf({boxFrom(0, 2426.7), boxFrom(2400, 2400)}), "0/2 1/2"); // a minute
}

TEST(RowLanes, shareTheHeightBetweenBoxesThatOverlap)
{
    EXPECT_EQ(lanesOf({boxFrom(0, 4800), boxFrom(2400, 2400), boxFrom(9000, 800)}), "0/2 1/2 0/1");
}

TEST(RowLanes, beginWithTheEarliestBoxWhateverItsSlot)
{
    EXPECT_EQ(lanesOf({boxFrom(2400, 2400), boxFrom(0, 4800)}), "1/2 0/2");
}

TEST(RowLanes, areTakenAgainWhereABoxHasEnded)
{
    // The first two overlap, and the last two: none is there with all others.
    EXPECT_EQ(lanesOf({boxFrom(0, 2000), boxFrom(1000, 3000), boxFrom(2000, 1000)}), "0/2 1/2 0/2");
}

TEST(RowLanes, areThreeForThreeAtOnce)
{
    EXPECT_EQ(lanesOf({boxFrom(0, 2400), boxFrom(0, 2400), boxFrom(0, 1200)}), "0/3 1/3 2/3");
}

TEST(RowLanes, tellWhichBoxesOverlapOne)
{
    PlanRow row;
    row.boxes = {boxFrom(0, 2000), boxFrom(1000, 3000), boxFrom(2000, 1000)};
    EXPECT_EQ(overlapping(row, row.boxes[0]), std::vector<const PlanBox*>{&row.boxes[1]});
    EXPECT_EQ(overlapping(row, row.boxes[1]),
              (std::vector<const PlanBox*>{&row.boxes[0], &row.boxes[2]}));
}
