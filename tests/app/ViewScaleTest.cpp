#include "app/ViewScale.h"

#include "plan/RoomRows.h"

#include <gtest/gtest.h>

using app::fitPlan;

namespace
{

/// A plan whose rows are that high and whose time axis ends 19150 twips from the left: with the gap
/// of 60 behind it, places of 540 and their margin of 250, 20000 twips wide.
class TheScale : public testing::Test
{
protected:
    static constexpr plan::ShownHours hours{1620, 19150};

    TheScale()
    {
        form.Label1[0].place.left = 1620;
        rowHeight(300);
    }

    void rowHeight(int twips)
    {
        form.Salle[0].place = {0, 345, 1500, twips};
        plan::PlaceRoomRows(form);
    }
    /// Twips that a pixel of a view that wide stands for, across.
    [[nodiscard]] double across(int width) const
    {
        return fitPlan(form, hours, 1, {width, 500}).TargetTwipsPerPixelX;
    }
    /// The same, down, for five rows: 345 + 5 * (height + 68) - 68 twips.
    [[nodiscard]] int down(int height) const
    {
        return fitPlan(form, hours, 5, {1600, height}).TargetTwipsPerPixelY;
    }

    form::PlanForm form;
};

} // namespace

TEST_F(TheScale, showsTheWholeTimeAxisAndThePlacesBehindIt)
{
    EXPECT_DOUBLE_EQ(across(1600), 12.5);
    EXPECT_DOUBLE_EQ(across(2000), 10);
}

TEST_F(TheScale, goesNoFurtherAcrossThanWhatIsLegibleOrOfUse)
{
    EXPECT_DOUBLE_EQ(across(1053), 20000 / 1053.0); // 18.99
    EXPECT_DOUBLE_EQ(across(1000), 19);
    EXPECT_DOUBLE_EQ(across(2500), 8);
    EXPECT_DOUBLE_EQ(across(4000), 5);
    EXPECT_DOUBLE_EQ(across(5000), 5);
    EXPECT_DOUBLE_EQ(across(0), 19); // a view without a size yet
}

TEST_F(TheScale, fillsTheWidthWithTheHoursThatAreShown)
{
    // From 6h30 to 11h30: 8000 twips behind names of 1620, before 60, 540 and 250.
    const plan::ShownHours early{1620 - 2400, 1620 + 5600};
    const paint::DrawingTarget target = fitPlan(form, early, 1, {1047, 500});
    EXPECT_DOUBLE_EQ(target.TargetTwipsPerPixelX, 10);
    EXPECT_EQ(target.TargetXOffset, 240); // 6h30 stands where 8h00 would
    EXPECT_DOUBLE_EQ(target.onAxis(early.from), 162);
    EXPECT_DOUBLE_EQ(target.onAxis(early.to), 962);
}

TEST_F(TheScale, showsAllRowsInWholeTwips)
{
    // 345 + 5 * 368 - 68 = 2117 twips.
    EXPECT_EQ(down(160), 14); // 13.2
    EXPECT_EQ(down(151), 15); // 14.02: what is left over would not be seen
    EXPECT_EQ(down(212), 10); // 9.99
    EXPECT_EQ(down(211), 11); // 10.03
}

TEST_F(TheScale, goesNoFurtherDownThanWhatIsOfUse)
{
    EXPECT_EQ(down(10000), 9);
    EXPECT_EQ(down(230), 10); // 9.2
}

TEST_F(TheScale, keepsTheTextOfEveryRowHeightLegible)
{
    // Pixels that a row needs: 35 for three lines, 30 for two, 17 for an ordinary one, 13 for a
    // low one.
    for (const auto& [height, most] :
         {std::pair(700, 20), std::pair(699, 23), std::pair(400, 13), std::pair(399, 23),
          std::pair(300, 17), std::pair(299, 23), std::pair(200, 15)}) {
        rowHeight(height);
        EXPECT_EQ(down(10), most) << height;
        EXPECT_EQ(down(0), most) << height;
    }
}

TEST_F(TheScale, leavesTheOtherPropertiesOfTheScreen)
{
    const paint::DrawingTarget target = fitPlan(form, hours, 5, {1600, 400});
    EXPECT_FALSE(target.TargetIsPrinter);
    EXPECT_EQ(target.TargetXOffset, 0);
    EXPECT_EQ(target.SlotWidth, 2400);
}
