#include "MarkedPlan.h"
#include "support/ChildProgram.h"
#include "support/FileHolder.h"
#include "support/RuntimeMatchers.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <iostream>

using namespace test;
using runtime::ErrorNumber;

namespace
{

class ATableThatRefuses : public OnBothDatabases
{
};

} // namespace

TEST_P(ATableThatRefuses, aValueHoldsNothingOfTheRow)
{
    // `Durée` and `HeureF` stand in the middle: what comes before them must not stay behind.
    for (const QString& statement : absenceTableStatements(GetParam())) {
        QString narrowed = statement;
        const QString type = database().usesMySql() ? QStringLiteral("`Durée` INT")
                                                    : QStringLiteral("\"Durée\" INTEGER");
        narrowed.replace(type, type + QStringLiteral(" CHECK (`Durée` < 60)"));
        const QString end = database().usesMySql()
                                ? QStringLiteral("`HeureF` VARCHAR(100)")
                                : QStringLiteral("\"HeureF\" TEXT COLLATE NOCASE");
        narrowed.replace(end, end + QStringLiteral(" CHECK (`HeureF` < '11:00')"));
        database().execute(narrowed);
    }
    MarkedPlan plan(database(), {{classA}});
    const runtime::RunTimeError byClass = errorOf([&] { plan.shiftClick(1); });
    EXPECT_EQ(byClass.number(), ErrorNumber::StatementRefused);
    EXPECT_TRUE(byClass.text().contains(QStringLiteral("constraint"), Qt::CaseInsensitive))
        << byClass.what();
    EXPECT_EQ(byClass.activity(),
              QStringLiteral("Enregistrement de l’absence de la classe « L1-A » "
                             "(17/03/2025, 10h15, salle A101)"));
    EXPECT_EQ(errorNumberOf([&] { plan.ctrlClick(1); }), ErrorNumber::StatementRefused);
    EXPECT_TRUE(classAbsences(database()).isEmpty());
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
    EXPECT_FALSE(plan.box(1).classAbsent);
    EXPECT_FALSE(plan.box(1).studentAbsent);
    EXPECT_TRUE(plan.box(1).absentToolTip.isEmpty());
}

TEST_P(ATableThatRefuses, aRemovalKeepsTheWholeRow)
{
    createAbsenceTables(database());
    MarkedPlan plan(database(), {{classA}});
    plan.shiftClick(1);
    database().execute(
        database().usesMySql()
            ? QStringLiteral("create trigger kept before delete on abscence for each row "
                             "signal sqlstate '45000' set message_text = 'rows stay'")
            : QStringLiteral("create trigger kept before delete on abscence "
                             "begin select raise(abort, 'rows stay'); end"));
    const runtime::RunTimeError error = errorOf([&] { plan.shiftClick(1); });
    EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    EXPECT_TRUE(error.text().contains(QStringLiteral("rows stay"))) << error.what();
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classA)});
    EXPECT_TRUE(plan.box(1).classAbsent);
}

TEST_P(ATableThatRefuses, aMissingColumnHoldsNothingOfTheRow)
{
    createAbsenceTables(database());
    database().execute({QStringLiteral("alter table abscence drop column Choix"),
                        QStringLiteral("alter table etud_abs drop column Ident")});
    MarkedPlan plan(database(), {{classA}});
    EXPECT_EQ(errorNumberOf([&] { plan.shiftClick(1); }), ErrorNumber::StatementRefused);
    EXPECT_EQ(errorNumberOf([&] { plan.ctrlClick(1); }), ErrorNumber::StatementRefused);
    EXPECT_TRUE(absentClasses(database()).isEmpty());
    EXPECT_TRUE(classesOfAbsentStudents(database()).isEmpty());
}

TEMPORA_ON_BOTH_DATABASES(ATableThatRefuses);

namespace
{

/// The embedded database, whose faults are those of its file.
class AnEmbeddedFile : public testing::Test
{
protected:
    void SetUp() override { createAbsenceTables(m_database); }

    [[nodiscard]] TestDatabase& database() { return m_database; }
    /// A plan whose connection waits no longer than a moment for a lock.
    [[nodiscard]] MarkedPlan impatientPlan() const
    {
        // The driver waits by its own measure around every wait of the database itself.
        return MarkedPlan(false, m_database.connectString() + QStringLiteral(";Timeout=50"),
                          {{classA}}, QStringLiteral("PRAGMA busy_timeout = 50"));
    }

    void expectFailure(const std::function<void()>& gesture, const char* text)
    {
        const runtime::RunTimeError error = errorOf(gesture);
        EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
        EXPECT_TRUE(error.text().contains(QString::fromUtf8(text))) << error.what();
    }
    void expectRows(const QStringList& classes, const QStringList& ofStudents)
    {
        QList<QStringList> whole;
        for (const QString& className : classes) {
            whole << classAbsence(className);
        }
        EXPECT_EQ(classAbsences(m_database), whole);
        whole.clear();
        for (const QString& className : ofStudents) {
            whole << studentAbsence(className);
        }
        EXPECT_EQ(studentAbsences(m_database), whole);
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};
};

} // namespace

