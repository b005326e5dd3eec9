#include "context/ViewedPeriod.h"

#include "support/RuntimeMatchers.h"

using context::ViewedPeriod;

TEST(ViewedPeriod, startsTheChosenExamWeek)
{
    ViewedPeriod period;
    period.examWeeks = {{QDate(2027, 2, 1), QDate(2027, 2, 8), QDate(2026, 10, 12)}};
    EXPECT_EQ(period.examWeekStart(), QDate(2027, 2, 1));
    period.examWeek = 2;
    EXPECT_EQ(period.examWeekStart(), QDate(2027, 2, 8));
    period.examWeek = 3;
    EXPECT_EQ(period.examWeekStart(), QDate(2026, 10, 12));
    period.examWeek = 0;
    EXPECT_FALSE(period.examWeekStart().isValid());
}

TEST(ViewedPeriod, showsTheDayOfTheListInItsWeek)
{
    form::PlanForm form;
    ViewedPeriod period;
    period.CurrentDate = QDate(2026, 10, 12);
    form.DTPicker1.setValue(QDate(2026, 10, 18));
    form.CbJour.setListIndex(2);
    EXPECT_EQ(period.shownDate(form), QDate(2026, 10, 14));
    form.CbJour.setListIndex(-1); // a Sunday, which the list does not hold
    EXPECT_EQ(period.shownDate(form), QDate(2026, 10, 18));
}

TEST(DayList, numbersItsDaysFromMonday)
{
    const QDate monday(2026, 10, 12);
    for (int day = 0; day <= 5; ++day) {
        EXPECT_EQ(context::dayListIndex(monday.addDays(day)), day);
    }
    EXPECT_EQ(context::dayListIndex(monday.addDays(6)), -1);
}
