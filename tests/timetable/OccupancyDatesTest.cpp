// On which days courses, make-ups and exams hold their rooms.

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

const QDate kFirstDay(2026, 9, 7);  // a Monday
const QDate kLastDay(2026, 12, 18); // a Friday
const QDate kMondayOfPeriod(2026, 11, 16);

/// Room R1, slots of 90 minutes from 8h00 on, and a period from 7 September to 18 December 2026.
class DaysOfARow : public testing::Test
{
protected:
    DaysOfARow()
    {
        m_draft.room("R1").period(kFirstDay, kLastDay);
        m_draft.slot("Lundi1", "8h00", "9h30").slot("Lundi2", "9h30", "11h00");
        m_draft.examWeeks(QDate(2027, 1, 4), QDate(2027, 1, 11), QDate(2026, 11, 9));
    }

    void course(const QString& key)
    {
        m_draft.course({{column::kSeance, key}, {column::kSalle, "R1"}});
    }
    void makeUp(const QString& key, const QString& date)
    {
        m_draft.makeUp({{column::kSeance, key},
                        {column::kSalle, "R1"},
                        {column::kClasse, "C1"},
                        {column::kDateX, date}});
    }
    void exam(const QString& key, const QString& week)
    {
        m_draft.exam({{column::kSeance, key}, {column::kSalle, "R1"}, {column::kSemaine, week}});
    }

    /// How many rows hold R1 then.
    [[nodiscard]] static std::size_t held(const Occupancy& occupancy, const When& when)
    {
        return occupancy.holders(RoomId(0), when).size();
    }
    [[nodiscard]] static std::size_t held(const Occupancy& occupancy, QDate date)
    {
        return held(occupancy, When::date(date));
    }

    Draft m_draft;
};

} // namespace

TEST_F(DaysOfARow, ofACourseAreThatDayOfEveryWeek)
{
    course("Mardi1");
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(held(occupancy, When::weekday(1)), 1U);
    EXPECT_EQ(held(occupancy, When::weekday(0)), 0U);
    EXPECT_EQ(held(occupancy, kMondayOfPeriod.addDays(1)), 1U);
    EXPECT_EQ(held(occupancy, kMondayOfPeriod), 0U);
}

TEST_F(DaysOfARow, ofACourseLieWithinThePeriodItsEndsIncluded)
{
    course("Lundi1");
    course("Vendredi1");
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(held(occupancy, kFirstDay.addDays(-7)), 0U);
    EXPECT_EQ(held(occupancy, kFirstDay), 1U);
    EXPECT_EQ(held(occupancy, kLastDay), 1U);
    EXPECT_EQ(held(occupancy, kLastDay.addDays(7)), 0U);
}

TEST_F(DaysOfARow, ofACourseHaveNoEndThatCannotBeRead)
{
    m_draft.period(QDate(), QDate());
    course("Lundi1");
    EXPECT_EQ(held(m_draft.occupancy(), QDate(2031, 3, 3)), 1U);
}

TEST_F(DaysOfARow, ofACourseAreThoseOfTheWeekThatTheDateLiesIn)
{
    m_draft.course(
        {{column::kSeance, "Lundi1"}, {column::kNewNature, "10/20"}, {column::kSalle, "R1"}});
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(held(occupancy, When::date(kMondayOfPeriod, Week::A)), 1U);
    EXPECT_EQ(held(occupancy, When::date(kMondayOfPeriod, Week::B)), 0U);
    EXPECT_EQ(held(occupancy, When::date(kMondayOfPeriod)), 1U);
}

TEST_F(DaysOfARow, mayBeSundays)
{
    course("Dimanche1");
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(held(occupancy, QDate(2026, 11, 22)), 1U);
    EXPECT_EQ(held(occupancy, kMondayOfPeriod), 0U);
}

TEST_F(DaysOfARow, ofAMakeUpAreItsDateAlone)
{
    makeUp("Lundi1", "2026-11-16");
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(held(occupancy, kMondayOfPeriod), 1U);
    EXPECT_EQ(held(occupancy, kMondayOfPeriod.addDays(7)), 0U);
    EXPECT_EQ(held(occupancy, When::weekday(kMonday)), 0U);
}

