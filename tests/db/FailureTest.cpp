// What a real driver's failures amount to.

#include "ConnectedTest.h"

#include "support/FileHolder.h"
#include "support/MariaDbServer.h"
#include "support/OdbcConfiguration.h"

#include <QFile>
#include <future>

using namespace db;

namespace
{

/// What became of the action, which fails.
template <typename Action>
Failure failureFrom(Action action)
{
    try {
        static_cast<void>(action());
    } catch (const DatabaseError& error) {
        return error.failure();
    }
    ADD_FAILURE() << "nothing failed";
    return Failure::Other;
}

class Failures : public ConnectedTest
{
};

TEMPORA_ON_BOTH_DATABASES(Failures);

const test::MariaDbAccess& server()
{
    return test::MariaDbServer::shared();
}

QString idOf(Connection& connection)
{
    return connection.open("select connection_id()").first().field(0).toText();
}

} // namespace

TEST_P(Failures, tellARefusalFromAMissingTable)
{
    database().execute("create table t (a integer)");
    EXPECT_EQ(failureFrom([&] { return connection().open("selct a from t"); }), Failure::Refused);
    EXPECT_EQ(failureFrom([&] { return connection().open("select b from t"); }), Failure::Refused);
    EXPECT_EQ(failureFrom([&] { return connection().open("select a from u"); }),
              Failure::TableMissing);
    EXPECT_FALSE(connection().isDead());
}

TEST(AFailureToConnect, isToldFromALostConnection)
{
    static_cast<void>(test::OdbcConfiguration::instance());
    EXPECT_EQ(failureFrom([] { return Connection("DSN=Inconnue"); }), Failure::Unreachable);
}

TEST(AKilledConnection, isLostAndKnownToBeDead)
{
    const test::TestDatabase database(test::DatabaseKind::MariaDb);
    Connection connection(database.connectString());
    EXPECT_FALSE(connection.isDead());
    server().runScript(QStringLiteral("kill %1;").arg(idOf(connection)));
    EXPECT_TRUE(connection.isDead());
    EXPECT_EQ(failureFrom([&] { return connection.open("select 1"); }), Failure::ConnectionLost);
}

TEST(AConnectionIdleForTooLong, isLost)
{
    const test::TestDatabase database(test::DatabaseKind::MariaDb);
    Connection connection(database.connectString());
    connection.execute("set session wait_timeout = 1");
    // The server closes it: the connection is no longer in its list.
    const QString query =
        QStringLiteral("select count(*) from information_schema.processlist where id = %1")
            .arg(idOf(connection));
    while (database.read(query) != QList<QStringList>({{"0"}})) {
    }
    EXPECT_TRUE(connection.isDead());
    EXPECT_EQ(failureFrom([&] { return connection.open("select 1"); }), Failure::ConnectionLost);
}

TEST(AClosedConnection, isDead)
{
    const test::TestDatabase database(test::DatabaseKind::Sqlite);
    Connection connection(database.connectString());
    connection.close();
    EXPECT_TRUE(connection.isDead());
    EXPECT_EQ(failureFrom([&] { return connection.open("select 1"); }), Failure::Unreachable);
}

TEST(ALockedFile, isLockedForAll)
{
    test::TestDatabase database(test::DatabaseKind::Sqlite);
    database.execute("create table t (a integer)");
    Connection connection(database.connectString());
    const test::FileHolder other(database.file(), "begin exclusive;");
    EXPECT_EQ(failureFrom([&] { return connection.open("select * from t"); }), Failure::Locked);
}

TEST(ADamagedFile, failsForAll)
{
    test::TestDatabase database(test::DatabaseKind::Sqlite);
    database.execute({"create table t (a text)", "insert into t values ('A')"});
    QFile file(database.file());
    ASSERT_TRUE(file.resize(100));
    EXPECT_EQ(
        failureFrom([&] { return Connection(database.connectString()).open("select * from t"); }),
        Failure::Other);
}

/// One connection waits for the other's row and the other for its: the server rolls one statement
/// back, which is sent again when the other transaction is over.
TEST(ADeadlock, isNoticedByNobody)
{
    test::TestDatabase database(test::DatabaseKind::MariaDb);
    database.execute({"create table t (id integer primary key, n integer) engine=InnoDB",
                      "insert into t values (1, 0), (2, 0)"});
    Connection other(database.connectString());
    other.execute("set session innodb_lock_wait_timeout = 20");
    other.execute("start transaction");
    other.execute("update t set n = n + 1 where id = 1");
    other.execute("update t set n = n + 1 where id = 1"); // weighs more: the other one is chosen
    Connection connection(database.connectString());
    auto both = std::async(std::launch::async, [&connection] {
        // One statement that takes the rows from the second to the first.
        connection.execute("update t set n = n + 10 order by id desc");
    });
    const QString waiting = QStringLiteral(
        "select count(*) from information_schema.innodb_trx where trx_state = 'LOCK WAIT'");
    while (database.read(waiting) == QList<QStringList>({{"0"}})) {
    }
    other.execute("update t set n = n + 1 where id = 2"); // now each waits for the other
    other.execute("commit");
    EXPECT_NO_THROW(both.get());
    EXPECT_EQ(database.read("select n from t order by id"), QList<QStringList>({{"12"}, {"11"}}));
}

TEST(AServerWithAnotherCharacterSet, isToldOurs)
{
    const test::MariaDbServer latin;
    latin.runScript(
        "create database d; create table d.t (a varchar(20) character set utf8mb4); "
        "insert into d.t values ('Été'); set global init_connect = 'SET NAMES latin1';");
    latin.createAccount("anne", "juste", "ALL ON d.*");
    Connection connection(latin.connectString("d", "anne", "juste"));
    EXPECT_EQ(connection.open("select a from t where a = 'Été'").first().field(0).toText(), "Été");
}

TEST(ALockedRow, isGivenUpByTheServerBeforeTheProgramDoes)
{
    test::TestDatabase database(test::DatabaseKind::MariaDb);
    database.execute("create table t (a integer) engine=InnoDB");
    Connection connection(database.connectString());
    connection.insert("t", {{"a", Value(std::int64_t{1})}});
    const db::Row limits =
        connection.open("select @@innodb_lock_wait_timeout, @@lock_wait_timeout").first();
    EXPECT_EQ(limits.field(0).toInt32(), 8); // an answer is waited for ten seconds
    EXPECT_EQ(limits.field(1).toInt32(), 8);
}
