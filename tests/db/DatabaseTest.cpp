#include "db/Database.h"

#include "support/MariaDbServer.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;

namespace
{

class ADatabase : public test::OnBothDatabases
{
};

} // namespace

TEST_P(ADatabase, isOpenUntilItIsClosed)
{
    Database opened(database().usesMySql());
    EXPECT_THROW(static_cast<void>(opened.Db()), runtime::RunTimeError);
    opened.open(database().connectString());
    EXPECT_EQ(opened.Db().open(QStringLiteral("select 7")).first().field(0).toInt32(), 7);
    opened.close();
    EXPECT_EQ(test::errorNumberOf([&] { static_cast<void>(opened.Db()); }),
              runtime::ErrorNumber::DatabaseFailure);
}

TEST_P(ADatabase, hasTheDialectThatTheDriverCallsForOnceItIsOpen)
{
    Database opened(false);
    const QDate date(2026, 10, 5);
    EXPECT_EQ(opened.dialect().dateLiteral(date), QStringLiteral("#10/05/26#"));
    opened.open(database().connectString());
    EXPECT_EQ(opened.dialect().dateLiteral(date), database().usesMySql()
                                                      ? QStringLiteral("'2026/10/05'")
                                                      : QStringLiteral("#10/05/26#"));
    opened.close();
    EXPECT_EQ(opened.dialect().dateLiteral(date), QStringLiteral("#10/05/26#"));
}

TEMPORA_ON_BOTH_DATABASES(ADatabase);

TEST(ADatabaseThatIsNotOpen, hasTheDialectOfTheSetting)
{
    Database database;
    EXPECT_EQ(database.dialect().SqlDateFormat(), QStringLiteral("mm/dd/yy"));
    database.setKind(true, SqlDialect::Quotes::AsTheyStand);
    EXPECT_EQ(database.dialect().SqlDateFormat(), QStringLiteral("yyyy/mm/dd"));
    database.setKind(false, SqlDialect::Quotes::AsTheyStand);
    EXPECT_EQ(database.dialect().SqlDateDelimiter(), QStringLiteral("#"));
    EXPECT_EQ(Database(true).dialect().SqlDateDelimiter(), QStringLiteral("'"));
}

namespace
{

/// Trusts nothing: what it knows is old at once.
constexpr db::Database::Patience kNone{std::chrono::hours(1), std::chrono::milliseconds(-1),
                                       std::chrono::milliseconds(-1)};

class AProgramsConnection : public testing::Test
{
protected:
    [[nodiscard]] QString id()
    {
        return database.Db().open("select connection_id()").first().field(0).toText();
    }
    void kill() { test::MariaDbServer::shared().runScript(QStringLiteral("kill %1;").arg(id())); }

    test::TestDatabase faculty{test::DatabaseKind::MariaDb};
    db::Database database{true, kNone};
};

} // namespace

TEST_F(AProgramsConnection, isOpenedAnewWhenItIsKnownToBeDead)
{
    database.open(faculty.connectString());
    const QString first = id();
    database.revive();
    EXPECT_EQ(id(), first); // it was there
    kill();
    database.revive();
    EXPECT_NE(id(), first);
}

TEST_F(AProgramsConnection, isOpenedAnewAfterLongIdling)
{
    db::Database idle(true, {std::chrono::milliseconds(-1), std::chrono::milliseconds(-1), {}});
    idle.open(faculty.connectString());
    const auto number = [&idle] {
        return idle.Db().open("select connection_id()").first().field(0).toText();
    };
    const QString first = number();
    idle.revive();
    EXPECT_NE(number(), first);
}

TEST_F(AProgramsConnection, isNotAskedAboutTwiceInOneAction)
{
    db::Database patient(true, {std::chrono::hours(1), std::chrono::hours(1), {}});
    patient.open(faculty.connectString());
    const QString number = patient.Db().open("select connection_id()").first().field(0).toText();
    test::MariaDbServer::shared().runScript(QStringLiteral("kill %1;").arg(number));
    patient.revive(); // it has just been used
    EXPECT_THROW(static_cast<void>(patient.Db().open("select 1")), db::DatabaseError);
    patient.renew();
    EXPECT_EQ(patient.Db().open("select 1").recordCount(), 1);
}

TEST_F(AProgramsConnection, asksOnceMoreWhenItGoesAwayUnderARead)
{
    database.open(faculty.connectString());
    const long long before = database.statementCount();
    db::Database patient(true, {std::chrono::hours(1), std::chrono::hours(1), {}});
    patient.open(faculty.connectString());
    const QString number = patient.read("select connection_id()").first().field(0).toText();
    test::MariaDbServer::shared().runScript(QStringLiteral("kill %1;").arg(number));
    EXPECT_NE(patient.read("select connection_id()").first().field(0).toText(), number);
    // What the database refuses is asked once.
    EXPECT_THROW(static_cast<void>(database.read("selct")), db::DatabaseError);
    EXPECT_EQ(database.statementCount(), before + 1);
}

TEST_F(AProgramsConnection, countsItsStatementsOverAllConnections)
{
    database.open(faculty.connectString());
    static_cast<void>(id());
    database.renew();
    static_cast<void>(id());
    EXPECT_EQ(database.statementCount(), 2);
    database.close();
    EXPECT_EQ(database.statementCount(), 2);
}

TEST_F(AProgramsConnection, saysWhyThereIsNoneAndComesBack)
{
    test::MariaDbServer server;
    server.runScript("create database d;");
    const QString there = server.connectString("d", "root", "");
    database.open(there);
    server.kill();
    const runtime::RunTimeError first = test::errorOf([&] { database.revive(); });
    EXPECT_EQ(first.number(), runtime::ErrorNumber::DatabaseFailure);
    EXPECT_EQ(test::errorOf([&] { static_cast<void>(database.Db()); }).text(), first.text());
    server.restartInPlace();
    database.revive();
    EXPECT_EQ(database.Db().open("select 1").recordCount(), 1);
}

TEST_F(AProgramsConnection, staysClosedOnceItIsClosed)
{
    database.open(faculty.connectString());
    database.close();
    database.revive();
    database.renew();
    EXPECT_EQ(test::errorOf([&] { static_cast<void>(database.Db()); }).text(),
              "The connection is closed.");
}
