#include "lookup/PageRowSource.h"

#include "lookup/ClassStatements.h"
#include "lookup/PlainRowSource.h"
#include "support/RuntimeMatchers.h"
#include "support/TinyFaculty.h"

#include <optional>
#include <random>

using namespace lookup;
using namespace test;
using Table = RoomQuestion::Table;

namespace
{

/// The tiny faculty's Monday in period 1, asked a page ahead.
class TheRowsOfAPage : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        createTinyFaculty(database());
        m_database.emplace(database().usesMySql());
        m_database->open(database().connectString());
        plain.emplace(*m_database);
        page.emplace(*m_database, *plain);
        questions.rooms = QStringList({"A2", "B1", "B2", "C1"});
        questions.seanceKeys = QStringList({"Lundi1", "Lundi2", "Lundi3", "Lundi4"});
        questions.tranche = "1";
    }

    [[nodiscard]] long long statementsOf(const std::function<void()>& action)
    {
        const long long before = m_database->Db().statementCount();
        action();
        return m_database->Db().statementCount() - before;
    }
    [[nodiscard]] db::SqlDialect dialect() const { return m_database->dialect(); }
    [[nodiscard]] RoomQuestion question(const QString& room, const QString& key) const
    {
        return questions.question(questions.table, room, key);
    }
    /// The classes of all rows, in their order.
    static QStringList classesOf(const db::Recordset& rows)
    {
        QStringList classes;
        for (const db::Row& row : rows.rows()) {
            classes << row.field("Classe").toText();
        }
        return classes;
    }
    static QStringList sorted(QStringList texts)
    {
        texts.sort();
        return texts;
    }

    std::optional<PlainRowSource> plain;
    std::optional<PageRowSource> page;
    PageQuestions questions;

private:
    std::optional<db::Database> m_database;
};

TEMPORA_ON_BOTH_DATABASES(TheRowsOfAPage);

} // namespace

TEST_P(TheRowsOfAPage, areThoseOfTheDatabaseWithoutAskingItAgain)
{
    static_cast<void>(page->prepare(questions));
    for (const QString& room : questions.rooms) {
        for (const QString& key : questions.seanceKeys) {
            QStringList classes;
            EXPECT_EQ(statementsOf(
                          [&] { classes = classesOf(page->timetableRows(question(room, key))); }),
                      0);
            EXPECT_EQ(classes, classesOf(plain->timetableRows(question(room, key))))
                << room.toStdString() << ' ' << key.toStdString();
        }
    }
    EXPECT_EQ(classesOf(page->timetableRows(question("B1", "Lundi3"))), QStringList({"G2", "G3"}));
    EXPECT_TRUE(page->timetableRows(question("A2", "Lundi2")).isEmpty());
}

TEST_P(TheRowsOfAPage, tellTheClassesAndTheStartsOfTheBoxes)
{
    const PageFacts facts = page->prepare(questions);
    EXPECT_EQ(sorted(facts.classNames), QStringList({"G1", "G2", "G3"}));
    EXPECT_EQ(sorted(facts.starts), QStringList({"10h15", "14h00", "8h30"}));
}

TEST_P(TheRowsOfAPage, tellTheClassThatABoxWithoutOccupantsIsAbout)
{
    questions.rooms = QStringList("B1"); // G2 and G3
    EXPECT_EQ(page->prepare(questions).classNames, QStringList("G2"));
    questions.listsOccupants = false;
    EXPECT_EQ(page->prepare(questions).classNames, QStringList("G3"));
}

TEST_P(TheRowsOfAPage, bringTheSizesOfTheirClassesAlong)
{
    static_cast<void>(page->prepare(questions));
    const auto capacityOf = [this](const QString& name) {
        return page->classRows(name).first().field("Capacite").toText();
    };
    EXPECT_EQ(statementsOf([&] {
                  EXPECT_EQ(page->studentRows("G1"), 3);
                  EXPECT_EQ(page->studentRows("G2"), 0);
                  EXPECT_EQ(page->studentRows("G3"), 2);
                  EXPECT_EQ(capacityOf("G1"), "25");
                  EXPECT_EQ(capacityOf("G2"), "45");
                  EXPECT_EQ(capacityOf("G3"), "10");
              }),
              0);
}

