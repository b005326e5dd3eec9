// A server that is there and does not answer: stopped, full, locked, silent, or told not to.

#include "db/Connection.h"
#include "demo/Schema.h"
#include "engine/EngineDesk.h"
#include "faults/ShownCells.h"
#include "plan/FaultWords.h"
#include "support/CuttingProxy.h"
#include "support/MariaDbServer.h"
#include "support/MutePort.h"

#include <atomic>
#include <future>

using namespace test;
using Verdict = CuttingProxy::Verdict;

namespace
{

/// What the engine shows now, all of it as it should be.
void expectWhole(const ShownCells& whole, const EngineDesk& desk)
{
    EXPECT_EQ(shownCells(desk.engine.content()), whole);
    EXPECT_TRUE(desk.engine.content().faults.empty())
        << plan::faultDetails(desk.engine.content()).toStdString();
}

/// No cell is shown as free, and the line above the plan ends in that cause.
void expectUnknown(const ShownCells& whole, const EngineDesk& desk, const QString& cause)
{
    const plan::PlanContent& content = desk.engine.content();
    expectNothingFreed(whole, content, cause);
    EXPECT_GE(unknownCells(shownCells(content)), whole.size()) << cause.toStdString();
    EXPECT_TRUE(plan::faultSentence(content).contains(" : " + cause + ". "))
        << plan::faultSentence(content).toStdString() << plan::faultDetails(content).toStdString();
}

/// The tiny faculty on a server of the test's own, which it may stop and set as it likes.
class AServerOfItsOwn : public testing::Test
{
protected:
    AServerOfItsOwn()
    {
        createTinyFaculty(m_model);
        // What is written must outlive a kill.
        server.runScript("set global innodb_flush_log_at_trx_commit = 1; create database faculte;");
        server.createAccount("planning", "mot-de-passe", "ALL ON faculte.*");
        copyModel();
    }
    [[nodiscard]] QString connectString() const
    {
        return server.connectString("faculte", "planning", "mot-de-passe");
    }
    [[nodiscard]] EngineDesk open() const { return EngineDesk(m_model, false, connectString()); }

    MariaDbServer server;

private:
    void copyModel()
    {
        const QStringList schema = demo::schemaStatements(demo::Flavour::MariaDb);
        server.runScript(schema.join(";\n") + ";\n", "faculte");
        db::Connection from(m_model.connectString());
        db::Connection to(connectString());
        for (const demo::Table& table : demo::tables()) {
            const db::Recordset rows = from.open("select * from `" + table.name + '`');
            for (const db::Row& row : rows.rows()) {
                std::vector<std::pair<QString, db::Value>> fields;
                for (const demo::Column& column : table.columns) {
                    fields.emplace_back(column.name, row.field(column.name));
                }
                to.insert(table.name, fields);
            }
        }
    }

    TestDatabase m_model{DatabaseKind::MariaDb};
};

/// The tiny faculty on the server that all share.
class ASharedServer : public testing::Test
{
protected:
    ASharedServer() { createTinyFaculty(database); }

    static QString idOf(EngineDesk& desk)
    {
        return desk.connection->Db().open("select connection_id()").first().field(0).toText();
    }
    /// Waits until the server's list of its connections says so.
    void waitForConnection(const QString& id, const QString& condition, int count)
    {
        const QString query =
            "select count(*) from information_schema.processlist where id = " + id + condition;
        while (database.read(query) != QList<QStringList>({{QString::number(count)}})) {
        }
    }
    /// Refreshes while somebody else holds the timetable, and does something meanwhile.
    void refreshBehindALock(EngineDesk& desk, const std::function<void(const QString& id)>& then)
    {
        const QString id = idOf(desk);
        db::Connection holder(database.connectString());
        holder.execute("lock tables emplois write");
        auto refresh = std::async(std::launch::async, [&desk] { desk.engine.refreshPlan(); });
        waitForConnection(id, " and state like 'Waiting for table%lock%'", 1);
        then(id);
        holder.execute("unlock tables");
        refresh.get();
    }

