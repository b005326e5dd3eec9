#include "timetable/TimetableReader.h"

#include "support/RuntimeMatchers.h"
#include "support/Timetable.h"
#include "support/TinyFaculty.h"
#include "timetable/Draft.h"

#include <gtest/gtest.h>
#include <optional>

using namespace test;
using namespace timetable;
using runtime::ErrorNumber;

namespace
{

class ReadingATimetable : public OnBothDatabases
{
protected:
    /// Period 1 or another; counts the statements.
    [[nodiscard]] timetable::Timetable read(int period = 1)
    {
        db::Connection connection(database().connectString());
        timetable::Timetable timetable = readTimetable(connection, period);
        statements = connection.statementCount();
        return timetable;
    }

    /// The tables of the demo faculty, to be filled.
    [[nodiscard]] test::Timetable& tables()
    {
        if (!m_tables) {
            m_tables.emplace(database());
        }
        return *m_tables;
    }
    void addRoom(const QString& name) { tables().row("salle", {{"Nom", name}}); }
    /// The text as a statement of this database must spell it.
    [[nodiscard]] QString spelt(QString text) const
    {
        return GetParam() == DatabaseKind::MariaDb ? text.replace("\\", "\\\\") : text;
    }
    void addCourse(Fields fields)
    {
        fields.emplace_back("Tranche", 1);
        tables().row("emplois", fields);
    }

    /// The holders of a room on Monday, as "class start+minutes".
    [[nodiscard]] static QStringList onMonday(const timetable::Timetable& timetable,
                                              const QString& room)
    {
        const Occupancy occupancy(std::make_shared<const timetable::Timetable>(timetable));
        QStringList words;
        for (const HoldingId id :
             occupancy.holders(roomNamed(timetable, room), When::weekday(kMonday))) {
            const Holder holder = occupancy.describe(occupancy.holding(id));
            words << QStringLiteral("%1 %2+%3")
                         .arg(holder.className)
                         .arg(holder.time->start.value)
                         .arg(holder.time->length.value);
        }
        return words;
    }

    long long statements = 0;

private:
    std::optional<test::Timetable> m_tables;
};

} // namespace

TEST_P(ReadingATimetable, findsAllThatTheTinyFacultyHas)
{
    createTinyFaculty(database());
    const timetable::Timetable timetable = read();
    EXPECT_EQ(timetable.period(), (Period{1, "Printemps", QDate(2025, 2, 3), QDate(2025, 6, 6)}));
    EXPECT_EQ(timetable.examWeeks(),
              (ExamWeeks{{QDate(2025, 6, 9), QDate(2025, 6, 16), QDate(2025, 3, 24)}}));
    ASSERT_EQ(timetable.rooms().size(), 5U);
    EXPECT_EQ(timetable.rooms()[1], (Room{"A2", 1, "MATH", 40}));
    EXPECT_EQ(timetable.rooms()[3], (Room{"B2", 2, std::nullopt, 20}));
    EXPECT_TRUE(timetable.unknownRooms().empty());
    ASSERT_EQ(timetable.slotsOf(kMonday).size(), 4U);
    EXPECT_EQ(timetable.slotsOf(kMonday)[2],
              (DaySlot{3, 0, "14h00", "14h45", MinuteOfDay{840}, MinuteOfDay{885}}));
    EXPECT_TRUE(timetable.unread().empty());
    const ClassId g1 = timetable.classes().find(u"G1");
    EXPECT_EQ(timetable.sizeOf(g1), (ClassSize{g1, 3, 25}));
    EXPECT_EQ(onMonday(timetable, "A2"), QStringList{"G1 510+90"});
    EXPECT_EQ(onMonday(timetable, "B1"), (QStringList{"G2 840+180", "G3 840+180"}));
    EXPECT_EQ(onMonday(timetable, "A1"), QStringList());
    EXPECT_EQ(statements, 10);
}