TEST_P(TheRowsOfAPage, knowAnotherSpellingAsTheDatabaseDoes)
{
    database().execute("UPDATE emplois SET Classe = 'g1' WHERE Classe = 'G1'");
    static_cast<void>(page->prepare(questions));
    int students = -1;
    bool described = false;
    EXPECT_EQ(statementsOf([&] {
                  students = page->studentRows("g1");
                  described = !page->classRows("g1").isEmpty();
              }),
              0);
    EXPECT_EQ(students, 3); // both databases take them for the same
    EXPECT_TRUE(described);
}

TEST_P(TheRowsOfAPage, areAskedForOneByOneWhereTheyWereNotPrepared)
{
    static_cast<void>(page->prepare(questions));
    RoomQuestion otherPeriod = question("A2", "Lundi1");
    otherPeriod.tranche = "2";
    EXPECT_EQ(statementsOf([&] { EXPECT_TRUE(page->timetableRows(otherPeriod).isEmpty()); }), 1);
    EXPECT_EQ(statementsOf([&] {
                  EXPECT_EQ(classesOf(page->timetableRows(question("A2", "Mardi2"))),
                            QStringList("G3"));
              }),
              1);
    EXPECT_EQ(statementsOf([&] { EXPECT_EQ(page->studentRows("G9"), 0); }), 1);
    EXPECT_EQ(statementsOf([&] { EXPECT_TRUE(page->classRows("G9").isEmpty()); }), 1);
}

TEST_P(TheRowsOfAPage, areForgottenWithTheNextPage)
{
    static_cast<void>(page->prepare(questions));
    questions.seanceKeys = QStringList("Mardi2");
    static_cast<void>(page->prepare(questions));
    EXPECT_EQ(
        statementsOf([&] { static_cast<void>(page->timetableRows(question("A2", "Lundi1"))); }), 1);
    EXPECT_EQ(statementsOf([&] { EXPECT_EQ(page->studentRows("G1"), 3); }), 1);
    EXPECT_EQ(statementsOf([&] { EXPECT_EQ(page->studentRows("G3"), 2); }), 0);
}

TEST_P(TheRowsOfAPage, holdTheMakeUpsOfItsDate)
{
    questions.makeUps = true;
    questions.date = QDate(2025, 3, 17);
    static_cast<void>(page->prepare(questions));
    const RoomQuestion makeUp = questions.question(Table::ratrap, "A2", "Lundi2");
    EXPECT_EQ(
        statementsOf([&] { EXPECT_EQ(classesOf(page->timetableRows(makeUp)), QStringList("G1")); }),
        0);
    RoomQuestion nextWeek = makeUp;
    nextWeek.date = QDate(2025, 3, 24);
    EXPECT_EQ(statementsOf([&] { EXPECT_TRUE(page->timetableRows(nextWeek).isEmpty()); }), 1);
}

TEST_P(TheRowsOfAPage, holdTheExamsOfItsWeek)
{
    questions.table = Table::examen;
    questions.examWeek = "1";
    static_cast<void>(page->prepare(questions));
    EXPECT_EQ(statementsOf([&] {
                  EXPECT_EQ(classesOf(page->timetableRows(question("A2", "Lundi1"))),
                            QStringList("G1"));
                  EXPECT_TRUE(page->timetableRows(question("B1", "Lundi3")).isEmpty());
              }),
              0);
}

