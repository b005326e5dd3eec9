#include "AbsenceTables.h"
#include "support/ChildProgram.h"

#include <QRandomGenerator>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

using namespace test;

namespace
{

constexpr int longestRunMilliseconds = 120000;

/// What several programs were told about the absence that they all toggled.
struct Log {
    int toggles = 0;
    int added = 0;
    int removed = 0;
};

using Programs = std::vector<std::unique_ptr<QProcess>>;

class ManyPrograms : public OnBothDatabases
{
protected:
    void SetUp() override { createAbsenceTables(database()); }

    /// Lets that many programs toggle the séance of class A at the same time.
    Log toggleAtOnce(const QString& table, int programs, int toggles)
    {
        Programs running;
        for (int i = 0; i < programs; ++i) {
            running.push_back(
                started(table, toggles / programs + (i < toggles % programs ? 1 : 0)));
        }
        for (const auto& program : running) {
            program->write("go\n");
        }
        Log log;
        for (const auto& program : running) {
            addTo(log, *program);
        }
        return log;
    }

    [[nodiscard]] std::unique_ptr<QProcess> started(const QString& table, int toggles)
    {
        auto program = std::make_unique<QProcess>();
        dieWithParent(*program);
        program->start(QStringLiteral(TEMPORA_TOGGLER),
                       {QString::fromStdString(kindName({GetParam(), 0})),
                        database().connectString(), table, classA, QString::number(toggles)});
        while (!program->canReadLine() && program->waitForReadyRead()) {
        }
        EXPECT_EQ(program->readLine(), QByteArray("ready\n"));
        return program;
    }

    static void addTo(Log& log, QProcess& program)
    {
        EXPECT_TRUE(program.waitForFinished(longestRunMilliseconds));
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
        note(log, program.readAllStandardOutput());
    }
    static void note(Log& log, const QByteArray& told)
    {
        log.added += static_cast<int>(told.count('+'));
        log.removed += static_cast<int>(told.count('-'));
        log.toggles += static_cast<int>(told.count('\n'));
    }
};

/// Programs that are killed in the middle of their toggles, and started anew for the rest.
class KilledPrograms : public ManyPrograms
{
protected:
    /// Lets that many programs toggle the séance of class A at the same time, so often each.
    void toggleAndKill(const QString& table, int programs, int toggles)
    {
        std::vector<Victim> victims(static_cast<std::size_t>(programs));
        for (Victim& victim : victims) {
            victim.left = toggles;
            begin(table, victim);
        }
        while (std::any_of(victims.begin(), victims.end(),
                           [](const Victim& victim) { return victim.left > 0; })) {
            for (Victim& victim : victims) {
                goOn(table, victim);
            }
        }
    }

    Log log;
    int kills = 0;

private:
    struct Victim {
        std::unique_ptr<QProcess> program;
        int left = 0;     ///< toggles that it still has to make
        int lifetime = 0; ///< toggles that it may make before it is killed
    };

    void begin(const QString& table, Victim& victim)
    {
        constexpr int more = 1'000'000; // than it lives to make
        victim.program = started(table, more);
        victim.program->write("go\n");
        victim.lifetime = m_chance.bounded(5, 45);
    }

    /// Hears what the program tells. Kills it when its time has come, which is while it toggles on,
    /// and begins another one for the toggles that are left.
    void goOn(const QString& table, Victim& victim)
    {
        if (victim.left <= 0) {
            return;
        }
        QProcess& program = *victim.program;
        if (!program.canReadLine() && !program.waitForReadyRead(longestRunMilliseconds)) {
            ADD_FAILURE() << "no more is told: " << program.readAllStandardError().toStdString();
            victim.left = 0;
            return;
        }
        hear(victim);
        if (victim.lifetime <= 0 || victim.left <= 0) {
            program.kill();
            EXPECT_TRUE(program.waitForFinished(longestRunMilliseconds));
            hear(victim);
            ++kills;
            if (victim.left > 0) {
                begin(table, victim);
            }
        }
    }
    void hear(Victim& victim)
    {
        while (victim.program->canReadLine()) {
            note(log, victim.program->readLine());
            --victim.left;
            --victim.lifetime;
        }
    }

