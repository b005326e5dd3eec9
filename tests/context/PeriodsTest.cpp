#include "context/Periods.h"

#include "context/ContextDesk.h"
#include "support/RuntimeMatchers.h"

#include <optional>

using namespace test;
using runtime::ErrorNumber;

namespace
{

/// What the periods read from the database. S1 runs from Monday, 7 September 2026 to Friday,
/// 29 January 2027 and has no exam weeks of its own; S2 has.
class ThePeriods : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        Timetable timetable(database(), {"tranche", "dat_exam"});
        timetable.row("tranche", {{"ident", 1},
                                  {"Tranche", "S1"},
                                  {"DateDebut", QDate(2026, 9, 7)},
                                  {"DateFin", QDate(2027, 1, 29)}});
        timetable.row("tranche", {{"ident", 2},
                                  {"Tranche", "S2 d'été"},
                                  {"DateDebut", QDate(2027, 2, 8)},
                                  {"DateFin", QDate(2027, 6, 4)}});
        timetable.row("dat_exam", {{"Tranche", 2},
                                   {"Semaine1", QDate(2027, 6, 7)},
                                   {"Semaine2", QDate(2027, 6, 14)},
                                   {"Controle", QDate(2027, 3, 15)}});
        timetable.load();
        desk.emplace(database());
        desk->form.CbTranche.design({"S1", " S1 ", "S2 d'été", "S9"}, -1);
    }

    std::optional<ContextDesk> desk;
};

} // namespace

TEST_P(ThePeriods, showTheDatesOfTheChosenOne)
{
    desk->form.CbTranche.setListIndex(0);
    EXPECT_EQ(desk->form.Label4[1].caption, "07/SEPTEMBRE/2026");
    EXPECT_EQ(desk->form.Label4[3].caption, "29/JANVIER/2027");
    EXPECT_EQ(desk->viewed.firstToldDay, QDate(2026, 9, 7));
    EXPECT_EQ(desk->viewed.lastToldDay, QDate(2027, 1, 29));
    EXPECT_EQ(desk->form.Label11.caption, "1");
    EXPECT_EQ(desk->viewed.TrancheIdent, 1);
}

TEST_P(ThePeriods, areFoundByTheirTrimmedName)
{
    desk->form.CbTranche.setListIndex(1);
    EXPECT_EQ(desk->viewed.TrancheIdent, 1);
}

TEST_P(ThePeriods, passTheirNameToTheDatabaseAsItStands)
{
    EXPECT_EQ(errorNumberOf([&] { desk->form.CbTranche.setListIndex(2); }),
              ErrorNumber::StatementRefused);
    desk->form.CbTranche.design({"S2 d''été"}, 0);
    desk->form.CbTranche.setListIndex(0);
    EXPECT_EQ(desk->viewed.TrancheIdent, 2);
}

TEST_P(ThePeriods, keepLabelsAndNumberForAnUnknownName)
{
    desk->form.CbTranche.setListIndex(0);
    desk->form.CbTranche.setListIndex(3);
    EXPECT_EQ(desk->form.Label4[1].caption, "07/SEPTEMBRE/2026");
    EXPECT_EQ(desk->form.Label4[3].caption, "29/JANVIER/2027");
    EXPECT_EQ(desk->form.Label11.caption, "1");
    EXPECT_EQ(desk->viewed.TrancheIdent, 1);
    EXPECT_EQ(desk->plan.redraws(), 2);
}

TEST_P(ThePeriods, areChosenByTheirNumberAtStart)
{
    database().execute("UPDATE tranche SET Tranche='S2' WHERE ident=2");
    desk->form.CbTranche.design({"S1", "S2"}, -1);
    desk->periods.chooseByIdent(2);
    EXPECT_EQ(desk->form.CbTranche.text(), "S2");
    EXPECT_EQ(desk->form.Label11.caption, "2");
    EXPECT_EQ(desk->viewed.TrancheIdent, 2);
    EXPECT_EQ(desk->form.Label4[3].caption, "04/JUIN/2027");
}