TEST_F(AnEmbeddedFile, lockedAgainstReadingStopsTheGestureAtItsSearch)
{
    MarkedPlan plan = impatientPlan();
    FileHolder holder(database().file(), "begin exclusive;\n");
    expectFailure([&] { plan.shiftClick(1); }, "locked");
    expectFailure([&] { plan.ctrlClick(1); }, "locked");
    holder.letGo();
    expectRows({}, {});
}

TEST_F(AnEmbeddedFile, lockedAgainstWritingTakesNothingOfTheRow)
{
    MarkedPlan plan = impatientPlan();
    FileHolder holder(database().file(), "begin immediate;\n");
    expectFailure([&] { plan.shiftClick(1); }, "locked");
    expectFailure([&] { plan.ctrlClick(1); }, "locked");
    holder.letGo();
    expectRows({}, {});
}

TEST_F(AnEmbeddedFile, thatAnotherProgramReadsTakesNothingOfTheRow)
{
    // The row is written to the journal and cannot be committed: it must not come later either.
    MarkedPlan plan = impatientPlan();
    FileHolder holder(database().file(), "begin;\nselect count(*) from abscence;\n");
    expectFailure([&] { plan.shiftClick(1); }, "locked");
    expectFailure([&] { plan.ctrlClick(1); }, "locked");
    holder.letGo();
    expectRows({}, {});
    plan.shiftClick(1);
    expectRows({classA}, {});
}

TEST_F(AnEmbeddedFile, lockedAgainstWritingKeepsTheWholeRow)
{
    MarkedPlan plan = impatientPlan();
    plan.shiftClick(1);
    plan.ctrlClick(1);
    FileHolder holder(database().file(), "begin immediate;\n");
    expectFailure([&] { plan.shiftClick(1); }, "locked");
    expectFailure([&] { plan.ctrlClick(1); }, "locked");
    holder.letGo();
    expectRows({classA}, {classA});
}

TEST_F(AnEmbeddedFile, thatMayNotBeWrittenTakesNothingOfTheRow)
{
    MarkedPlan plan(database(), {{classA}});
    plan.connection().execute(QStringLiteral("PRAGMA query_only = 1"));
    expectFailure([&] { plan.shiftClick(1); }, "readonly");
    expectFailure([&] { plan.ctrlClick(1); }, "readonly");
    expectRows({}, {});
}

TEST_F(AnEmbeddedFile, thatMayNotGrowTakesNothingOfTheRow)
{
    MarkedPlan plan(database(), {{classA}});
    // A row with a text longer than a page cannot do with the pages that are there.
    plan.connection().execute(QStringLiteral("PRAGMA max_page_count = 1"));
    plan.teach(QString(5000, u'x'));
    expectFailure([&] { plan.shiftClick(1); }, "full");
    expectFailure([&] { plan.ctrlClick(1); }, "full");
    expectRows({}, {});
}

TEST_F(AnEmbeddedFile, onAFullDiskTakesNothingOfTheRow)
{
    // A file system of 128 KiB that only the child sees, filled to its end.
    const QString folder = processFolder() + QStringLiteral("/full-disk");
    const QString result = processFolder() + QStringLiteral("/from-full-disk.sqlite");
    QDir().mkpath(folder);
    const QString script = QStringLiteral("mount -t tmpfs -o size=128k none \"$1\" || exit 77\n"
                                          "cp \"$2\" \"$1/base.sqlite\"\n"
                                          "cat /dev/zero > \"$1/rest\" 2>/dev/null\n"
                                          "echo go | \"$3\" sqlite \"$4\" \"$5\" L1-A 1\n"
                                          "code=$?\n"
                                          "rm \"$1/rest\"\n"
                                          "cat \"$1/base.sqlite\" > \"$6\"\n"
                                          "exit $code\n");
    for (const QString& table : {QStringLiteral("class"), QStringLiteral("students")}) {
        QProcess child;
        dieWithParent(child);
        child.start(
            QStringLiteral("unshare"),
            {QStringLiteral("--user"), QStringLiteral("--map-root-user"), QStringLiteral("--mount"),
             QStringLiteral("sh"), QStringLiteral("-c"), script, QStringLiteral("sh"), folder,
             database().file(), QStringLiteral(TEMPORA_TOGGLER),
             QStringLiteral("Driver=SQLite3;Database=") + folder + QStringLiteral("/base.sqlite"),
             table, result});
        ASSERT_TRUE(child.waitForFinished(60000)) << child.errorString().toStdString();
        const QByteArray message = child.readAllStandardError();
        if (child.exitCode() == 77 || message.startsWith("unshare:")) {
            GTEST_SKIP() << "this system lets nobody mount a file system of his own: "
                         << message.toStdString();
        }
        EXPECT_EQ(child.exitCode(), 1);
        EXPECT_TRUE(message.contains("Enregistrement de l")) << message.toStdString();
        EXPECT_TRUE(message.contains("full")) << message.toStdString();
        EXPECT_EQ(child.readAllStandardOutput(), QByteArray("ready\n"));
        const QByteArray rows =
            runProgram(findProgram(QStringLiteral("sqlite3")),
                       {result, QStringLiteral("pragma integrity_check; select count(*) from "
                                               "abscence; select count(*) from etud_abs;")});
        EXPECT_EQ(rows, QByteArray("ok\n0\n0\n"));
    }
}
