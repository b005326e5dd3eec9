#include "timetable/DateRules.h"

#include "support/RuntimeMatchers.h"

using namespace timetable;

namespace
{

const QDate monday(2026, 10, 12);
const QDate sunday(2026, 10, 18);

} // namespace

TEST(DateRules, findTheMondaySixDaysBeforeASunday)
{
    EXPECT_EQ(MondayOnOrBefore(sunday), monday);
}

TEST(DateRules, keepAMonday)
{
    EXPECT_EQ(MondayOnOrBefore(monday), monday);
}

TEST(DateRules, findTheMondayOfEveryOtherDay)
{
    for (int days = 1; days <= 6; ++days) {
        EXPECT_EQ(MondayOnOrBefore(monday.addDays(days)), monday) << days;
    }
    EXPECT_EQ(MondayOnOrBefore(QDate(2027, 1, 1)), QDate(2026, 12, 28)); // a Friday
}

TEST(DateRules, neverTakeTheSameDayForTheNextMonday)
{
    EXPECT_EQ(NextMondayAfter(monday), QDate(2026, 10, 19));
    EXPECT_EQ(NextMondayAfter(sunday), QDate(2026, 10, 19));
    EXPECT_EQ(NextMondayAfter(QDate(2026, 10, 16)), QDate(2026, 10, 19)); // a Friday
}

TEST(DateRules, stepByWeeksAndDaysAcrossTheYearsEnd)
{
    const QDate date(2026, 12, 28);
    EXPECT_EQ(PlusOneWeek(date), QDate(2027, 1, 4));
    EXPECT_EQ(PlusFourWeeks(date), QDate(2027, 1, 25));
    EXPECT_EQ(PlusFiveDays(date), QDate(2027, 1, 2));
}

TEST(DateRules, leadNowhereFromNoDate)
{
    EXPECT_FALSE(MondayOnOrBefore(QDate()).isValid());
    EXPECT_FALSE(NextMondayAfter(QDate()).isValid());
    EXPECT_FALSE(PlusFourWeeks(QDate()).isValid());
}
