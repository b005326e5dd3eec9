#include "plan/ShownHours.h"

#include "support/RuntimeMatchers.h"

using plan::HoursExtent;
using plan::shownHours;
using plan::ShownHours;

namespace
{

/// 8h00 stands at 2000 twips, and 90 minutes are 2400. The day has a slot from 8h30 to 10h00.
class TheHours : public testing::Test
{
protected:
    TheHours()
    {
        state.form.Label1[0].place.left = 2000;
        state.slots.set(1, context::Slot{"8h30", 30600, 90});
    }
    void addBox(int x, double width)
    {
        plan::PlanBox box;
        box.x = x;
        box.width = width;
        plan::PlanRow row;
        row.boxes.push_back(box);
        content.rows.push_back(row);
    }
    [[nodiscard]] ShownHours hours() const { return shownHours(state, content); }

    plan::PlanState state;
    plan::PlanContent content;
};

} // namespace

TEST_F(TheHours, areThoseOfTheSlots)
{
    EXPECT_EQ(hours(), (ShownHours{2800, 5200}));
    state.slots.set(4, context::Slot{"14h00", 50400, 60});
    EXPECT_EQ(hours(), (ShownHours{2800, 13200})); // 15h00
}

TEST_F(TheHours, reachToTheEarliestAndToTheLatestBox)
{
    addBox(1200, 2400); // 7h30
    addBox(20000, 1600);
    EXPECT_EQ(hours(), (ShownHours{1200, 21600}));
}

TEST_F(TheHours, countWhatIsUnknown)
{
    plan::PlanRow row;
    row.unknown.push_back({9, "19h00", 90, 19600, 2400});
    content.rows.push_back(row);
    EXPECT_EQ(hours(), (ShownHours{2800, 22000}));
}

TEST_F(TheHours, endAtMidnightHoweverLongABoxIs)
{
    addBox(2000, 800000);
    EXPECT_EQ(hours(), (ShownHours{2000, 27600})); // 960 minutes behind 8h00
}

TEST_F(TheHours, doNotBeginWithABoxOfNoLength)
{
    addBox(1200, 0);
    addBox(1300, -2400);
    EXPECT_EQ(hours(), (ShownHours{2800, 5200}));
}

TEST_F(TheHours, areTheMarkedOnesWhereThereIsNeitherSlotNorBox)
{
    state.slots = {};
    EXPECT_EQ(hours(), (ShownHours{2000, 19600})); // 19h00
    EXPECT_EQ(HoursExtent().hours(), (ShownHours{2040, 19640}));
}

TEST_F(TheHours, ofSeveralPagesHoldThoseOfEach)
{
    HoursExtent extent;
    extent.take(state, content);
    plan::PlanContent late;
    std::swap(content, late);
    addBox(20000, 1600);
    extent.take(state, content);
    extent.take(state, late);
    EXPECT_EQ(extent.hours(), (ShownHours{2800, 21600}));
}
