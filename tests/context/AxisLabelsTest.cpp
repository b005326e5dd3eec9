#include "context/AxisLabels.h"

#include "support/RuntimeMatchers.h"

using namespace context;

TEST(AxisLabels, placeTheHourTicksAlongTheAxis)
{
    form::PlanForm form;
    form.Label1.front().place.left = 1000;
    placeTicks(form);
    for (int hour = 0; hour < 12; ++hour) {
        // 60 minutes are 1600 twips.
        EXPECT_EQ(form.Label1.at(static_cast<std::size_t>(hour)).place.left, 1000 + 1600 * hour);
    }
}

TEST(AxisLabels, putTheTotalsAboveTheWindowsEdge)
{
    form::PlanForm form;
    form.scaleHeight = 10000;
    form.Tot[0].place.height = 285;
    placeTotals(form, 470);
    EXPECT_EQ(form.Tot[0].place.top, 10000 - 285 - 470);
}

TEST(AxisLabels, endTheAxisWhereTheLastTickOrSlotEnds)
{
    form::PlanForm form;
    form.Label1.back().place.left = 18600;
    form.Tot[4].place.left = 18600;
    form.Tot[4].place.width = 2400;
    DaySlots slots;
    EXPECT_EQ(axisEnd(form, slots), 18600); // the total of a slot that is not there counts nothing
    slots.set(5, Slot{"19h00", 19 * 3600, 90});
    EXPECT_EQ(axisEnd(form, slots), 21000);
}

TEST(AxisLabels, takeTheScreensAxisFromTheFirstTick)
{
    form::PlanForm form;
    form.Label1.front().place.left = 1000;
    const TimeAxis axis = screenAxis(form);
    EXPECT_EQ(axis.TimeToX("8h00"), 1000);
    EXPECT_EQ(axis.TimeToX("9h30"), 3400);
}
