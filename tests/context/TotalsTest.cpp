#include "context/Totals.h"

#include "support/RuntimeMatchers.h"

using context::ResetTotals;
using context::Totals;

namespace
{

/// A totals line in the middle of its work.
void fill(form::PlanForm& form, Totals& totals)
{
    totals.SlotSeats.fill(30);
    totals.SlotTeacherCount.fill(2);
    totals.sums.fill(30);
    totals.isOld = true;
    for (form::Label& total : form.Tot) {
        total.caption = "30/2";
        total.visible = true;
    }
}

} // namespace

TEST(Totals, areClearedInAllElevenColumns)
{
    form::PlanForm form;
    Totals totals;
    fill(form, totals);
    ResetTotals(form, totals);
    for (std::size_t slot = 0; slot < 11; ++slot) {
        EXPECT_EQ(totals.SlotSeats.at(slot), 0);
        EXPECT_EQ(totals.SlotTeacherCount.at(slot), 0);
        EXPECT_EQ(totals.sums.at(slot), 0);
        EXPECT_EQ(form.Tot.at(slot).caption, "0000");
        EXPECT_FALSE(form.Tot.at(slot).visible);
    }
    EXPECT_FALSE(totals.isOld);
}

TEST(Totals, addUpTheRoomsAndWriteTheirCaptions)
{
    form::PlanForm form;
    Totals totals;
    totals.clear(form);
    totals.SlotSeats = {30, 0, 40};
    totals.addRoom(form, false);
    totals.SlotSeats = {20, 0, 0};
    totals.addRoom(form, false);
    EXPECT_EQ(form.Tot.at(0).caption, "50");
    EXPECT_TRUE(form.Tot.at(0).visible);
    EXPECT_EQ(form.Tot.at(1).caption, "0");
    EXPECT_FALSE(form.Tot.at(1).visible);
    EXPECT_EQ(form.Tot.at(2).caption, "40");
}

TEST(Totals, putTheTeachersBehindTheSeats)
{
    form::PlanForm form;
    Totals totals;
    totals.clear(form);
    totals.SlotSeats = {30};
    totals.SlotTeacherCount = {3};
    totals.addRoom(form, true);
    EXPECT_EQ(form.Tot.at(0).caption, "30/3");
    totals.addRoom(form, true);
    EXPECT_EQ(form.Tot.at(0).caption, "60/3"); // the seats go on, whatever the caption says
}

TEST(Totals, countAgainAfterAResetWhenCountingIsTicked)
{
    form::PlanForm form;
    Totals totals;
    form.Chk_Compt.setChecked(true);
    ResetTotals(form, totals);
    EXPECT_TRUE(totals.CountingOn);
}

TEST(Totals, keepOnCountingWhenCountingIsNotTicked)
{
    form::PlanForm form;
    Totals totals;
    totals.CountingOn = true;
    ResetTotals(form, totals);
    EXPECT_TRUE(totals.CountingOn);
    totals.CountingOn = false;
    ResetTotals(form, totals);
    EXPECT_FALSE(totals.CountingOn);
}

TEST(Totals, areClearedForARedrawWithoutStartingToCount)
{
    form::PlanForm form;
    Totals totals;
    fill(form, totals);
    form.Chk_Compt.setChecked(true);
    totals.clear(form);
    EXPECT_EQ(form.Tot.at(0).caption, "0000");
    EXPECT_FALSE(totals.CountingOn);
}
