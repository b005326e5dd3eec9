#include "absences/AbsenceRecords.h"
#include "absences/PageAbsences.h"
#include "db/Database.h"
#include "judge/JudgedCells.h"
#include "judge/RandomTimetable.h"
#include "lookup/OccupancyLookup.h"
#include "lookup/PageRowSource.h"
#include "lookup/PlainRowSource.h"
#include "plan/ClassList.h"
#include "plan/PlanState.h"
#include "runtime/RunTimeError.h"

using namespace test;

namespace lookup
{

/// How a cell reads in a failed comparison.
static void PrintTo(const RoomCell& cell, std::ostream* stream)
{
    const QStringList fields = {cell.CellText,
                                QString::number(cell.CellRowCount),
                                cell.CellStart,
                                cell.CellDuration,
                                cell.CellTeacher,
                                cell.CellSubject,
                                cell.CellTypeA,
                                cell.CellTypeB,
                                cell.CellClasses,
                                cell.CellClassList,
                                QString::number(cell.CellStudents),
                                QString::number(cell.CellCapacity)};
    *stream << fields.join(u'|').toStdString();
}

} // namespace lookup

namespace
{

/// One way of answering the plan's questions, with the connection that it uses.
struct Way {
    Way(const TestDatabase& database, bool ahead)
        : db(database.usesMySql()), plainRows(db), pageRows(db, plainRows), plainAbsences(db),
          pageAbsences(db, plainAbsences),
          rows(ahead ? static_cast<lookup::RowSource&>(pageRows) : plainRows),
          absences(ahead ? static_cast<plan::AbsenceSource&>(pageAbsences) : plainAbsences)
    {
        db.open(database.connectString());
    }

    db::Database db;
    lookup::PlainRowSource plainRows;
    lookup::PageRowSource pageRows;
    absences::AbsenceRecords plainAbsences;
    absences::PageAbsences pageAbsences;
    lookup::RowSource& rows;
    plan::AbsenceSource& absences;
};

/// What a refresh would keep of one cell.
struct Answer {
    lookup::RoomCell cell;
    bool makeUp = false;
    bool classAbsent = false;
    bool studentAbsent = false;

    friend bool operator==(const Answer&, const Answer&) = default;
};

class PageSources : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        for (std::size_t index = 0; index < m_state.SeanceTypeShortNames.size(); ++index) {
            m_state.SeanceTypeShortNames[index] =
                index % 5 == 4 ? QString() : QStringLiteral("T%1").arg(index);
        }
    }

    /// Sets the window's options at random.
    void choose(RandomTimetable& random)
    {
        (random.chance(75) ? m_state.form.OpEns() : m_state.form.OpExam()).select();
        const int week = random.pick(3);
        (week == 0   ? m_state.form.OptFixe()
         : week == 1 ? m_state.form.OptA()
                     : m_state.form.OptB())
            .select();
        m_state.form.XOpCl.setChecked(random.chance(75));
        m_state.form.XOpEns.setChecked(random.chance(75));
        m_state.form.XpMat.setChecked(random.chance(75));
        m_state.form.Chk_Type.setChecked(random.chance(40));
        m_state.form.xOpExam.setChecked(random.chance(40));
        m_state.form.Check2.setChecked(random.chance(50));
        m_state.form.Check1.setChecked(random.chance(20));
        m_state.form.Cb_Mat.design({QStringLiteral("Algèbre"), QStringLiteral("Chimie")},
                                   random.pick(2));
        m_state.form.DTPicker1.setValue(RandomTimetable::date());
        m_state.form.CbJour.setListIndex(random.chance(90) ? 0 : 1);
        m_state.layout.CellSeparator = random.chance(50) ? QStringLiteral("\r\n") : QString();
    }

    [[nodiscard]] Answer ask(Way& way, const QString& room, const QString& key,
                             const QString& tranche)
    {
        Answer answer;
        lookup::OccupancyLookup lookup(way.rows, plan::viewOf(m_state));
        answer.cell = lookup.RoomOccupancy(room, key, tranche, false).value();
        if (answer.cell.CellText.isEmpty() && m_state.form.Check2.isChecked()) {
            answer.cell = lookup.RoomOccupancy(room, key, tranche, true).value_or(answer.cell);
            answer.makeUp = true;
        }
        plan::Marqueur marker;
        marker.Debut = answer.cell.CellStart;
        marker.Jour = m_state.form.DTPicker1.value();
        const QString name = plan::firstClass(answer.cell.CellClassList);
        runtime::skipOnError(
            [&] { answer.classAbsent = way.absences.Existe_AbsClasse(marker, name); });
        runtime::skipOnError(
            [&] { answer.studentAbsent = way.absences.Existe_AbsEtud(marker, name, name); });
        return answer;
    }

    /// Compares one page, as a refresh asks for it. Returns the number of cells.
    int comparePage(Way& plain, Way& ahead, const RandomTimetable& random, const QString& tranche)
    {
        QStringList keys;
        for (int slot = 1; slot <= 10; ++slot) {
            keys << m_state.form.CbJour.text() + QString::number(slot);
        }
        const lookup::PageFacts facts = lookup::OccupancyLookup(ahead.rows, plan::viewOf(m_state))
                                            .prepare(random.rooms(), keys, tranche);
        plan::AbsenceQuestions questions{m_state.form.DTPicker1.value(), {}, facts.starts};
        for (const QString& name : facts.classNames) {
            questions.classNames << plan::firstClass(name);
        }
        ahead.absences.prepare(questions);
        int cells = 0;
        for (const QString& room : random.rooms()) {
            for (const QString& key : keys) {
                const Answer expected = ask(plain, room, key, tranche);
                const Answer answer = ask(ahead, room, key, tranche);
                EXPECT_EQ(expected.cell, answer.cell)
                    << "room " << room.toStdString() << ", slot " << key.toStdString();
                EXPECT_EQ(expected, answer)
                    << "room " << room.toStdString() << ", slot " << key.toStdString();
                occupied += answer.cell.CellClassList.isEmpty() ? 0 : 1;
                absent += answer.classAbsent || answer.studentAbsent ? 1 : 0;
                ++cells;
            }
        }
        return cells;
    }

    /// Compares some pages of the test's own database, with options at random.
    void comparePages(RandomTimetable& random, int pages)
    {
        Way plain(database(), false);
        Way ahead(database(), true);
        for (int page = 0; page < pages && !HasFailure(); ++page) {
            choose(random);
            comparePage(plain, ahead, random, QString::number(1 + page % 2));
        }
    }

    plan::PlanState m_state;
    int occupied = 0;
    int absent = 0;
};

} // namespace

