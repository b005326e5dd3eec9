#include "app/asking/ShownDay.h"

#include "support/RuntimeMatchers.h"

#include <gtest/gtest.h>

using timetable::Week;

namespace
{

/// The controls as on a Thursday, every week, courses.
class TheShownDay : public testing::Test
{
protected:
    TheShownDay()
    {
        for (const char* day : {"Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi"}) {
            form.CbJour.addItem(QLatin1String(day));
        }
        form.CbJour.setListIndex(3);
        form.OpEns().select();
        form.DTPicker1.setValue(date);
    }

    const QDate date{2026, 11, 26};
    form::PlanForm form;
};

} // namespace

TEST_F(TheShownDay, isTheChosenOneAndElseMonday)
{
    EXPECT_EQ(app::shownDay(form), 3);
    form.CbJour.setListIndex(-1);
    EXPECT_EQ(app::shownDay(form), timetable::kMonday);
}

TEST_F(TheShownDay, isADateOnlyWhereMakeUpsAreShown)
{
    EXPECT_FALSE(app::shownDate(form).isValid());
    form.Check2.setChecked(true);
    EXPECT_EQ(app::shownDate(form), date);
    form.OpExam().select();
    EXPECT_FALSE(app::shownDate(form).isValid());
}

TEST_F(TheShownDay, hasTheWeeksOfThePlan)
{
    EXPECT_EQ(app::shownWeeks(form), Week::Every);
    form.OptA().select();
    EXPECT_EQ(app::shownWeeks(form), Week::A);
    form.OptB().select();
    EXPECT_EQ(app::shownWeeks(form), Week::B);
}

TEST_F(TheShownDay, hasTheWeekOfItsDateWhateverWeekIsChosen)
{
    const timetable::WeekRhythm rhythm(date); // a week A
    form.OptB().select();
    EXPECT_EQ(app::shownWeek(form, rhythm).week, Week::B);
    EXPECT_FALSE(app::shownWeek(form, rhythm).date.isValid());
    form.Check2.setChecked(true);
    EXPECT_EQ(app::shownWeek(form, rhythm).week, Week::A);
    EXPECT_EQ(app::shownWeek(form, rhythm).date, date);
}
