#include "ConnectedTest.h"

#include "support/ChildProgram.h"
#include "support/MariaDbServer.h"
#include "support/OdbcConfiguration.h"
#include "support/TestFolder.h"
#include "support/WithoutPrivileges.h"

#include <QDir>
#include <QFile>
#include <chrono>
#include <functional>
#include <future>
#include <vector>

using namespace db;
using runtime::ErrorNumber;
using runtime::RunTimeError;
using test::errorOf;

namespace
{

/// The error with which the connection string does not open.
RunTimeError openingErrorOf(const QString& connectString)
{
    static_cast<void>(test::OdbcConfiguration::instance());
    return errorOf([&] { const Connection connection(connectString); });
}

class Faults : public ConnectedTest
{
};

} // namespace

TEST(Opening, failsForAnUnknownDataSourceWithTheDriverManagersText)
{
    const RunTimeError error = openingErrorOf(QStringLiteral("DSN=Inconnue"));
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(error.text().contains(QStringLiteral("Data source name not found")))
        << error.what();
}

TEST(Opening, failsForAMissingDriver)
{
    const RunTimeError unknown =
        openingErrorOf(QStringLiteral("DRIVER={Pilote absent};SERVER=x;PASSWORD=secret"));
    EXPECT_EQ(unknown.number(), ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(unknown.text().contains(QStringLiteral("Pilote absent"))) << unknown.what();

    test::OdbcConfiguration::instance().addBrokenSource(QStringLiteral("sansPilote"));
    const RunTimeError missing = openingErrorOf(QStringLiteral("DSN=sansPilote"));
    EXPECT_EQ(missing.number(), ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(missing.text().contains(QStringLiteral("libmissing.so"))) << missing.what();
}

TEST(Opening, failsForAnEmptyConnectionString)
{
    EXPECT_EQ(openingErrorOf(QString()).number(), ErrorNumber::DatabaseFailure);
}

TEST(Opening, failsForADataSourceWithoutANameAndMakesNoFile)
{
    const QStringList before = QDir().entryList();
    EXPECT_EQ(openingErrorOf(QStringLiteral("DSN=")).number(), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(openingErrorOf(QStringLiteral("DSN= ")).number(), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(QDir().entryList(), before);
}

TEST(Opening, failsForAFileThatIsMissingAndDoesNotMakeIt)
{
    const QString file = test::processFolder() + QStringLiteral("/absent.sqlite");
    test::OdbcConfiguration::instance().addSqliteSource(QStringLiteral("absent"), file);
    EXPECT_EQ(openingErrorOf(QStringLiteral("DSN=absent")).number(), ErrorNumber::DatabaseFailure);
    EXPECT_FALSE(QFile::exists(file));
}

TEST(Opening, failsForAFileThatIsNoDatabase)
{
    const QString file = test::processFolder() + QStringLiteral("/texte.sqlite");
    test::writeFile(file, QStringLiteral("Ceci n'est pas une base de données. ").repeated(100));
    test::OdbcConfiguration::instance().addSqliteSource(QStringLiteral("texte"), file);
    const RunTimeError error = errorOf([] {
        return Connection(QStringLiteral("DSN=texte")).open(QStringLiteral("select * from t"));
    });
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_FALSE(error.text().isEmpty());
}

TEST(Opening, failsWhereNoServerListens)
{
    test::MariaDbServer server;
    const QString connectString =
        server.connectString(QStringLiteral("x"), QStringLiteral("u"), QStringLiteral("secret"));
    server.kill();
    const RunTimeError error = openingErrorOf(connectString);
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(error.text().contains(QStringLiteral("127.0.0.1"))) << error.what();
}

TEST(Opening, failsForAWrongPasswordAndDoesNotShowIt)
{
    // The driver's text names the user: a password like it, or a part of it, must not show there.
    test::MariaDbServer::shared().createAccount(QStringLiteral("anne"), QStringLiteral("juste"),
                                                QStringLiteral("USAGE ON *.*"));
    const auto errorFor = [](const QString& password) {
        return openingErrorOf(test::MariaDbServer::shared().connectString(
            QStringLiteral("mysql"), QStringLiteral("anne"), password));
    };
    for (const char* password : {"faux", "", "qqq=qqq", "100%q", "qé"}) {
        const RunTimeError wrong = errorFor(QString::fromUtf8(password));
        EXPECT_EQ(wrong.number(), ErrorNumber::DatabaseFailure);
        EXPECT_TRUE(wrong.text().contains(QStringLiteral("Access denied for user 'anne'")))
            << wrong.what();
    }
    for (const char* password :
         {"anne", "Anne", "n", "{anne}", "'",
          // The driver takes what stands behind the semicolon for a server, and names it.
          "q;SERVER=127.0.0.9"}) {
        const RunTimeError alike = errorFor(QString::fromUtf8(password));
        EXPECT_EQ(alike.number(), ErrorNumber::DatabaseFailure);
        EXPECT_TRUE(alike.text().startsWith(QStringLiteral("Le texte du pilote n’est pas montré")))
            << password << ": " << alike.what();
    }
}

TEST(Opening, failsForAnUnknownDatabaseOfTheServer)
{
    test::MariaDbServer::shared().createAccount(QStringLiteral("bob"), QStringLiteral("juste"),
                                                QStringLiteral("SELECT ON *.*"));
    const RunTimeError error = openingErrorOf(test::MariaDbServer::shared().connectString(
        QStringLiteral("absente"), QStringLiteral("bob"), QStringLiteral("juste")));
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(error.text().contains(QStringLiteral("Unknown database 'absente'")))
        << error.what();
}

TEST_P(Faults, nameTheMissingTable)
{
    for (const auto& action : std::vector<std::function<void()>>{
             [this] { return connection().open(QStringLiteral("select * from absente")); },
             [this] { return connection().recordCount(QStringLiteral("select * from absente")); },
             [this] { connection().execute(QStringLiteral("delete from absente")); },
             [this] { connection().deleteFirst(QStringLiteral("select * from absente")); }}) {
        const RunTimeError error = errorOf(action);
        EXPECT_EQ(error.number(), ErrorNumber::TableMissing);
        EXPECT_TRUE(error.text().contains(QStringLiteral("absente"))) << error.what();
    }
}

TEST_P(Faults, giveTheDriversTextForARefusedStatement)
{
    const RunTimeError error =
        errorOf([this] { return connection().open(QStringLiteral("selec Zoé")); });
    EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    EXPECT_TRUE(error.text().contains(QStringLiteral("selec"))) << error.what();
}

TEST_P(Faults, nameAMissingColumn)
{
    database().execute(QStringLiteral("create table t (a text)"));
    const RunTimeError error =
        errorOf([this] { return connection().open(QStringLiteral("select Zoé from t")); });
    EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    EXPECT_TRUE(error.text().contains(QStringLiteral("Zoé"))) << error.what();
}

TEST_P(Faults, leaveTheConnectionUsable)
{
    EXPECT_THROW(connection().execute(QStringLiteral("selec")), RunTimeError);
    EXPECT_EQ(single(QStringLiteral("select 7")).toInt32(), 7);
}

TEST_P(Faults, answerEveryCallOnAClosedConnection)
{
    connection().close();
    connection().close(); // does nothing
    const QString sql = QStringLiteral("select * from t");
    for (const auto& action : std::vector<std::function<void()>>{
             [&] { return connection().open(sql); }, [&] { return connection().recordCount(sql); },
             [&] { connection().execute(sql); },
             [&] {
                 connection().insert(QStringLiteral("t"), {{QStringLiteral("a"), Value()}});
             },
             [&] { connection().deleteFirst(sql); }, [&] { return connection().statementCount(); },
             [&] { return connection().dialect(); }, [&] { return connection().openJoined({sql}); },
             [&] { return connection().joinedRowOrder(); },
             [&] { return connection().rowOrders({}); }}) {
        const RunTimeError error = errorOf(action);
        EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
        EXPECT_EQ(error.text(),
                  QStringLiteral("Operation is not allowed when the object is closed."));
    }
}

TEST_P(Faults, answerEveryCallOnAConnectionThatWasMovedAway)
{
    const Connection other = std::move(connection());
    EXPECT_EQ(test::errorNumberOf([this] { connection().execute(QStringLiteral("select 1")); }),
              ErrorNumber::DatabaseFailure);
    EXPECT_EQ(other.statementCount(), 0);
}

TEMPORA_ON_BOTH_DATABASES(Faults);

TEST(AServerThatStops, failsTheNextStatementAndTheOpening)
{
    test::MariaDbServer server;
    server.runScript(QStringLiteral("create database b; create table b.t (a text);"));
    server.createAccount(QStringLiteral("u"), QStringLiteral("secret"),
                         QStringLiteral("ALL ON b.*"));
    const QString connectString =
        server.connectString(QStringLiteral("b"), QStringLiteral("u"), QStringLiteral("secret"));
    Connection connection(connectString);
    EXPECT_TRUE(connection.open(QStringLiteral("select * from t")).isEmpty());
    server.kill();
    for (const auto& action : std::vector<std::function<void()>>{
             [&] { return connection.open(QStringLiteral("select * from t")); },
             [&] {
                 connection.insert(QStringLiteral("t"),
                                   {{QStringLiteral("a"), Value(QStringLiteral("A"))}});
             },
             [&] { connection.deleteFirst(QStringLiteral("select * from t")); },
             [&] { const Connection again(connectString); }}) {
        const RunTimeError error = errorOf(action);
        EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure) << error.what();
        EXPECT_FALSE(error.text().isEmpty());
        EXPECT_FALSE(error.text().contains(QStringLiteral("secret")));
    }
}

TEST(AConnectionThatIsLost, leavesNothingOfTheRowThatWasOnItsWay)
{
    test::TestDatabase database(test::DatabaseKind::MariaDb);
    database.execute({QStringLiteral("create table t (a text) engine=InnoDB"),
                      QStringLiteral("create trigger slow before insert on t for each row set "
                                     "@slept = sleep(100)")});
    Connection connection(database.connectString());
    auto outcome = std::async(std::launch::async, [&connection] {
        return errorOf([&connection] {
            connection.insert(QStringLiteral("t"),
                              {{QStringLiteral("a"), Value(QStringLiteral("A"))}});
        });
    });
    // The server has the insert and does not answer it: now its connection is cut.
    const QString writer = QStringLiteral("select id from information_schema.processlist where "
                                          "db = '%1' and state = 'User sleep'")
                               .arg(database.baseName());
    QList<QStringList> writers;
    while (writers.isEmpty() &&
           outcome.wait_for(std::chrono::seconds(0)) == std::future_status::timeout) {
        writers = database.read(writer);
    }
    ASSERT_EQ(writers.size(), 1);
    test::MariaDbServer::shared().runScript(QStringLiteral("kill %1;").arg(writers[0][0]));
    const RunTimeError error = outcome.get();
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure) << error.what();
    EXPECT_EQ(database.read(QStringLiteral("select * from t")), QList<QStringList>());
}

TEST(AnAccountWithoutTheRight, isRefusedAndNothingIsWritten)
{
    test::TestDatabase database(test::DatabaseKind::MariaDb);
    database.execute(
        {QStringLiteral("create table t (a text)"), QStringLiteral("insert into t values ('A')")});
    const auto& server = test::MariaDbServer::shared();
    server.createAccount(QStringLiteral("lecteur"), QStringLiteral("secret"),
                         QStringLiteral("SELECT ON `%1`.*").arg(database.baseName()));
    Connection connection(server.connectString(database.baseName(), QStringLiteral("lecteur"),
                                               QStringLiteral("secret")));
    EXPECT_EQ(connection.recordCount(QStringLiteral("select * from t")), 1);
    for (const auto& action : std::vector<std::function<void()>>{
             [&] {
                 connection.insert(QStringLiteral("t"),
                                   {{QStringLiteral("a"), Value(QStringLiteral("B"))}});
             },
             [&] { connection.deleteFirst(QStringLiteral("select * from t")); }}) {
        const RunTimeError error = errorOf(action);
        EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
        EXPECT_TRUE(error.text().contains(QStringLiteral("command denied"))) << error.what();
    }
    EXPECT_EQ(database.read(QStringLiteral("select a from t")),
              QList<QStringList>({{QStringLiteral("A")}}));
}

TEST(AnSqliteFile, refusesToBeWrittenWhenItIsReadOnly)
{
    const test::WithoutPrivileges ordinaryUser;
    test::TestDatabase database(test::DatabaseKind::Sqlite);
    database.execute(QStringLiteral("create table t (a text)"));
    QFile::setPermissions(database.file(), QFile::ReadOwner);
    Connection connection(database.connectString());
    EXPECT_TRUE(connection.open(QStringLiteral("select * from t")).isEmpty());
    const RunTimeError error = errorOf([&] {
        connection.insert(QStringLiteral("t"), {{QStringLiteral("a"), Value()}});
    });
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(error.text().contains(QStringLiteral("readonly"))) << error.what();
}

TEST(AnSqliteFile, takesNothingOfARowForWhichTheDiskHasNoRoom)
{
    test::TestDatabase database(test::DatabaseKind::Sqlite);
    database.execute(QStringLiteral("create table t (a text)"));
    Connection connection(database.connectString());
    // SQLite answers a full file as it answers a full disk.
    EXPECT_EQ(connection.open(QStringLiteral("PRAGMA max_page_count = 3")).recordCount(), 1);
    const RunTimeError error = errorOf([&] {
        connection.insert(QStringLiteral("t"),
                          {{QStringLiteral("a"), Value(QString(100000, u'x'))}});
    });
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(error.text().contains(QStringLiteral("full"))) << error.what();
    EXPECT_EQ(database.read(QStringLiteral("select * from t")), QList<QStringList>());
}

TEST(AnSqliteFile, failsWithoutHangingWhileAnotherProgramLocksIt)
{
    test::TestDatabase database(test::DatabaseKind::Sqlite);
    database.execute(QStringLiteral("create table t (a text)"));
    Connection connection(database.connectString());

    QProcess other; // tells when it has the lock, and holds it until its input ends
    test::dieWithParent(other);
    other.start(test::findProgram(QStringLiteral("sqlite3")),
                {QStringLiteral("-batch"), database.file()});
    other.write("begin exclusive;\nselect 'locked';\n");
    ASSERT_TRUE(other.waitForReadyRead()) << other.readAllStandardError().toStdString();

    for (const auto& action : std::vector<std::function<void()>>{
             [&] { return connection.open(QStringLiteral("select * from t")); },
             [&] {
                 connection.insert(QStringLiteral("t"), {{QStringLiteral("a"), Value()}});
             }}) {
        const RunTimeError error = errorOf(action);
        EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
        EXPECT_TRUE(error.text().contains(QStringLiteral("locked"))) << error.what();
    }
    other.closeWriteChannel();
    ASSERT_TRUE(other.waitForFinished());
    EXPECT_TRUE(connection.open(QStringLiteral("select * from t")).isEmpty());
}
