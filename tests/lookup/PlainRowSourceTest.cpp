#include "lookup/PlainRowSource.h"

#include "lookup/ClassSizes.h"
#include "lookup/OccupancyLookup.h"
#include "support/RuntimeMatchers.h"
#include "support/Timetable.h"

#include <optional>

using namespace lookup;
using namespace test;
using runtime::ErrorNumber;

namespace
{

/// Lookups that the database answers: room A1 in slot Lundi1 of period 2, class and subject shown.
class RowsOfTheDatabase : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        view.options.showClass = view.options.showSubject = view.options.everyWeek = true;
        view.day.date = QDate(2026, 10, 14);
        m_timetable.emplace(database(),
                            QStringList{"emplois", "ratrap", "examen", "etudiant", "classe"});
    }

    /// A meeting of period 2 in slot Lundi1, whose subject is its class's name in small letters.
    void meeting(const QString& table, const QString& className, Fields fields)
    {
        fields.insert(fields.end(), {{"Seance", "Lundi1"},
                                     {"Tranche", 2},
                                     {"newnature", "00"},
                                     {"Classe", className},
                                     {"matière", className.toLower()}});
        m_timetable->row(table, fields);
    }
    void load()
    {
        m_timetable->load();
        m_database.emplace(database().usesMySql());
        m_database->open(database().connectString());
        source.emplace(*m_database);
    }
    QString lookUp(const QString& room = "A1", bool makeUp = false)
    {
        OccupancyLookup asked(*source, view);
        cell = asked.RoomOccupancy(room, "Lundi1", "2", makeUp).value_or(RoomCell());
        return cell.CellText;
    }
    Timetable& timetable() { return *m_timetable; }

    View view;
    std::optional<PlainRowSource> source;
    RoomCell cell; ///< what the last lookup answered

private:
    std::optional<Timetable> m_timetable;
    std::optional<db::Database> m_database;
};

} // namespace

TEST_P(RowsOfTheDatabase, areFoundInEachOfTheSixRoomColumns)
{
    meeting("emplois", "GC1", {{"Salle", "A1"}});
    meeting("emplois", "GC2", {{"XSalle", "A2"}, {"XMatière", "x"}});
    meeting("emplois", "GC3", {{"YSalle", "A3"}});
    meeting("emplois", "GC4", {{"SalleB", "A4"}, {"Matièreb", "b"}});
    meeting("emplois", "GC5", {{"XSalleB", "A5"}, {"XMatièreB", "xb"}});
    meeting("emplois", "GC6", {{"YSalleB", "A6"}});
    load();
    EXPECT_EQ(lookUp("A1"), "GC1 [gc1]");
    EXPECT_EQ(lookUp("A2"), "GC2 [x]");
    EXPECT_EQ(lookUp("A3"), "");
    EXPECT_EQ(cell.CellClassList, "GC3");
    EXPECT_EQ(lookUp("A4"), "GC4 [b]");
    EXPECT_EQ(lookUp("A5"), "GC5 [xb]");
    EXPECT_EQ(lookUp("A6"), "");
    EXPECT_EQ(cell.CellClassList, "GC6");
}

TEST_P(RowsOfTheDatabase, belongToTheSlotAndThePeriod)
{
    timetable().row("emplois", {{"Salle", "A1"}, {"Seance", "Lundi2"}, {"Tranche", 2}});
    timetable().row("emplois", {{"Salle", "A1"}, {"Seance", "Lundi1"}, {"Tranche", 1}});
    load();
    EXPECT_EQ(lookUp(), "");
    EXPECT_EQ(cell.CellClassList, "");
}

TEST_P(RowsOfTheDatabase, decideTheTextByTheFirstOfThem)
{
    meeting("emplois", "GC1", {{"Salle", "A1"}, {"Debut", "8h15"}, {"Durée", "60"}});
    meeting("emplois", "GC2", {{"Salle", "A1"}, {"Debut", "9h00"}});
    load();
    EXPECT_EQ(lookUp(), "GC1 [gc1]");
    EXPECT_EQ(cell.CellRowCount, 2);
    EXPECT_EQ(cell.CellStart, "8h15");
    EXPECT_EQ(cell.CellDuration, "60");
    EXPECT_EQ(cell.CellClassList, "GC1\tGC2");
}

TEST_P(RowsOfTheDatabase, areMatchedByTheDatabasesRulesAndShownByTheProgramsOwn)
{
    meeting("emplois", "GC1", {{"Salle", "a1"}});
    load();
    EXPECT_EQ(lookUp(), ""); // found whatever the case, but not this room to the letter
    EXPECT_EQ(cell.CellClassList, "GC1");
}

TEST_P(RowsOfTheDatabase, areReadWithTheirNumbersAndFlags)
{
    meeting("emplois", "GC1", {{"Salle", "A1"}, {"TypeS1", 3}, {"TypeS3B", 5}, {"Commune", true}});
    load();
    lookUp();
    EXPECT_EQ(cell.CellTypeA, "3");
    EXPECT_EQ(cell.CellTypeB, "5");
    EXPECT_TRUE(cell.CellCommon);
}

