// Every statement that the program sends in Access mode, held to Access's SQL. Access itself cannot
// be run here: the database is an SQLite file behind a driver that calls itself ACCESS and writes
// down what it is sent (AccessDriver.cpp). What its own driver does with a statement, this does not
// show; packaging/windows/access-checklist.md is for somebody who has one.

#include "AccessSql.h"
#include "absences/MarkedPlan.h"
#include "demo/Schema.h"
#include "setup/Findings.h"
#include "shell/Answers.h"
#include "shell/ShellDesk.h"
#include "support/OdbcConfiguration.h"

#include <QFile>

using namespace test;

namespace
{

QStringList namesOfTheSchema()
{
    QStringList names{"Num"};
    for (const demo::Table& table : demo::tables()) {
        names << table.name;
        for (const demo::Column& column : table.columns) {
            names << column.name;
        }
    }
    return names;
}

class WhatAccessIsSent : public testing::Test
{
protected:
    WhatAccessIsSent()
    {
        OdbcConfiguration::instance().addSource(
            m_source, QStringLiteral("Driver=" TEMPORA_ACCESS_DRIVER "\nDatabase=%1\nLog=%2\n")
                          .arg(m_database.file(), m_log));
    }
    ~WhatAccessIsSent() override { QFile::remove(m_log); }
    WhatAccessIsSent(const WhatAccessIsSent&) = delete;
    WhatAccessIsSent& operator=(const WhatAccessIsSent&) = delete;

    [[nodiscard]] TestDatabase& database() { return m_database; }
    [[nodiscard]] QString connectString() const { return QStringLiteral("DSN=") + m_source; }

    /// The program on the tiny faculty, with its data source.
    [[nodiscard]] std::unique_ptr<ShellDesk> desk(bool plain = false)
    {
        if (!m_isFilled) {
            createTinyFaculty(m_database);
            m_isFilled = true;
        }
        auto made = std::make_unique<ShellDesk>(m_database);
        made->setup.set("Base", m_source);
        made->setup.set("SemaineA", "10/03/2025");
        made->plain = plain;
        return made;
    }
    void play(const QStringList& arguments)
    {
        for (const bool plain : {false, true}) {
            static_cast<void>(desk(plain)->play(arguments));
        }
    }
    /// What is written for a question, by the program in Access mode or on the file itself.
    [[nodiscard]] QString answer(const QStringList& arguments, bool byAccess)
    {
        const std::unique_ptr<ShellDesk> asked =
            byAccess ? desk() : std::make_unique<ShellDesk>(m_database);
        asked->setup.set("SemaineA", "2025-03-10");
        asked->load();
        const QString file = asked->setup.path("answer.json");
        QStringList line{"tempora", arguments.front(), file};
        line += arguments.mid(1);
        static_cast<void>(shell::writeAnswer(asked->shell(), shell::CommandLine::parse(line)));
        return fileText(file);
    }

    [[nodiscard]] QStringList sent() const
    {
        return fileText(m_log).split(u'\n', Qt::SkipEmptyParts);
    }
    [[nodiscard]] bool hasSent(const char* piece) const
    {
        return fileText(m_log).contains(QString::fromUtf8(piece));
    }
    void expectWordsOfAccess() const
    {
        const AccessSql access(namesOfTheSchema());
        EXPECT_FALSE(sent().isEmpty());
        for (const QString& statement : sent()) {
            const QStringList faults = access.faultsOf(statement);
            EXPECT_TRUE(faults.isEmpty())
                << statement.toStdString() << "\n  " << faults.join("\n  ").toStdString();
        }
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};
    QString m_source = m_database.baseName() + "_access";
    QString m_log = m_database.file() + ".log";
    bool m_isFilled = false;
};

} // namespace

TEST_F(WhatAccessIsSent, isAccessSqlForAPage)
{
    play({"--day", "0", "--show", "class,teacher,subject,type"});
    EXPECT_TRUE(hasSent("from emplois"));
    expectWordsOfAccess();
}

