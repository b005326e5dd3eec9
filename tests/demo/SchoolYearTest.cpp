#include "demo/SchoolYear.h"

#include "support/RuntimeMatchers.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace demo;

namespace
{

Period firstPeriod(QDate reference)
{
    return periodsAround(reference, 1).front();
}

} // namespace

TEST(SchoolYear, putsTodayIntoTheFirstPeriodOnEveryDay)
{
    // Leap year and year's ends included.
    for (QDate day(2023, 8, 1); day < QDate(2029, 1, 1); day = day.addDays(1)) {
        const Period period = firstPeriod(day);
        EXPECT_EQ(period.ident, 1);
        EXPECT_LE(period.first, day);
        // The make-ups of the three weeks to come fall into it, too.
        EXPECT_GE(period.last, mondayOf(day).addDays(26)) << day.toString().toStdString();
    }
}

TEST(SchoolYear, namesThePeriodAfterTheTimeOfYear)
{
    EXPECT_EQ(firstPeriod(QDate(2026, 11, 25)).name, "Semestre 1 2026-2027");
    EXPECT_EQ(firstPeriod(QDate(2027, 1, 1)).name, "Semestre 1 2026-2027");
    EXPECT_EQ(firstPeriod(QDate(2028, 2, 29)).name, "Semestre 2 2027-2028");
    EXPECT_EQ(firstPeriod(QDate(2027, 7, 31)).name, "Session d’été 2027");
    EXPECT_EQ(firstPeriod(QDate(2027, 9, 1)).name, "Semestre 1 2027-2028");
}

TEST(SchoolYear, endsBeforeTheExamsWhichBeginOnMondays)
{
    const Period period = firstPeriod(QDate(2026, 11, 25));
    EXPECT_EQ(period.first, QDate(2026, 8, 31)); // the Monday of 1 September
    EXPECT_EQ(period.last, QDate(2027, 1, 9));   // a Saturday
    EXPECT_EQ(period.examWeek1, QDate(2027, 1, 11));
    EXPECT_EQ(period.examWeek2, QDate(2027, 1, 18));
    EXPECT_EQ(period.controlWeek, QDate(2026, 11, 9)); // the middle of 131 days is 4 November
    EXPECT_EQ(period.academicYear, 2026);
}

TEST(SchoolYear, prolongsAPeriodThatWouldEndTooSoon)
{
    // The semester would end on 9 January; the date's week begins on 18 January.
    const Period period = firstPeriod(QDate(2027, 1, 20));
    EXPECT_EQ(period.last, QDate(2027, 2, 13));
    EXPECT_EQ(period.examWeek1, QDate(2027, 2, 15));
}

TEST(SchoolYear, goesOnWithTheNextSemesterAndThenBack)
{
    QStringList names;
    for (const Period& period : periodsAround(QDate(2026, 11, 25), 4)) {
        names.append(period.name);
    }
    const QStringList expected = {"Semestre 1 2026-2027", "Semestre 2 2026-2027",
                                  "Semestre 2 2025-2026", "Semestre 1 2025-2026"};
    EXPECT_EQ(names, expected);
}

TEST(SchoolYear, keepsPeriodsApartAndTheirNamesUnique)
{
    for (QDate day(2026, 1, 1); day < QDate(2027, 1, 1); day = day.addDays(1)) {
        QSet<QString> names;
        const std::vector<Period> periods = periodsAround(day, 20);
        ASSERT_EQ(periods.size(), 20U);
        for (const Period& one : periods) {
            names.insert(one.name);
            EXPECT_EQ(one.first.dayOfWeek(), 1);
            EXPECT_LT(one.first, one.last);
            for (const Period& other : periods) {
                const bool apart = one.last < other.first || other.last < one.first;
                EXPECT_TRUE(apart || one.ident == other.ident) << day.toString().toStdString();
            }
        }
        EXPECT_EQ(names.size(), 20);
    }
}

TEST(SchoolYear, countsTheSundayToTheWeekThatEnds)
{
    EXPECT_EQ(mondayOf(QDate(2026, 11, 29)), QDate(2026, 11, 23));
    EXPECT_EQ(mondayOf(QDate(2026, 11, 23)), QDate(2026, 11, 23));
}
