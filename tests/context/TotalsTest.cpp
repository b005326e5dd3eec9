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
        EXPECT_EQ(form.Tot.at(slot).caption, "0000");
        EXPECT_FALSE(form.Tot.at(slot).visible);
    }
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