TEST_P(TheRowsOfAPage, areFetchedAlsoWhereTheSizesCannotBe)
{
    database().execute(QStringList{"DROP TABLE etudiant", "DROP TABLE classe"});
    static_cast<void>(page->prepare(questions));
    EXPECT_EQ(statementsOf([&] {
                  EXPECT_EQ(classesOf(page->timetableRows(question("A2", "Lundi1"))),
                            QStringList("G1"));
              }),
              0);
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(page->studentRows("G1")); }),
              errorNumberOf([&] { static_cast<void>(plain->studentRows("G1")); }));
}

TEST_P(TheRowsOfAPage, takeNoStatementWithoutRoomsOrSlots)
{
    PageQuestions none = questions;
    none.rooms.clear();
    EXPECT_EQ(statementsOf([&] { static_cast<void>(page->prepare(none)); }), 0);
    none = questions;
    none.seanceKeys.clear();
    EXPECT_EQ(statementsOf([&] { static_cast<void>(page->prepare(none)); }), 0);
}

TEST_P(TheRowsOfAPage, areFoundForARoomWithoutANameThoughAFurtherColumnIsMissing)
{
    // Only rooms with a name are looked for there.
    database().execute(QStringList{"alter table emplois drop column XSalle",
                                   "update emplois set Salle = '' where Salle = 'B1'"});
    questions.rooms << QString();
    static_cast<void>(page->prepare(questions));
    EXPECT_THROW(static_cast<void>(page->timetableRows(question("A2", "Lundi1"))),
                 runtime::RunTimeError);
    EXPECT_THROW(static_cast<void>(page->timetableRows(question("B2", "Lundi1"))),
                 runtime::RunTimeError);
    EXPECT_EQ(sorted(classesOf(page->timetableRows(question("", "Lundi3")))),
              QStringList({"G2", "G3"}));
}

TEST_P(TheRowsOfAPage, askNothingAboutANameThatNoStatementHolds)
{
    const QStringList names{"Salle d'informatique", "Salle d'or", "Amphi'", "A'1"};
    questions.rooms << names;
    static_cast<void>(page->prepare(questions));
    for (const QString& name : names) {
        EXPECT_EQ(statementsOf([&] {
                      EXPECT_EQ(errorNumberOf([&] {
                                    std::ignore = page->timetableRows(question(name, "Lundi1"));
                                }),
                                runtime::ErrorNumber::StatementRefused);
                      EXPECT_THROW(std::ignore = page->studentRows(name), runtime::RunTimeError);
                      EXPECT_THROW(std::ignore = page->classRows(name), runtime::RunTimeError);
                  }),
                  0)
            << name.toStdString();
    }
}

/// What the page takes for certain the database confirms, for names put together at random.
TEST_P(TheRowsOfAPage, areRefusedWhereThatIsCalledCertain)
{
    const QStringList pieces{"'",   "'",      "''",  "'",    " ",      "d",     "or",
                             "and", "not",    " or", " in ", " like ", "Salle", "L2",
                             "1",   "=",      "+",   "-",    "%",      ",",     " as ",
                             " b",  " null ", "x",   " is ", " div ",  "|"};
    std::mt19937 random(20261123); // always the same names
    std::uniform_int_distribution<qsizetype> any(0, pieces.size() - 1);
    const db::SqlDialect dialect = TheRowsOfAPage::dialect();
    int refused = 0;
    for (int round = 0; round < 3000; ++round) {
        QString name;
        for (int piece = 0; piece < 2 + round % 7; ++piece) {
            name += pieces[any(random)];
        }
        const RoomQuestion asked = question(name, "Lundi1");
        if (db::isCertainlyRefused(asked.sql(dialect), {name, "Lundi1", asked.tranche})) {
            ++refused;
            EXPECT_THROW(std::ignore = plain->timetableRows(asked), runtime::RunTimeError)
                << name.toStdString();
        }
        if (db::isCertainlyRefused(studentsSql(name, dialect), {name})) {
            ++refused;
            EXPECT_THROW(std::ignore = plain->studentRows(name), runtime::RunTimeError)
                << name.toStdString();
        }
    }
    EXPECT_GT(refused, 1000);
}