    TestDatabase database{DatabaseKind::MariaDb};
};

} // namespace

TEST_F(AServerOfItsOwn, thatIsStoppedLeavesThePlanUnknownUntilItIsStartedAgain)
{
    EngineDesk desk = open();
    const ShownCells whole = shownCells(desk.engine.content());
    server.kill();
    desk.engine.refreshPlan();
    expectUnknown(whole, desk, "la base de données ne s’ouvre pas");
    server.restartInPlace();
    desk.engine.refreshPlan();
    expectWhole(whole, desk);
}

TEST_F(AServerOfItsOwn, thatWasStartedAgainIsReadAsIfNothingHadBeen)
{
    EngineDesk desk = open();
    const ShownCells whole = shownCells(desk.engine.content());
    server.restartInPlace();
    desk.engine.refreshPlan();
    expectWhole(whole, desk);
}

TEST_F(AServerOfItsOwn, thatTakesNoFurtherConnectionIsTriedAgain)
{
    EngineDesk desk = open();
    const ShownCells whole = shownCells(desk.engine.content());
    server.runScript("set global max_connections = 10;");
    const QString id =
        desk.connection->Db().open("select connection_id()").first().field(0).toText();
    server.runScript("kill " + id + ';');
    std::vector<db::Connection> others;
    while (others.size() < 10) {
        try {
            others.emplace_back(connectString());
        } catch (const db::DatabaseError&) { // the place of the killed one is not free yet
        }
    }
    desk.engine.refreshPlan();
    expectUnknown(whole, desk, "la base de données ne s’ouvre pas");
    EXPECT_TRUE(plan::faultDetails(desk.engine.content()).contains("Too many connections"));
    EXPECT_TRUE(errorOf([this] { static_cast<void>(open()); }).text().contains("Too many"));
    others.clear();
    // The server takes a moment to notice that they are gone.
    while (!desk.engine.content().faults.empty()) {
        desk.engine.refreshPlan();
    }
    expectWhole(whole, desk);
}

TEST_F(ASharedServer, thatHasClosedAnIdleConnectionIsReadAsIfNothingHadBeen)
{
    EngineDesk desk(database);
    const ShownCells whole = shownCells(desk.engine.content());
    const QString id = idOf(desk);
    desk.connection->Db().execute("set session wait_timeout = 1");
    waitForConnection(id, {}, 0);
    desk.engine.refreshPlan();
    expectWhole(whole, desk);
}

TEST_F(ASharedServer, thatIsSlowIsWaitedFor)
{
    EngineDesk desk(database);
    const ShownCells whole = shownCells(desk.engine.content());
    refreshBehindALock(desk, [](const QString&) {});
    expectWhole(whole, desk);
}

TEST_F(ASharedServer, thatKillsTheConnectionUnderAQuestionIsAskedOnceMore)
{
    EngineDesk desk(database);
    const ShownCells whole = shownCells(desk.engine.content());
    refreshBehindALock(
        desk, [](const QString& id) { MariaDbServer::shared().runScript("kill " + id + ';'); });
    expectWhole(whole, desk);
    EXPECT_EQ(desk.engine.refreshCount(), 2U); // one of them at the start
}

TEST_F(ASharedServer, thatKillsAQuestionIsAskedInOtherWords)
{
    EngineDesk desk(database);
    const ShownCells whole = shownCells(desk.engine.content());
    refreshBehindALock(desk, [](const QString& id) {
        MariaDbServer::shared().runScript("kill query " + id + ';');
    });
    EXPECT_EQ(shownCells(desk.engine.content()), whole);
    desk.engine.refreshPlan();
    expectWhole(whole, desk);
}