TEST_F(DaysOfARow, ofAMakeUpAreItsDateWhateverDayItsKeyNames)
{
    makeUp("Lundi2", "2026-11-19"); // a Thursday
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(held(occupancy, kMondayOfPeriod), 0U);
    const auto onThursday = occupancy.holders(RoomId(0), When::date({2026, 11, 19}));
    ASSERT_EQ(onThursday.size(), 1U);
    const Holder holder = occupancy.describe(occupancy.holding(onThursday[0]));
    EXPECT_EQ(holder.kind, MeetingKind::MakeUp);
    EXPECT_EQ(holder.day, 3);
    EXPECT_EQ(holder.slot, 2);
    EXPECT_EQ(holder.time, (TimeSpan{{9 * 60 + 30}, {90}}));
    EXPECT_EQ(holder.date, QDate(2026, 11, 19));
}

TEST_F(DaysOfARow, ofAMakeUpMayLieOutsideThePeriod)
{
    makeUp("Samedi1", "2026-12-26");
    EXPECT_EQ(held(m_draft.occupancy(), QDate(2026, 12, 26)), 1U);
}

TEST_F(DaysOfARow, ofAMakeUpHaveAllRoomsHeldInWhateverWeek)
{
    for (const QString name : {"R2", "R3", "R4", "R5", "R6"}) {
        m_draft.room(name);
    }
    m_draft.makeUp({{column::kSeance, "Lundi1"},
                    {column::kNewNature, "10/20"},
                    {column::kDateX, "2026-11-16"},
                    {column::kSalle, "R1"},
                    {column::kXSalle, "R2"},
                    {column::kYSalle, "R3"},
                    {column::kSalleB, "R4"},
                    {column::kXSalleB, "R5"},
                    {column::kYSalleB, "R6"}});
    const Occupancy occupancy = m_draft.occupancy();
    for (int room = 0; room < 6; ++room) {
        for (const Week week : {Week::A, Week::B, Week::Every}) {
            EXPECT_EQ(occupancy.holders(RoomId(room), When::date(kMondayOfPeriod, week)).size(), 1U)
                << "room " << room;
        }
    }
    ASSERT_EQ(occupancy.holdings().size(), 4U); // a holder a part
    EXPECT_EQ(occupancy.describe(occupancy.holdings()[0]).weeks, Week::Every);
    EXPECT_EQ(occupancy.describe(occupancy.holdings()[0]).rooms, (QStringList{"R1", "R3"}));
}

TEST_F(DaysOfARow, ofAMakeUpAreNoneWithoutADate)
{
    makeUp("Lundi1", QString());
    makeUp("Lundi1", "bientôt");
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_TRUE(occupancy.holdings().empty());
    EXPECT_EQ(occupancy.unplaced(), (std::vector<Unplaced>{{0, NoDay::Date}, {1, NoDay::Date}}));
}

TEST_F(DaysOfARow, ofAnExamAreTheDayOfItsExamWeek)
{
    exam("Mercredi1", "2");
    const Occupancy occupancy = m_draft.occupancy();
    const auto found = occupancy.holders(RoomId(0), When::date({2027, 1, 13}));
    ASSERT_EQ(found.size(), 1U);
    const Holder holder = occupancy.describe(occupancy.holding(found[0]));
    EXPECT_EQ(holder.kind, MeetingKind::Exam);
    EXPECT_EQ(holder.day, 2);
    EXPECT_EQ(holder.date, QDate(2027, 1, 13));
    EXPECT_EQ(held(occupancy, QDate(2027, 1, 6)), 0U);
    EXPECT_EQ(held(occupancy, When::weekday(2)), 0U);
}

