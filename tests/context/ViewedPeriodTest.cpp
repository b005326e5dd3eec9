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

TEST(ViewedPeriod, tellsItsDaysInTheHeader)
{
    form::PlanForm form;
    ViewedPeriod period;
    period.tellDays(form, QDate(2026, 9, 7), QDate(2027, 1, 29));
    EXPECT_EQ(period.firstToldDay, QDate(2026, 9, 7));
    EXPECT_EQ(period.lastToldDay, QDate(2027, 1, 29));
    EXPECT_EQ(form.Label4[1].caption, "07/SEPTEMBRE/2026");
    EXPECT_EQ(form.Label4[3].caption, "29/JANVIER/2027");
    period.tellDays(form, QDate(2026, 9, 7), QDate());
    EXPECT_FALSE(period.lastToldDay.isValid());
    EXPECT_EQ(form.Label4[3].caption, "");
}

TEST(DayList, numbersItsDaysFromMonday)
{
    const QDate monday(2026, 10, 12);
    for (int day = 0; day <= 5; ++day) {
        EXPECT_EQ(context::dayListIndex(monday.addDays(day)), day);
    }
    EXPECT_EQ(context::dayListIndex(monday.addDays(6)), -1);
}
