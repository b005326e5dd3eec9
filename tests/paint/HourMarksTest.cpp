#include "paint/HourMarks.h"

#include <gtest/gtest.h>

using namespace paint;

namespace
{

/// 8h00 stands at 2000 twips, an hour takes 1600.
class TheMarks : public testing::Test
{
protected:
    TheMarks() { form.Label1[0].place.left = 2000; }

    form::PlanForm form;
};

} // namespace

TEST_F(TheMarks, areTheHoursThatAreShown)
{
    const std::vector<HourMark> marks = hourMarks(form, {2000, 5200});
    EXPECT_EQ(marks, (std::vector<HourMark>{
                         {2000, 480, "8h00"}, {3600, 540, "9h00"}, {5200, 600, "10h00"}}));
}

TEST_F(TheMarks, tellTheBeginningBetweenTwoHours)
{
    // 7h30 to 9h20.
    const std::vector<HourMark> marks = hourMarks(form, {1200, 4133});
    EXPECT_EQ(marks, (std::vector<HourMark>{
                         {1200, 450, "7h30"}, {2000, 480, "8h00"}, {3600, 540, "9h00"}}));
}

TEST_F(TheMarks, leaveTheBeginningOutWhereItWouldRunIntoTheNextHour)
{
    EXPECT_EQ(hourMarks(form, {2000 - 640, 3600}).front().caption, "8h00"); // 7h36
    EXPECT_EQ(hourMarks(form, {2000 - 667, 3600}).front().caption, "7h35"); // on whole twips
}

TEST_F(TheMarks, goBeyondTheTicksOfTheDesign)
{
    const std::vector<HourMark> marks = hourMarks(form, {2000 - 8 * 1600, 2000 + 16 * 1600});
    ASSERT_EQ(marks.size(), 25U);
    EXPECT_EQ(marks.front().caption, "0h00");
    EXPECT_EQ(marks.back(), (HourMark{27600, 1440, "24h00"}));
}

TEST_F(TheMarks, liesWhereItsTimeIs)
{
    EXPECT_DOUBLE_EQ(minuteAt(form, 2800), 510);
    EXPECT_DOUBLE_EQ(positionOf(form, 510), 2800);
    EXPECT_DOUBLE_EQ(positionOf(form, 450), 1200);
}