TEST_F(WhatAccessIsSent, isAccessSqlForMakeUpsOfADate)
{
    play({"--date", "2025-03-17", "--makeup"});
    EXPECT_TRUE(hasSent("from ratrap"));
    EXPECT_TRUE(hasSent("DateX =#03/17/25#"));
    expectWordsOfAccess();
}

TEST_F(WhatAccessIsSent, isAccessSqlForExams)
{
    play({"--mode", "exam", "--exam-week", "1", "--day", "0"});
    EXPECT_TRUE(hasSent("from examen"));
    expectWordsOfAccess();
}

TEST_F(WhatAccessIsSent, isAccessSqlForOtherRoomsWeeksAndCounts)
{
    play({"--zone", "2", "--department", "INFO", "--day", "0", "--week", "B", "--counting"});
    play({"--subject", "Analyse", "--day", "0"});
    play({"--every-room", "--rooms-per-page", "2", "--day", "1"});
    expectWordsOfAccess();
}

TEST_F(WhatAccessIsSent, isAccessSqlForAnswersThatAreThoseOfOtherProducts)
{
    static_cast<void>(desk()); // fills the database
    database().execute(
        {"insert into emplois (Tranche, Seance, Salle, Classe, Enseignant1, "
         "newnature, Debut) values (1, 'Mardi2', 'A2', 'g 1', 'DURAND', '00', '10h15')",
         "insert into emplois (Tranche, Seance, Salle, Classe, newnature) values "
         "(1, 'Mradi2', 'Usine', 'G1', '00')"});
    for (const QStringList& question :
         {QStringList{"--free", "--date", "2025-03-17", "--from", "8h30", "--to", "10h00"},
          QStringList{"--week-of", "--teacher", "Martin"}, QStringList{"--clashes"},
          QStringList{"--find", "--text", "dur"}, QStringList{"--use"}}) {
        EXPECT_EQ(answer(question, true), answer(question, false))
            << question.front().toStdString();
    }
    EXPECT_TRUE(hasSent("'DURAND'='Durand'") || hasSent("'Durand'='DURAND'"));
    expectWordsOfAccess();
}

TEST_F(WhatAccessIsSent, findsNamesThatAColumnTakesForEqual)
{
    database().execute(QStringList("create table salle (Nom text collate nocase)"));
    database().execute(QStringList("insert into salle (Nom) values ('Amphi A')"));
    db::Connection connection(connectString());
    EXPECT_EQ(connection.equalTexts(
                  {{"salle", "Nom", {"AMPHI A", "Labo", "amphi a", "Amphi-A", "Amphi A"}}})[0],
              (db::TextGroups{0, 1, 0, 3, 0}));
    expectWordsOfAccess();
}

TEST_F(WhatAccessIsSent, isAccessSqlForAbsencesThatAreRecordedAndTakenBack)
{
    createAbsenceTables(database());
    MarkedPlan plan(false, connectString(), {{QStringLiteral("L1")}});
    plan.click(1, pressed, 0);
    plan.click(1, 0, pressed);
    EXPECT_EQ(absentClasses(database()), QStringList("L1"));
    EXPECT_EQ(classesOfAbsentStudents(database()), QStringList("L1"));
    plan.click(1, pressed, 0);
    plan.click(1, 0, pressed);
    EXPECT_EQ(absentClasses(database()), QStringList());
    EXPECT_EQ(classesOfAbsentStudents(database()), QStringList());
    EXPECT_TRUE(hasSent("Select * from abscence Where Classe='L1' and Datex=#03/17/25#"));
    EXPECT_TRUE(hasSent("INSERT INTO `abscence` ("));
    expectWordsOfAccess();
}

TEST_F(WhatAccessIsSent, isAccessSqlForALookIntoTheDatabase)
{
    createTinyFaculty(database());
    db::Connection connection(connectString());
    EXPECT_EQ(setup::lookInto(connection).rooms, 5);
    expectWordsOfAccess();
}