TEST_F(ASharedServer, thatTakesRightsAwayLeavesUnknownWhatMayNotBeRead)
{
    const QString user = "droits_" + database.baseName();
    QStringList grants;
    for (const demo::Table& table : demo::tables()) {
        grants << "SELECT ON `" + database.baseName() + "`.`" + table.name + '`';
    }
    const MariaDbAccess& server = MariaDbServer::shared();
    server.createAccount(user, "mot-de-passe", grants.join(';'));
    EngineDesk desk(database, false,
                    server.connectString(database.baseName(), user, "mot-de-passe"));
    const ShownCells whole = shownCells(desk.engine.content());
    const auto change = [&](const char* verb, const char* table, const char* whom) {
        server.runScript(QString("%1 select on `%2`.%3 %4 '%5'@'%';")
                             .arg(verb, database.baseName(), table, whom, user));
        desk.engine.refreshPlan();
    };
    change("revoke", "emplois", "from");
    expectUnknown(whole, desk, "la base de données refuse une demande");
    EXPECT_TRUE(plan::faultDetails(desk.engine.content()).contains("denied"));
    change("grant", "emplois", "to");
    expectWhole(whole, desk);
    // Without students, classes or absences the boxes stay, and the plan says what it lacks.
    for (const char* table : {"etudiant", "classe", "abscence", "etud_abs"}) {
        change("revoke", table, "from");
        EXPECT_EQ(shownCells(desk.engine.content()), whole) << table;
        EXPECT_TRUE(lookup::isIncomplete(desk.engine.content().faults)) << table;
        change("grant", table, "to");
        expectWhole(whole, desk);
    }
}

TEST_F(ASharedServer, thatTakesThePasswordNoMoreIsToldWithoutIt)
{
    const QString user = "droits_" + database.baseName();
    const MariaDbAccess& server = MariaDbServer::shared();
    const QString grants = "SELECT ON `" + database.baseName() + "`.*";
    server.createAccount(user, "mot-de-passe", grants);
    EngineDesk desk(database, false,
                    server.connectString(database.baseName(), user, "mot-de-passe"));
    const ShownCells whole = shownCells(desk.engine.content());
    const QString id = idOf(desk);
    server.createAccount(user, "un-autre", grants);
    server.runScript("kill " + id + ';');
    desk.engine.refreshPlan();
    expectUnknown(whole, desk, "la base de données ne s’ouvre pas");
    const QString details = plan::faultDetails(desk.engine.content());
    EXPECT_TRUE(details.contains("denied")) << details.toStdString();
    EXPECT_FALSE(details.contains("mot-de-passe"));
}

// Each of these waits as long as the program does; they wait at the same time.
TEST_F(ASharedServer, thatFallsSilentIsGivenUpOnce)
{
    const MariaDbAccess& server = MariaDbServer::shared();
    const auto refreshInSilence = [&](Verdict verdict) {
        std::atomic<bool> isSilent = false;
        const CuttingProxy proxy(server.port(), [&](const QByteArray& command) {
            return isSilent && command[0] == CuttingProxy::kExecute ? verdict : Verdict::Pass;
        });
        EngineDesk desk(database, false, proxy.through(database.connectString()));
        const ShownCells whole = shownCells(desk.engine.content());
        isSilent = true;
        const long long statements = desk.statementsOf([&] { desk.engine.refreshPlan(); });
        EXPECT_LE(statements, 5) << static_cast<int>(verdict);
        expectUnknown(whole, desk, "la base de données ne répond pas");
        isSilent = false;
        desk.engine.refreshPlan();
        expectWhole(whole, desk);
    };
    const auto connectToAMutePort = [&] {
        const MutePort mute(MutePort::Calls::Taken);
        const QString there = QString(database.connectString())
                                  .replace(QString(";port=%1OPTION").arg(server.port()),
                                           QString(";port=%1OPTION").arg(mute.number()));
        EXPECT_EQ(errorNumberOf([&] { static_cast<void>(db::Connection(there)); }),
                  runtime::ErrorNumber::DatabaseFailure);
    };
    std::vector<std::future<void>> waits;
    waits.push_back(std::async(std::launch::async, refreshInSilence, Verdict::Stall));
    waits.push_back(std::async(std::launch::async, refreshInSilence, Verdict::StallRows));
    waits.push_back(std::async(std::launch::async, connectToAMutePort));
    for (std::future<void>& wait : waits) {
        wait.get();
    }
}