TEST_F(DaysOfARow, ofAnExamAreItsDatesWhereItsWeekDoesNotBeginOnAMonday)
{
    m_draft.slot("Vendredi1", "8h30", "10h00");
    m_draft.examWeeks(QDate(2027, 1, 7), QDate(2027, 1, 11), QDate(2026, 11, 9)); // a Thursday
    exam("Mardi1", "1");                                                          // its second day
    const Occupancy occupancy = m_draft.occupancy();
    const auto found = occupancy.holders(RoomId(0), When::date({2027, 1, 8}));
    ASSERT_EQ(found.size(), 1U);
    const Holder holder = occupancy.describe(occupancy.holding(found[0]));
    EXPECT_EQ(holder.day, 4); // a Friday, and at the hour of Friday's slot
    EXPECT_EQ(holder.time, (TimeSpan{{510}, {90}}));
}

TEST_F(DaysOfARow, ofExamsAndCoursesMayBeTheSame)
{
    exam("Samedi2", "3"); // the control week lies within the period
    course("Samedi1");
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(held(occupancy, QDate(2026, 11, 14)), 2U);
}

TEST_F(DaysOfARow, ofAnExamAreNoneWithoutAWeekOrADay)
{
    exam("Lundi1", "4");
    exam("Lundi1", QString());
    exam("Dimanche1", "1"); // an exam week ends on Saturday
    exam("1", "1");
    m_draft.examWeeks(QDate(), QDate(), QDate());
    exam("Lundi1", "1");
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_TRUE(occupancy.holdings().empty());
    ASSERT_EQ(occupancy.unplaced().size(), 5U);
    EXPECT_EQ(occupancy.unplaced().front(), (Unplaced{0, NoDay::ExamDay}));
}

TEST_F(DaysOfARow, ofACourseAreNoneWithoutADayInItsKey)
{
    course("S1");
    course(QString());
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_TRUE(occupancy.holdings().empty());
    EXPECT_EQ(occupancy.unplaced(),
              (std::vector<Unplaced>{{0, NoDay::CourseKey}, {1, NoDay::CourseKey}}));
}

TEST_F(DaysOfARow, areNoneAndYetItsRoomsAndItsHourMayBeKnown)
{
    m_draft.course({{column::kSeance, "Mradi2"},
                    {column::kSalle, "R1"},
                    {column::kNewNature, "10/20"},
                    {column::kSalleB, "R2"}});
    m_draft.course({{column::kSeance, "Mradi2"}, {column::kSalle, "R1"}, {column::kDebut, "9h00"}});
    makeUp("Lundi2", "bientôt"); // the slot that its key names is at 9h30
    const Occupancy occupancy = m_draft.occupancy();
    ASSERT_EQ(occupancy.unplaced().size(), 3U);
    const std::vector<Holding> parts = occupancy.holdingsOf(occupancy.unplaced()[0]);
    ASSERT_EQ(parts.size(), 2U);
    EXPECT_EQ(occupancy.describe(parts[0]).rooms, QStringList{"R1"});
    EXPECT_EQ(occupancy.describe(parts[1]).rooms, QStringList{"R2"});
    EXPECT_EQ(parts[0].weeks, Week::A);
    EXPECT_EQ(parts[1].weeks, Week::B);
    EXPECT_EQ(parts[0].day, kNoDay);
    EXPECT_EQ(parts[0].time, std::nullopt);
    EXPECT_EQ(occupancy.holdingsOf(occupancy.unplaced()[1]).at(0).time, (TimeSpan{{540}, {90}}));
    EXPECT_EQ(occupancy.holdingsOf(occupancy.unplaced()[2]).at(0).time, (TimeSpan{{570}, {90}}));
}

TEST_F(DaysOfARow, putMakeUpsInTheirPlaceAmongTheCourses)
{
    course("Lundi1");
    makeUp("Lundi2", "2026-11-16");
    m_draft.course(
        {{column::kSeance, "Lundi2"}, {column::kSalle, "R1"}, {column::kDebut, "12h00"}});
    const Occupancy occupancy = m_draft.occupancy();
    std::vector<int> starts;
    for (const HoldingId id : occupancy.holders(RoomId(0), When::date(kMondayOfPeriod))) {
        starts.push_back(occupancy.holding(id).time->start.value);
    }
    EXPECT_EQ(starts, (std::vector<int>{8 * 60, 9 * 60 + 30, 12 * 60}));
}