TEST_P(ReadingATimetable, findsMakeUpsAndExamsOnTheirDates)
{
    createTinyFaculty(database());
    const Occupancy occupancy(std::make_shared<const timetable::Timetable>(read()));
    const RoomId a2 = roomNamed(occupancy.timetable(), "A2");
    const auto makeUps = occupancy.holders(a2, When::date({2025, 3, 17}));
    ASSERT_EQ(makeUps.size(), 2U); // behind the Monday's course
    const Holder makeUp = occupancy.describe(occupancy.holding(makeUps[1]));
    EXPECT_EQ(makeUp.kind, MeetingKind::MakeUp);
    EXPECT_EQ(makeUp.subject, QStringLiteral("Algèbre"));
    const auto exams = occupancy.holders(a2, When::date({2025, 6, 9}));
    ASSERT_EQ(exams.size(), 1U); // behind the last day of the period
    const Holder exam = occupancy.describe(occupancy.holding(exams[0]));
    EXPECT_EQ(exam.kind, MeetingKind::Exam);
    EXPECT_EQ(exam.teachers, QStringList{"Dupont"});
    EXPECT_EQ(exam.time->length, Minutes{120});
}

TEST_P(ReadingATimetable, reckonsTheExamWeeksOfAPeriodThatHasNone)
{
    createTinyFaculty(database());
    const timetable::Timetable timetable = read(2);
    // Monday, 16 September 2024 to Friday, 31 January 2025.
    EXPECT_EQ(timetable.examWeeks(),
              (ExamWeeks{{QDate(2025, 2, 3), QDate(2025, 2, 10), QDate(2024, 10, 21)}}));
    EXPECT_TRUE(timetable.meetings().empty());
}

TEST_P(ReadingATimetable, hasNoPeriodOfAnUnknownNumber)
{
    createTinyFaculty(database());
    const timetable::Timetable timetable = read(9);
    EXPECT_EQ(timetable.period(), std::nullopt);
    EXPECT_EQ(timetable.examWeeks(), ExamWeeks());
    EXPECT_EQ(timetable.rooms().size(), 5U);
}

TEST_P(ReadingATimetable, leavesTheEqualityOfNamesToTheDatabase)
{
    for (const QString name : {"A101", "B\\2", "E1", "O'Brien", "a101"}) {
        addRoom(spelt(name));
    }
    addCourse({{"Seance", "lundi1"}, {"Debut", "8h"}, {"Salle", "A101"}, {"Classe", "c1"}});
    addCourse({{"Seance", "LUNDI1"}, {"Debut", "9h"}, {"XSalle", "o'brien"}, {"Classe", "c2"}});
    addCourse(
        {{"Seance", "Lundi1"}, {"Debut", "10h"}, {"SalleB", spelt("b\\2")}, {"Classe", "c3"}});
    addCourse({{"Seance", "Lundi1"}, {"Debut", "11h"}, {"YSalle", "é1"}, {"Classe", "c4"}});
    addCourse({{"Seance", "Lundi1"}, {"Debut", "12h"}, {"Salle", "a101 "}, {"Classe", "c5"}});
    tables().load();
    const timetable::Timetable timetable = read();
    const bool ignoresAccentsAndBlanks = database().usesMySql();
    const QStringList a101 =
        ignoresAccentsAndBlanks ? QStringList{"c1 480+90", "c5 720+90"} : QStringList{"c1 480+90"};
    EXPECT_EQ(onMonday(timetable, "A101"), a101);
    EXPECT_EQ(onMonday(timetable, "a101"), a101);
    EXPECT_EQ(onMonday(timetable, "O'Brien"), QStringList{"c2 540+90"});
    EXPECT_EQ(onMonday(timetable, "B\\2"), QStringList{"c3 600+90"});
    EXPECT_EQ(onMonday(timetable, "E1"),
              ignoresAccentsAndBlanks ? QStringList{"c4 660+90"} : QStringList());
    EXPECT_EQ(timetable.unknownRooms().size(), ignoresAccentsAndBlanks ? 0U : 2U);
    EXPECT_EQ(statements, 10);
}

TEST_P(ReadingATimetable, comparesEachRoomColumnInItsOwnWay)
{
    addRoom("A1");
    tables().statement(database().usesMySql()
                           ? "alter table emplois modify XSalle varchar(100) collate utf8mb4_bin"
                           : "alter table emplois rename column XSalle to former");
    if (!database().usesMySql()) {
        tables().statement("alter table emplois add column XSalle text");
    }
    addCourse({{"Seance", "Lundi1"}, {"Debut", "8h"}, {"Salle", "a1"}, {"Classe", "c1"}});
    addCourse({{"Seance", "Lundi1"}, {"Debut", "9h"}, {"XSalle", "a1"}, {"Classe", "c2"}});
    tables().load();
    const timetable::Timetable timetable = read();
    EXPECT_EQ(onMonday(timetable, "A1"), QStringList{"c1 480+90"});
    EXPECT_EQ(onMonday(timetable, "a1"), QStringList{"c2 540+90"});
    EXPECT_FALSE(timetable.isListed(roomNamed(timetable, "a1")));
}

