#include "answers/Agenda.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>
#include <optional>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// From Tuesday, 10 to Monday, 30 November 2026. The Mondays are the 16th, the 23rd and the 30th,
/// the Tuesdays the 10th, the 17th and the 24th; the 9th begins a week A. Exams in the week of 7
/// December.
class AnAgenda : public testing::Test
{
protected:
    AnAgenda()
    {
        draft.room("R1").room("R2").room("R3");
        draft.slot("Lundi1", "8h00", "9h30").slot("Lundi2", "9h30", "11h00");
        draft.period(QDate(2026, 11, 10), QDate(2026, 11, 30));
        draft.examWeeks(QDate(2026, 12, 7), QDate(2026, 12, 14), QDate(2026, 11, 16));
    }
    void course(const QString& key, const QString& room, const QString& className,
                const QString& length = {}, const QString& subject = "Algèbre")
    {
        draft.course({{column::kSeance, key},
                      {column::kSalle, room},
                      {column::kClasse, className},
                      {column::kDuree, length},
                      {column::kEnseignant1, "Durand"},
                      {column::kMatiere, subject}});
    }
    /// In week A in one room, in week B in the other.
    void alternating(const QString& key, const QString& roomA, const QString& roomB)
    {
        draft.course({{column::kSeance, key},
                      {column::kSalle, roomA},
                      {column::kSalleB, roomB},
                      {column::kClasse, "L2"},
                      {column::kEnseignant1, "Durand"},
                      {column::kEnseignant1b, "Durand"},
                      {column::kNewNature, "10/20"}});
    }
    void makeUp(const QString& date, const QString& room)
    {
        draft.makeUp({{column::kSeance, "Lundi1"},
                      {column::kSalle, room},
                      {column::kDebut, "14h00"},
                      {column::kClasse, "L1"},
                      {column::kEnseignant1, "Durand"},
                      {column::kDateX, date}});
    }
    const Occupancy& known()
    {
        if (!occupancy) {
            occupancy = draft.occupancy();
        }
        return *occupancy;
    }
    Agenda agenda(const AskedWeek& week = {})
    {
        return agendaOf(known(), known().timetable().teachers().find(u"Durand"), week, rhythm);
    }
    /// Durand's, as "month-day start minutes rooms classes".
    QStringList told(const AskedWeek& week = {})
    {
        QStringList lines;
        const Agenda found = agenda(week);
        EXPECT_FALSE(found.reason);
        for (const AgendaEntry& entry : found.entries) {
            QStringList classes;
            for (const HoldingId id : entry.holdings) {
                classes << known().describe(known().holding(id)).className;
            }
            const Holder first = known().describe(known().holding(entry.holdings.front()));
            lines << QString("%1 %2 %3 %4")
                         .arg(entry.date.toString("MM-dd"),
                              entry.time ? QString("%1 %2")
                                               .arg(entry.time->start.value)
                                               .arg(entry.time->length.value)
                                         : QString("?"),
                              first.rooms.join('+'), classes.join('+'));
        }
        return lines;
    }

    Draft draft;
    std::optional<Occupancy> occupancy; ///< once it is asked for
    WeekRhythm rhythm{QDate(2026, 11, 9)};
};

} // namespace

TEST_F(AnAgenda, holdsACourseOnItsWeekdayFromTheFirstToTheLastDay)
{
    course("Lundi1", "R1", "L1");
    course("Mardi2", "R2", "L1");
    EXPECT_EQ(told(),
              QStringList({"11-10 570 90 R2 L1", "11-16 480 90 R1 L1", "11-17 570 90 R2 L1",
                           "11-23 480 90 R1 L1", "11-24 570 90 R2 L1", "11-30 480 90 R1 L1"}));
}

TEST_F(AnAgenda, letsTheWeeksAAndBTakeTurns)
{
    alternating("Lundi1", "R1", "R2");
    EXPECT_EQ(told(),
              QStringList({"11-16 480 90 R2 L2", "11-23 480 90 R1 L2", "11-30 480 90 R2 L2"}));
    rhythm = WeekRhythm(QDate(2026, 11, 19)); // a Thursday of what is week A now
    EXPECT_EQ(told(),
              QStringList({"11-16 480 90 R1 L2", "11-23 480 90 R2 L2", "11-30 480 90 R1 L2"}));
}