TEST_P(RowsOfTheDatabase, areTheMakeUpsOfThePickedDate)
{
    meeting("ratrap", "GC1", {{"Salle", "A1"}, {"DateX", QDate(2026, 10, 14)}});
    meeting("ratrap", "GC2", {{"Salle", "A1"}, {"DateX", QDate(2026, 10, 15)}});
    load();
    EXPECT_EQ(lookUp("A1", true), "GC1 [gc1]");
    EXPECT_EQ(cell.CellRowCount, 1);
    view.day.date = QDate(2026, 10, 15);
    EXPECT_EQ(lookUp("A1", true), "GC2 [gc2]");
    view.day.date = QDate(2026, 10, 16);
    EXPECT_EQ(lookUp("A1", true), "");
}

TEST_P(RowsOfTheDatabase, areTheExamsOfTheWeekInTheirRoomAlone)
{
    meeting("examen", "GC1", {{"Salle", "A1"}, {"Semaine", 1}, {"Resp1", "Noir"}});
    meeting("examen", "GC2", {{"Salle", "A1"}, {"Semaine", 2}});
    load();
    view.day.exam = view.options.exam = true;
    EXPECT_EQ(lookUp(), "GC1 [gc1]");
    EXPECT_EQ(cell.CellTeacher, "Noir");
    view.day.examWeek = 2;
    EXPECT_EQ(lookUp(), "GC2 [gc2]");
    EXPECT_EQ(lookUp("A1", true), "");
}

TEST_P(RowsOfTheDatabase, areAskedForAnEmptyRoomInTheShortForm)
{
    meeting("emplois", "GC1", {{"Salle", ""}, {"XSalle", ""}});
    meeting("emplois", "GC2", {{"Salle", "A1"}, {"XSalle", ""}});
    load();
    EXPECT_EQ(lookUp(""), "GC1 [gc1] []"); // both of its room columns are the empty name
    EXPECT_EQ(cell.CellRowCount, 1);
}

TEST_P(RowsOfTheDatabase, areNoneForARoomWithAnApostrophe)
{
    meeting("emplois", "GC1", {{"Salle", "L'aile"}});
    load();
    EXPECT_EQ(lookUp("L'aile"), ""); // the statement is refused, the lookup goes on
    RoomQuestion question;
    question.room = "L'aile";
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(source->timetableRows(question)); }),
              ErrorNumber::StatementRefused);
}

TEST_P(RowsOfTheDatabase, areNoneWithoutTheTableOrARoomColumn)
{
    meeting("emplois", "GC1", {{"Salle", "A1"}});
    timetable().statement("DROP TABLE ratrap");
    timetable().statement("ALTER TABLE emplois RENAME COLUMN YSalleB TO Autre");
    load();
    EXPECT_EQ(lookUp(), "");
    EXPECT_EQ(lookUp("A1", true), "");
}

TEST_P(RowsOfTheDatabase, doWithoutAColumnThatIsOnlyShown)
{
    meeting("emplois", "GC1", {{"Salle", "A1"}, {"Durée", "45"}});
    timetable().statement("ALTER TABLE emplois RENAME COLUMN `Durée` TO Temps");
    timetable().statement("ALTER TABLE emplois RENAME COLUMN `matière` TO Sujet");
    load();
    EXPECT_EQ(lookUp(), "GC1");
    EXPECT_EQ(cell.CellDuration, "90");
}

TEST_P(RowsOfTheDatabase, countTheStudentsAndNameTheCapacityOfAClass)
{
    meeting("emplois", "GC1", {{"Salle", "A1"}});
    for (const char* student : {"Aït", "Bo", "Cho"}) {
        timetable().row("etudiant", {{"Nom", student}, {"classe", "GC1"}});
    }
    timetable().row("etudiant", {{"Nom", "Do"}, {"classe", "GC2"}});
    timetable().row("classe", {{"Nom", "GC1"}, {"Capacite", 40}});
    load();
    lookUp();
    EXPECT_EQ(cell.CellStudents, 3);
    EXPECT_EQ(cell.CellCapacity, 40);
    EXPECT_EQ(StudentCount(*source, "GC9"), 0);
    EXPECT_EQ(ClassCapacity(*source, "GC9"), 0);
}

TEST_P(RowsOfTheDatabase, doWithoutTheTablesOfTheClasses)
{
    meeting("emplois", "GC1", {{"Salle", "A1"}});
    timetable().statement("DROP TABLE etudiant").statement("DROP TABLE classe");
    load();
    EXPECT_EQ(lookUp(), "GC1 [gc1]");
    EXPECT_EQ(cell.CellStudents, 0);
    EXPECT_EQ(ClassCapacity(*source, "GC1"), 0);
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(StudentCount(*source, "GC1")); }),
              ErrorNumber::TableMissing);
}

TEMPORA_ON_BOTH_DATABASES(RowsOfTheDatabase);