    QRandomGenerator m_chance{20261122};
};

class ManyProgramsOnOneServer : public ManyPrograms
{
};

} // namespace

// Two toggles at the same moment may both find nothing and add a row each, so the outcome of the
// whole is open. But every toggle adds or removes exactly the one row that it says.

TEST_P(ManyProgramsOnOneServer, loseNoClassAbsenceAndTouchNoOther)
{
    database().execute(
        {QStringLiteral("insert into abscence (Classe, Datex, Debut) values "
                        "('L1-B', '2025-03-17', '10h15'), ('L1-A', '2025-03-18', '10h15'), "
                        "('L1-A', '2025-03-17', '11h45')")});
    const QString others = QStringLiteral("select Classe, Datex, Debut from abscence "
                                          "where Seance is null order by Num");
    const QList<QStringList> before = database().read(others);
    const Log log = toggleAtOnce(QStringLiteral("class"), 8, 500);
    EXPECT_EQ(log.toggles, 500);
    EXPECT_EQ(log.added + log.removed, 500);
    EXPECT_EQ(database().read(others), before);
    database().execute(QStringLiteral("delete from abscence where Seance is null"));
    EXPECT_EQ(classAbsences(database()),
              QList<QStringList>(log.added - log.removed, classAbsence(classA)));
}

TEST_P(ManyProgramsOnOneServer, loseNoStudentAbsenceAndTouchNoOther)
{
    database().execute({QStringLiteral("insert into etud_abs (Classe, Nom, Jour, HeureD) values "
                                       "('L1-B', 'L1-B', '2025-03-17', '10h15'), "
                                       "('L1-A', 'Dupont', '2025-03-17', '10h15')")});
    const QString others = QStringLiteral("select Classe, Nom, Jour, HeureD from etud_abs "
                                          "where Seance is null order by Num");
    const QList<QStringList> before = database().read(others);
    const Log log = toggleAtOnce(QStringLiteral("students"), 8, 500);
    EXPECT_EQ(log.toggles, 500);
    EXPECT_EQ(log.added + log.removed, 500);
    EXPECT_EQ(database().read(others), before);
    database().execute(QStringLiteral("delete from etud_abs where Seance is null"));
    EXPECT_EQ(studentAbsences(database()),
              QList<QStringList>(log.added - log.removed, studentAbsence(classA)));
}

INSTANTIATE_TEST_SUITE_P(On, ManyProgramsOnOneServer, testing::Values(DatabaseKind::MariaDb),
                         kindName);

TEST_P(ManyPrograms, reconcileWithTheRows)
{
    const Log log = toggleAtOnce(QStringLiteral("class"), 3, 45);
    EXPECT_EQ(log.toggles, 45);
    EXPECT_EQ(classAbsences(database()),
              QList<QStringList>(log.added - log.removed, classAbsence(classA)));
}

TEMPORA_ON_BOTH_DATABASES(ManyPrograms);

// What a killed program did last it could not tell any more: one row more or one less for each.
// TEMPORA_TOGGLES: how many toggles each program makes, for a longer run.

TEST_P(KilledPrograms, leaveNoRowThatIsHalfOrUnaccountedFor)
{
    const int toggles = qEnvironmentVariableIntValue("TEMPORA_TOGGLES");
    toggleAndKill(QStringLiteral("class"), 8, toggles > 0 ? toggles : 40);
    const QList<QStringList> rows = classAbsences(database());
    EXPECT_EQ(rows.count(classAbsence(classA)), rows.size());
    EXPECT_GE(kills, 8);
    EXPECT_LE(std::abs(static_cast<int>(rows.size()) - (log.added - log.removed)), kills)
        << log.added << " added, " << log.removed << " removed, " << rows.size() << " rows, "
        << kills << " kills";
    RecordProperty("toggles", log.toggles);
    RecordProperty("kills", kills);
}

TEMPORA_ON_BOTH_DATABASES(KilledPrograms);