TEST_P(ReadingATimetable, countsStudentsAndCapacitiesByTheDatabasesEquality)
{
    addCourse({{"Classe", "L1 D'Arc"}});
    addCourse({{"Classe", "L2"}});
    tables().row("etudiant", {{"Nom", "a"}, {"classe", "l1 d'arc"}});
    tables().row("etudiant", {{"Nom", "b"}, {"classe", "L1 D'ARC"}});
    tables().row("etudiant", {{"Nom", "c"}, {"classe", nullptr}});
    tables().row("classe", {{"Nom", "L1 D'ARC"}, {"Capacite", 35}});
    tables().row("classe", {{"Nom", "L1 D'Arc"}, {"Capacite", 99}});
    tables().row("classe", {{"Nom", "L2"}, {"Capacite", nullptr}});
    tables().load();
    const timetable::Timetable timetable = read();
    EXPECT_EQ(timetable.sizeOf(ClassId(0)), (ClassSize{ClassId(0), 2, 35}));
    EXPECT_EQ(timetable.sizeOf(ClassId(1)), (ClassSize{ClassId(1), 0, 0}));
}

TEST_P(ReadingATimetable, tellsThatTeachersAreOneWhateverTheColumn)
{
    addCourse({{"Enseignant1", "Durand"}, {"XEnseignant1B", "DURAND"}});
    tables().row("examen", {{"Tranche", 1}, {"Enseignant2", "durand"}});
    tables().load();
    const timetable::Timetable timetable = read();
    EXPECT_EQ(timetable.teachers().count(), 3);
    EXPECT_EQ(timetable.teachers().group(TeacherId(2)), TeacherId(0));
    EXPECT_EQ(timetable.teachers().group(TeacherId(1)), TeacherId(0));
}

TEST_P(ReadingATimetable, leavesEmptyWhatAMissingColumnWouldHold)
{
    addRoom("A1");
    addCourse({{"Seance", "Lundi1"}, {"Debut", "8h"}, {"Salle", "A1"}, {"Classe", "c1"}});
    tables().row("ratrap", {{"Tranche", 1}, {"Salle", "A1"}, {"DateX", QDate(2026, 11, 16)}});
    tables().row("examen", {{"Tranche", 1}, {"Salle", "A1"}, {"Semaine", 1}});
    for (const QString sql :
         {"alter table emplois drop column XEnseignant1",
          "alter table emplois drop column `matière`", "alter table ratrap drop column `XMatièreB`",
          "alter table examen drop column Enseignant3", "alter table salle drop column places",
          "alter table salle drop column Zone", "alter table salle drop column `Département`",
          "alter table classe drop column Capacite"}) {
        tables().statement(sql);
    }
    tables().load();
    const timetable::Timetable timetable = read();
    EXPECT_EQ(onMonday(timetable, "A1"), QStringList{"c1 480+90"});
    EXPECT_EQ(timetable.meetings().size(), 3U);
    EXPECT_EQ(timetable.rooms()[0], (Room{"A1", std::nullopt, std::nullopt, 0}));
    EXPECT_TRUE(timetable.unread().empty());
    EXPECT_LE(statements, 12);
}

TEST_P(ReadingATimetable, leavesEmptyWhatIsOfAnotherType)
{
    tables().statement("drop table salle");
    tables().statement("create table salle (Nom integer, Zone varchar(20), places varchar(20), "
                       "`Département` integer)");
    tables().statement("insert into salle values (101, 'nord', 'beaucoup', 7)");
    tables().statement("insert into salle values (102, '2', ' 30 ', null)");
    addCourse({{"Seance", "Lundi1"}, {"Debut", "8h"}, {"Salle", "101"}, {"Classe", "c1"}});
    tables().load();
    const timetable::Timetable timetable = read();
    ASSERT_EQ(timetable.rooms().size(), 2U);
    EXPECT_EQ(timetable.rooms()[0], (Room{"101", std::nullopt, "7", 0}));
    EXPECT_EQ(timetable.rooms()[1], (Room{"102", 2, std::nullopt, 30}));
    EXPECT_EQ(onMonday(timetable, "101"), QStringList{"c1 480+90"});
}