TEST_P(PageSources, answerEveryCellAsThePlainOnesDo)
{
    const int wanted = judgedCells();
    int cells = 0;
    for (unsigned seed = 1; cells < wanted && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        TestDatabase tables(GetParam());
        RandomTimetable random(tables, seed);
        Way plain(tables, false);
        Way ahead(tables, true);
        for (int page = 0; page < 12 && !HasFailure(); ++page) {
            choose(random);
            cells += comparePage(plain, ahead, random, QString::number(1 + random.pick(2)));
        }
    }
    // The comparison is worth something only if there is something to compare.
    EXPECT_GT(occupied, cells / 20);
    EXPECT_GT(absent, 0);
}

TEST_P(PageSources, leaveViewsTheirOwnOrder)
{
    RandomTimetable random(database(), 7);
    database().execute({"alter table emplois rename to courses",
                        "create view emplois as select * from courses order by Classe",
                        "alter table ratrap rename to additions",
                        "create view ratrap as select * from additions order by Classe desc",
                        "alter table classe rename to groupes",
                        "create view classe as select * from groupes order by Capacite desc"});
    comparePages(random, 8);
    EXPECT_GT(occupied, 50);
}

TEST_P(PageSources, keepTheOrderOfAnIndexOfOneRoom)
{
    if (database().usesMySql()) {
        GTEST_SKIP() << "MariaDB has no such indexes";
    }
    RandomTimetable random(database(), 8);
    const QString indexed = random.rooms()[4]; // behind another one with as many exams
    QStringList statements{
        "create index q on examen (Seance)",
        QStringLiteral("create index p on examen (Tranche, Semaine, Seance, Classe desc) where "
                       "Salle = '%1'")
            .arg(indexed)};
    for (const QString& room : {random.rooms()[0], indexed}) {
        for (int exam = 0; exam < 9; ++exam) {
            statements << QStringLiteral(
                              "insert into examen (Salle, Seance, Tranche, Semaine, "
                              "newnature, TypeS1, Classe, Durée) values ('%1', 'Lundi1', "
                              "1, 1, '00', 1, 'C%2', '60')")
                              .arg(room)
                              .arg(exam);
        }
    }
    database().execute(statements);
    Way plain(database(), false);
    Way ahead(database(), true);
    choose(random);
    m_state.form.OpExam().select();
    m_state.form.CbJour.setListIndex(0);
    m_state.form.Check1.setChecked(false);
    m_state.period.examWeek = 1;
    comparePage(plain, ahead, random, "1");
    EXPECT_GT(occupied, 1);
}

TEST_P(PageSources, countStudentsOfAClassThatIsOneOfAList)
{
    if (!database().usesMySql()) {
        GTEST_SKIP() << "SQLite has no such columns";
    }
    RandomTimetable random(database(), 7);
    database().execute({"drop table etudiant",
                        "create table etudiant (Nom varchar(20), classe enum('', 'L1', 'L2'))",
                        "insert into etudiant values ('a', 'L1'), ('b', 'L2'), ('c', ''), "
                        "('d', 'L1'), ('e', '')",
                        // a value that is not of the list is kept as another empty text
                        "insert ignore into etudiant values ('f', 'L9'), ('g', 'L9')",
                        "update emplois set Classe = case when Tranche = 1 then 'L1' else '' end"});
    comparePages(random, 6);
    EXPECT_GT(occupied, 30);
}

TEST_P(PageSources, needAtMostTenStatementsAPage)
{
    m_state.form.Check2.setChecked(true);
    m_state.form.DTPicker1.setValue(RandomTimetable::date());
    QStringList keys;
    for (int slot = 1; slot <= 10; ++slot) {
        keys << QStringLiteral("Lundi%1").arg(slot);
    }
    for (unsigned seed = 1; seed <= 12; ++seed) {
        TestDatabase tables(GetParam());
        RandomTimetable random(tables, seed);
        Way ahead(tables, true);
        const long long before = ahead.db.Db().statementCount();
        const lookup::PageFacts facts = lookup::OccupancyLookup(ahead.rows, plan::viewOf(m_state))
                                            .prepare(random.rooms(), keys, QStringLiteral("1"));
        ahead.absences.prepare({RandomTimetable::date(), facts.classNames, facts.starts});
        EXPECT_LE(ahead.db.Db().statementCount() - before, 10) << seed;
        EXPECT_FALSE(facts.classNames.isEmpty()) << seed;
    }
}

TEMPORA_ON_BOTH_DATABASES(PageSources);