TEST_P(ThePeriods, areNoneForAnUnknownNumber)
{
    desk->periods.chooseByIdent(99);
    EXPECT_EQ(desk->form.CbTranche.listIndex(), -1);
    EXPECT_EQ(desk->viewed.TrancheIdent, 0);
    EXPECT_EQ(desk->form.Label11.caption, "99");
    EXPECT_EQ(desk->form.Label4[1].caption, "");
}

TEST_P(ThePeriods, takeTheExamWeeksThatTheDatabaseGives)
{
    desk->viewed.labelledIdent = 2;
    desk->periods.LoadExamWeeks();
    EXPECT_EQ(desk->viewed.examWeeks.firstDays[0], QDate(2027, 6, 7));
    EXPECT_EQ(desk->viewed.examWeeks.firstDays[1], QDate(2027, 6, 14));
    EXPECT_EQ(desk->viewed.examWeeks.firstDays[2], QDate(2027, 3, 15));
    EXPECT_EQ(desk->viewed.TrancheIdent, 2);
}

TEST_P(ThePeriods, workOutTheExamWeeksThatTheDatabaseDoesNotGive)
{
    desk->form.CbTranche.setListIndex(0);
    desk->periods.LoadExamWeeks();
    EXPECT_EQ(desk->viewed.examWeeks.firstDays[0],
              QDate(2027, 2, 1)); // after the period's last Friday
    EXPECT_EQ(desk->viewed.examWeeks.firstDays[1], QDate(2027, 2, 8));
    // Four weeks after 7 September is Monday, 5 October; the control week is the one behind it.
    EXPECT_EQ(desk->viewed.examWeeks.firstDays[2], QDate(2026, 10, 12));
    EXPECT_EQ(desk->viewed.TrancheIdent, 1);
    EXPECT_EQ(desk->form.Label11.caption, "1");
}

TEST_P(ThePeriods, haveNoExamWeeksWithoutAPeriod)
{
    desk->periods.chooseByIdent(99);
    desk->form.OpExam().select();
    EXPECT_FALSE(desk->viewed.examWeeks.firstDays[0].isValid());
    EXPECT_EQ(desk->form.Label4[1].caption, "");
    EXPECT_EQ(desk->viewed.TrancheIdent, 0);
    EXPECT_EQ(desk->plan.redraws(), 1);
}

TEST_P(ThePeriods, failWithoutTheirTable)
{
    database().execute("DROP TABLE dat_exam");
    EXPECT_EQ(errorNumberOf([&] { desk->periods.LoadExamWeeks(); }), ErrorNumber::TableMissing);
}

TEST_P(ThePeriods, nameThePeriodThatCannotBeRead)
{
    database().execute("DROP TABLE tranche");
    const runtime::RunTimeError error = errorOf([&] { desk->form.CbTranche.setListIndex(0); });
    EXPECT_EQ(error.number(), ErrorNumber::TableMissing);
    EXPECT_EQ(error.activity(), "Lecture de la période « S1 »");
}

TEST_P(ThePeriods, leaveADateThatIsNullEmpty)
{
    database().execute("UPDATE tranche SET DateFin=NULL WHERE ident=1");
    desk->form.CbTranche.setListIndex(0);
    EXPECT_EQ(desk->form.Label4[3].caption, "");
    EXPECT_EQ(desk->viewed.TrancheIdent, 1);
    EXPECT_EQ(errorNumberOf([&] { desk->periods.LoadExamWeeks(); }), ErrorNumber::InvalidUseOfNull);
}

TEMPORA_ON_BOTH_DATABASES(ThePeriods);

// Only SQLite lets a date column hold anything else.
TEST(PeriodsOnSqlite, refuseADateThatIsNone)
{
    TestDatabase database(DatabaseKind::Sqlite);
    Timetable timetable(database, {"tranche"});
    timetable.row("tranche", {{"ident", 1}, {"Tranche", "S1"}, {"DateDebut", "bientôt"}}).load();
    ContextDesk desk(database);
    desk.form.CbTranche.design({"S1"}, -1);
    const runtime::RunTimeError error = errorOf([&] { desk.form.CbTranche.setListIndex(0); });
    EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.activity(), "Lecture des dates de la période « S1 »");
}