TEST_P(ReadingATimetable, readsMakeUpDatesWhateverTheirTypeIs)
{
    addRoom("A1");
    tables().statement("alter table ratrap drop column DateX");
    tables().statement("alter table ratrap add column DateX varchar(30)");
    for (const QString date : {"2026-11-16", "2026/11/17", "2026-11-18 00:00:00", "un jour"}) {
        tables().row("ratrap", {{"Tranche", 1}, {"Salle", "A1"}, {"DateX", date}});
    }
    tables().load();
    const timetable::Timetable timetable = read();
    ASSERT_EQ(timetable.meetings().size(), 4U);
    EXPECT_EQ(timetable.meetings()[0].date, QDate(2026, 11, 16));
    EXPECT_EQ(timetable.meetings()[1].date, QDate(2026, 11, 17));
    EXPECT_EQ(timetable.meetings()[2].date, QDate(2026, 11, 18));
    EXPECT_FALSE(timetable.meetings()[3].date.isValid());
}

TEST_P(ReadingATimetable, leavesDaysEmptyThatAreNull)
{
    tables().statement("insert into tranche (ident, Tranche) values (1, 'Hiver')");
    tables().statement("insert into dat_exam (Tranche, Semaine2) values (1, '2027-01-11')");
    tables().load();
    const timetable::Timetable timetable = read();
    ASSERT_TRUE(timetable.period().has_value());
    EXPECT_FALSE(timetable.period()->firstDay.isValid());
    EXPECT_EQ(timetable.examWeeks(), (ExamWeeks{{QDate(), QDate(2027, 1, 11), QDate()}}));
}

TEST_P(ReadingATimetable, tellsWhichTablesItCouldNotRead)
{
    createTinyFaculty(database());
    database().execute({"drop table ratrap", "drop table examen", "drop table dat_exam",
                        "drop table etudiant", "drop table classe"});
    const timetable::Timetable timetable = read();
    QStringList unread;
    for (const UnreadTable& table : timetable.unread()) {
        unread << table.table;
        EXPECT_FALSE(table.reason.isEmpty()) << table.table.toStdString();
    }
    EXPECT_EQ(unread, (QStringList{"dat_exam", "ratrap", "examen", "etudiant", "classe"}));
    EXPECT_EQ(timetable.examWeeks(), ExamWeeks()); // not the usual ones: it may have its own
    EXPECT_EQ(timetable.sizeOf(ClassId(0)), (ClassSize{ClassId(0), std::nullopt, std::nullopt}));
    EXPECT_EQ(onMonday(timetable, "A2"), QStringList{"G1 510+90"});
}

TEST_P(ReadingATimetable, takesNoTableForReadThatDoesNotSayWhichRoomsAreHeld)
{
    createTinyFaculty(database());
    database().execute(
        {"alter table ratrap drop column DateX", "alter table examen drop column Salle"});
    const timetable::Timetable timetable = read();
    EXPECT_EQ(timetable.unread(),
              (std::vector<UnreadTable>{{"ratrap", "la colonne « DateX » manque"},
                                        {"examen", "la colonne « Salle » manque"}}));
    EXPECT_EQ(onMonday(timetable, "A2"), QStringList{"G1 510+90"});
    database().execute("alter table emplois drop column SalleB");
    EXPECT_THROW(std::ignore = read(), runtime::RunTimeError);
}

TEST_P(ReadingATimetable, tellsThatStudentsHaveNoClassToBeCountedBy)
{
    createTinyFaculty(database());
    database().execute({"drop table etudiant", "create table etudiant (Nom varchar(20))"});
    const timetable::Timetable timetable = read();
    ASSERT_EQ(timetable.unread().size(), 1U);
    EXPECT_EQ(timetable.unread()[0].table, QStringLiteral("etudiant"));
    EXPECT_EQ(timetable.sizeOf(ClassId(0)).students, std::nullopt);
}

TEST_P(ReadingATimetable, failsWithoutATableThatEverythingDependsOn)
{
    for (const QString table : {"salle", "seances", "tranche", "emplois"}) {
        TestDatabase faculty(GetParam());
        createTinyFaculty(faculty);
        faculty.execute("drop table " + table);
        const runtime::RunTimeError error = errorOf([&] {
            db::Connection connection(faculty.connectString());
            static_cast<void>(readTimetable(connection, 1));
        });
        EXPECT_EQ(error.number(), ErrorNumber::TableMissing) << table.toStdString();
        EXPECT_TRUE(error.activity().contains(table)) << error.activity().toStdString();
    }
}