TEST_F(AnAgenda, needsTheRhythmOnlyWhereSomethingIsHeldInAOrBAlone)
{
    rhythm = {};
    course("Lundi1", "R1", "L1");
    EXPECT_EQ(told().size(), 3);
    EXPECT_EQ(agenda({Week::A, {}}).reason, NoAgenda::WeeksUnknown); // which are they?
}

TEST_F(AnAgenda, isRefusedWhereTheWeeksAreNeededAndUnknown)
{
    rhythm = {};
    alternating("Mardi1", "R1", "R2");
    const Agenda found = agenda();
    EXPECT_EQ(found.reason, NoAgenda::WeeksUnknown);
    EXPECT_TRUE(found.entries.empty());
    EXPECT_TRUE(agendaSentence(known().timetable(), *found.reason).contains("SemaineA"));
    EXPECT_EQ(agenda({Week::Every, QDate(2026, 11, 18)}).reason, NoAgenda::WeeksUnknown);
    // Told with the question, it need not be known.
    EXPECT_EQ(told({Week::B, QDate(2026, 11, 18)}), QStringList({"11-17 480 90 R2 L2"}));
    // Of what alternates somewhere else nobody need know.
    EXPECT_FALSE(agendaOf(known(), roomNamed(known().timetable(), "R3"), {}, rhythm).reason);
}

TEST_F(AnAgenda, ofADateIsItsWeek)
{
    course("Lundi1", "R1", "L1");
    course("Mardi2", "R2", "L1");
    alternating("Mercredi1", "R1", "R2");
    makeUp("2026-11-21", "R2"); // a Saturday
    makeUp("2026-11-28", "R2");
    const QStringList week{"11-16 480 90 R1 L1", "11-17 570 90 R2 L1", "11-18 480 90 R2 L2",
                           "11-21 840 90 R2 L1"};
    EXPECT_EQ(told({Week::Every, QDate(2026, 11, 16)}), week);
    EXPECT_EQ(told({Week::Every, QDate(2026, 11, 22)}), week); // its Sunday
    // The question knows better which week it is.
    EXPECT_EQ(told({Week::A, QDate(2026, 11, 16)}).at(2), "11-18 480 90 R1 L2");
    EXPECT_EQ(told({Week::Every, QDate(2026, 11, 10)}),
              QStringList({"11-10 570 90 R2 L1", "11-11 480 90 R1 L2"}));
    EXPECT_EQ(told({Week::Every, QDate(2026, 12, 1)}), QStringList({"11-30 480 90 R1 L1"}));
}

TEST_F(AnAgenda, ofTheWeeksAHoldsTheirDatesAlone)
{
    course("Lundi1", "R1", "L1");
    alternating("Mardi1", "R1", "R2");
    makeUp("2026-11-18", "R2"); // in a week B
    makeUp("2026-11-25", "R2"); // in a week A
    EXPECT_EQ(told({Week::A, {}}), QStringList({"11-10 480 90 R1 L2", "11-23 480 90 R1 L1",
                                                "11-24 480 90 R1 L2", "11-25 840 90 R2 L1"}));
}

TEST_F(AnAgenda, holdsMakeUpsAndExamsWhereverTheirDatesLie)
{
    makeUp("2026-11-18", "R1");
    makeUp("2026-12-05", "R2"); // behind the period
    makeUp("2026-11-01", "R2"); // before it, a Sunday
    makeUp("demain", "R2");     // on no day that anybody knows
    draft.exam({{column::kSeance, "Mardi2"},
                {column::kSalle, "R1"},
                {column::kClasse, "L1"},
                {column::kEnseignant1, "Durand"},
                {column::kDuree, "120"},
                {column::kSemaine, "1"}});
    EXPECT_EQ(told(), QStringList({"11-01 840 90 R2 L1", "11-18 840 90 R1 L1", "12-05 840 90 R2 L1",
                                   "12-08 570 120 R1 L1"}));
}

