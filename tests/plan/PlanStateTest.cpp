#include "plan/PlanState.h"

#include "support/RuntimeMatchers.h"

using namespace plan;

TEST(PlanState, letsBoxesShowWhatIsTicked)
{
    PlanState state;
    state.form.XOpCl.setChecked(true);
    state.form.xOpExam.setChecked(true);
    state.form.OptB().select();
    state.form.OpExam().select();
    state.layout.CellSeparator = "\r\n";
    const lookup::DisplayOptions options = viewOf(state).options;
    EXPECT_TRUE(options.exam);
    EXPECT_TRUE(options.showClass);
    EXPECT_FALSE(options.showTeachers);
    EXPECT_TRUE(options.showInvigilators);
    EXPECT_FALSE(options.showSubject);
    EXPECT_FALSE(options.showType);
    EXPECT_FALSE(options.everyWeek);
    EXPECT_FALSE(options.showsWeekA);
    EXPECT_TRUE(options.showsWeekB);
    EXPECT_EQ(options.separator, "\r\n");
}

TEST(PlanState, looksAtTheChosenDay)
{
    PlanState state;
    state.form.OpExam().select();
    state.form.Check2.setChecked(true);
    state.form.DTPicker1.setValue(QDate(2026, 10, 14));
    state.period.examWeek = 3;
    const lookup::ViewedDay day = viewOf(state).day;
    EXPECT_TRUE(day.exam);
    EXPECT_EQ(day.examWeek, 3);
    EXPECT_TRUE(day.makeUps);
    EXPECT_EQ(day.date, QDate(2026, 10, 14));
}

TEST(PlanState, asksForASubjectOnlyWhileTheFilterIsOn)
{
    PlanState state;
    state.form.Cb_Mat.design({"Optique"}, 0);
    EXPECT_EQ(viewOf(state).subject, std::nullopt);
    state.form.Check1.setChecked(true);
    EXPECT_EQ(viewOf(state).subject, QString("Optique"));
}

TEST(PlanState, givesTheHourTicksToTheLookup)
{
    const QStringList captions = viewOf(PlanState()).tickTimes;
    ASSERT_EQ(captions.size(), 12);
    EXPECT_EQ(captions.first(), "8h00");
    EXPECT_EQ(captions.last(), "19h00");
}

TEST(PlanState, isCopiedWithItsValuesAndWithoutItsEvents)
{
    PlanState state;
    int clicks = 0;
    state.form.CbJour.click = [&clicks] { ++clicks; };
    state.form.OpExam().click() = [&clicks] { ++clicks; };
    state.form.XpMat.setChecked(true);
    state.totals.sums[2] = 90;
    state.page.rooms[1] = {"A101", "30"};
    state.colors.set(3, form::Colour::fromRgb(1, 2, 3));
    PlanState copy = state;
    EXPECT_TRUE(copy.form.XpMat.isChecked());
    EXPECT_EQ(copy.totals.sums[2], 90);
    EXPECT_EQ(copy.page.rooms[1].name, "A101");
    EXPECT_EQ(copy.colors.at(3), form::Colour::fromRgb(1, 2, 3));
    copy.form.CbJour.setListIndex(2);
    copy.form.OpExam().select();
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(state.form.CbJour.listIndex(), 0);
    EXPECT_TRUE(state.form.OpEns().isSelected());
    state.form.CbJour.setListIndex(1);
    EXPECT_EQ(clicks, 1);
}