TEST_P(ReadingATimetable, failsWhenTheConnectionIsGone)
{
    createTinyFaculty(database());
    db::Connection connection(database().connectString());
    connection.close();
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(readTimetable(connection, 1)); }),
              ErrorNumber::DatabaseFailure);
}

TEST_P(ReadingATimetable, readsViewsLikeTables)
{
    createTinyFaculty(database());
    const timetable::Timetable before = read();
    database().execute(
        {"alter table emplois rename to courses", "create view emplois as select * from courses",
         "alter table salle rename to locaux", "create view salle as select * from locaux"});
    const timetable::Timetable after = read();
    EXPECT_EQ(after.meetings(), before.meetings());
    EXPECT_EQ(onMonday(after, "A2"), QStringList{"G1 510+90"});
}

TEST_P(ReadingATimetable, takesTenStatementsHoweverMuchThereIs)
{
    for (int number = 0; number < 300; ++number) {
        addRoom(QStringLiteral("Salle %1").arg(number));
        const QString className = QStringLiteral("c%1").arg(number);
        addCourse({{"Seance", QStringLiteral("Lundi%1").arg(number % 12)},
                   {"Salle", QStringLiteral("SALLE %1").arg(number)},
                   {"Enseignant1", QStringLiteral("D'Or %1").arg(number)},
                   {"matière", spelt(QStringLiteral("Matière\\%1").arg(number))},
                   {"Classe", className}});
        tables().row("classe", {{"Nom", className.toUpper()}, {"Capacite", number}});
        tables().row("etudiant", {{"Nom", "x"}, {"classe", className.toUpper()}});
    }
    tables().load();
    const timetable::Timetable timetable = read();
    EXPECT_EQ(statements, 10);
    EXPECT_EQ(timetable.rooms().size(), 300U);
    EXPECT_TRUE(timetable.unknownRooms().empty());
    EXPECT_EQ(timetable.sizeOf(timetable.classes().find(u"c299")).capacity, 299);
    EXPECT_EQ(timetable.sizeOf(timetable.classes().find(u"c299")).students, 1);
}

TEST_P(ReadingATimetable, takesTwelveStatementsAtMostWhereNothingComesAsItShould)
{
    addRoom("A1");
    for (const QString sql : {"alter table ratrap drop column `XMatièreB`",
                              "alter table examen drop column Enseignant3"}) {
        tables().statement(sql);
    }
    if (database().usesMySql()) { // holds no Greek: names are compared once more, in Unicode
        tables().statement(
            "alter table emplois modify Enseignant1 varchar(100) character set latin1");
    }
    addCourse({{"Seance", "Lundi1"},
               {"Debut", "8h"},
               {"Salle", "A1"},
               {"Enseignant1", "Durand"},
               {"Enseignant2", "Ωmega"},
               {"Classe", "c1"}});
    tables().row("ratrap", {{"Tranche", 1}, {"Salle", "A1"}, {"DateX", QDate(2026, 11, 16)}});
    tables().row("examen", {{"Tranche", 1}, {"Salle", "A1"}, {"Semaine", 1}});
    tables().load();
    const timetable::Timetable timetable = read();
    EXPECT_EQ(statements, database().usesMySql() ? 12 : 11);
    EXPECT_EQ(timetable.meetings().size(), 3U);
    EXPECT_EQ(onMonday(timetable, "A1"), QStringList{"c1 480+90"});
}

TEST_P(ReadingATimetable, triesOneTableAloneWhereCoursesDoNotComePacked)
{
    tables().statement("alter table emplois drop column XEnseignant1");
    addCourse({{"Seance", "Lundi1"}, {"Classe", "c1"}});
    tables().row("ratrap", {{"Tranche", 1}, {"Classe", "c2"}});
    tables().row("examen", {{"Tranche", 1}, {"Classe", "c3"}});
    tables().load();
    EXPECT_EQ(read().meetings().size(), 3U);
    EXPECT_EQ(statements, 11); // the courses twice
}

TEST_P(ReadingATimetable, readsAnEmptyDatabase)
{
    tables().load();
    const timetable::Timetable timetable = read();
    EXPECT_EQ(timetable.roomCount(), 0);
    EXPECT_TRUE(timetable.meetings().empty());
    EXPECT_EQ(timetable.period(), std::nullopt);
    EXPECT_EQ(statements, 9);
}

TEMPORA_ON_BOTH_DATABASES(ReadingATimetable);
