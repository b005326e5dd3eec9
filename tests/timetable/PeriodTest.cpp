#include "timetable/Period.h"

#include "support/RuntimeMatchers.h"

#include <gtest/gtest.h>

using namespace timetable;

namespace
{

Period from(QDate firstDay, QDate lastDay)
{
    return {1, QStringLiteral("Semestre 1"), firstDay, lastDay};
}

} // namespace

TEST(Period, holdsItsDaysBothEndsIncluded)
{
    const Period period = from({2026, 9, 7}, {2026, 12, 18});
    EXPECT_FALSE(period.holds({2026, 9, 6}));
    EXPECT_TRUE(period.holds({2026, 9, 7}));
    EXPECT_TRUE(period.holds({2026, 12, 18}));
    EXPECT_FALSE(period.holds({2026, 12, 19}));
}

TEST(Period, hasNoEndWhereNoneCanBeRead)
{
    EXPECT_TRUE(from({}, {2026, 12, 18}).holds({1999, 1, 1}));
    EXPECT_FALSE(from({}, {2026, 12, 18}).holds({2026, 12, 19}));
    EXPECT_TRUE(from({2026, 9, 7}, {}).holds({2050, 1, 1}));
}

TEST(ExamWeeks, beginOnTheMondayAfterAPeriodWithoutSuch)
{
    // Ends on a Friday; begins on a Monday, and four weeks later it is Monday, 5 October.
    const ExamWeeks weeks = ExamWeeks::usualOf(from({2026, 9, 7}, {2026, 12, 18}));
    EXPECT_EQ(weeks.firstDays[0], QDate(2026, 12, 21));
    EXPECT_EQ(weeks.firstDays[1], QDate(2026, 12, 28));
    EXPECT_EQ(weeks.firstDays[2], QDate(2026, 10, 12));
}

TEST(ExamWeeks, neverBeginOnTheLastDayItself)
{
    EXPECT_EQ(ExamWeeks::usualOf(from({2026, 9, 9}, {2026, 12, 21})).firstDays[0],
              QDate(2026, 12, 28)); // ends on a Monday
    EXPECT_EQ(ExamWeeks::usualOf(from({2026, 9, 9}, {2026, 12, 20})).firstDays[0],
              QDate(2026, 12, 21)); // on a Sunday
    EXPECT_EQ(ExamWeeks::usualOf(from({2026, 9, 9}, {2026, 12, 20})).firstDays[2],
              QDate(2026, 10, 12)); // Wednesday, 7 October, is four weeks in
}

TEST(ExamWeeks, areNoneWhereThePeriodsDaysAreNotKnown)
{
    const ExamWeeks weeks = ExamWeeks::usualOf(from({}, {}));
    for (const QDate firstDay : weeks.firstDays) {
        EXPECT_FALSE(firstDay.isValid());
    }
}

TEST(ExamWeeks, haveSixDaysCountedFromTheirFirst)
{
    const ExamWeeks weeks{{QDate(2027, 1, 4), QDate(2027, 1, 13), QDate()}};
    EXPECT_EQ(weeks.date(1, 0), QDate(2027, 1, 4));
    EXPECT_EQ(weeks.date(1, 5), QDate(2027, 1, 9));
    EXPECT_EQ(weeks.date(2, 0), QDate(2027, 1, 13)); // what the database names, Monday or not
    EXPECT_EQ(weeks.date(1, 6), std::nullopt);
    EXPECT_EQ(weeks.date(1, -1), std::nullopt);
    EXPECT_EQ(weeks.date(0, 0), std::nullopt);
    EXPECT_EQ(weeks.date(3, 0), std::nullopt);
    EXPECT_EQ(weeks.date(4, 0), std::nullopt);
}