TEST_F(AnAgenda, bringsTheDayInTheOrderOfStartAndRoom)
{
    draft.period(QDate(2026, 11, 16), QDate(2026, 11, 16));
    course("Lundi2", "R1", "L1", {}, "Chimie");
    course("Lundi1", "R2", "L2", {}, "Analyse");
    course("Lundi1", "R1", "L3", {}, "Optique");
    course("Lundi9", "R2", "L4"); // at nobody knows what time
    EXPECT_EQ(told(), QStringList({"11-16 ? R2 L4", "11-16 480 90 R1 L3", "11-16 480 90 R2 L2",
                                   "11-16 570 90 R1 L1"}));
}

TEST_F(AnAgenda, tellsOfACourseOfSeveralClassesOnce)
{
    draft.period(QDate(2026, 11, 16), QDate(2026, 11, 16));
    course("Lundi1", "R1", "L2", "60");
    course("Lundi1", "R1", "L1", "75");
    course("Lundi1", "R2", "L3");               // in another room
    course("Lundi1", "R1", "L4", {}, "Chimie"); // another subject
    course("Lundi2", "R1", "L5");               // later
    course("Lundi9", "R1", "L6");               // who knows
    course("Lundi9", "R1", "L7");
    EXPECT_EQ(told(),
              QStringList({"11-16 ? R1 L6", "11-16 ? R1 L7", "11-16 480 75 R1 L1+L2",
                           "11-16 480 90 R1 L4", "11-16 480 90 R2 L3", "11-16 570 90 R1 L5"}));
    const Agenda ofClass = agendaOf(known(), known().timetable().classes().find(u"L2"), {}, rhythm);
    ASSERT_EQ(ofClass.entries.size(), 1U); // its own row
    EXPECT_EQ(ofClass.entries[0].holdings.size(), 1U);
    EXPECT_EQ(ofClass.entries[0].time->length, Minutes{60});
}

TEST_F(AnAgenda, keepsApartWhatIsHeldInOtherWeeksOrIsAMakeUp)
{
    draft.period(QDate(2026, 11, 16), QDate(2026, 11, 23));
    course("Lundi1", "R1", "L1", {}, {});
    alternating("Lundi1", "R1", "R2");
    draft.makeUp({{column::kSeance, "Lundi1"},
                  {column::kSalle, "R1"},
                  {column::kClasse, "L3"},
                  {column::kEnseignant1, "Durand"},
                  {column::kDateX, "2026-11-23"}});
    EXPECT_EQ(told(), QStringList({"11-16 480 90 R1 L1", "11-16 480 90 R2 L2", "11-23 480 90 R1 L1",
                                   "11-23 480 90 R1 L2", "11-23 480 90 R1 L3"}));
}

TEST_F(AnAgenda, needsThePeriodsDaysOnlyWhereNoDateIsAsked)
{
    draft.period(QDate(2026, 11, 10), QDate());
    course("Lundi1", "R1", "L1");
    const Agenda found = agenda();
    EXPECT_EQ(found.reason, NoAgenda::PeriodUnread);
    EXPECT_TRUE(agendaSentence(known().timetable(), *found.reason).contains("« Semestre 1 »"));
    EXPECT_EQ(told({Week::Every, QDate(2027, 3, 15)}), QStringList({"03-15 480 90 R1 L1"}));
}

TEST_F(AnAgenda, isRefusedOfAPeriodOfMoreThanTenYears)
{
    draft.period(QDate(2016, 11, 10), QDate(2026, 11, 10));
    EXPECT_FALSE(agenda().reason);
    occupancy.reset();
    draft.period(QDate(2016, 11, 10), QDate(2026, 11, 11));
    const Agenda found = agenda();
    EXPECT_EQ(found.reason, NoAgenda::PeriodTooLong);
    EXPECT_TRUE(agendaSentence(known().timetable(), *found.reason).contains("dix ans"));
}
