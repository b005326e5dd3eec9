#include "plan/PlanOptions.h"

#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using test::PlanDesk;

namespace
{

class Options : public testing::Test
{
protected:
    /// How many redraws the change of a check box brings.
    std::uint64_t redraws(form::CheckBox& box)
    {
        const std::uint64_t before = desk.refresh.refreshCount();
        box.setChecked(!box.isChecked());
        return desk.refresh.refreshCount() - before;
    }

    PlanDesk desk{3};
};

} // namespace

TEST_F(Options, redrawThePlanOnce)
{
    for (form::CheckBox* box :
         {&desk.form.Check3, &desk.form.Chk_Type, &desk.form.ChkGrille, &desk.form.Colorer}) {
        EXPECT_EQ(redraws(*box), 1U) << qPrintable(box->caption);
    }
}

TEST_F(Options, redrawThePlanForEachKindOfWeek)
{
    desk.form.OptA.select();
    EXPECT_EQ(desk.refresh.refreshCount(), 1U);
    desk.form.OptB.select();
    EXPECT_EQ(desk.refresh.refreshCount(), 2U);
    desk.form.OptFixe.select();
    EXPECT_EQ(desk.refresh.refreshCount(), 3U);
}

TEST_F(Options, redrawNothingForTheGridBeforeTheWindowIsVisible)
{
    desk.form.visible = false;
    EXPECT_EQ(redraws(desk.form.ChkGrille), 0U);
}

TEST_F(Options, redrawNothingForCounting)
{
    EXPECT_EQ(redraws(desk.form.Chk_Compt), 0U);
    EXPECT_TRUE(desk.totals.CountingOn);
    EXPECT_EQ(redraws(desk.form.Chk_Compt), 0U);
    EXPECT_FALSE(desk.totals.CountingOn);
}
