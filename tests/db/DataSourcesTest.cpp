#include "db/DataSources.h"

#include "db/OdbcInstaller.h"
#include "support/OwnDataSources.h"
#include "support/RuntimeMatchers.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <pwd.h>
#include <unistd.h>

using namespace db;
using runtime::ErrorNumber;

namespace
{

class DataSources : public testing::Test
{
protected:
    [[nodiscard]] const test::OwnDataSources& machine() const { return m_machine; }

private:
    test::OwnDataSources m_machine;
};

} // namespace

TEST_F(DataSources, tellTheInstalledDrivers)
{
    EXPECT_EQ(installedDrivers(),
              QStringList({QStringLiteral("SQLite3"), QStringLiteral("MariaDB Unicode")}));
}

TEST_F(DataSources, areWrittenWithTheirDriverAndWords)
{
    writeDataSource({QStringLiteral("MonKalo"),
                     QStringLiteral("SQLite3"),
                     {{QStringLiteral("Database"), QStringLiteral("/home/é ; x/démo.sqlite")}}});
    EXPECT_EQ(wordOf(QStringLiteral("MonKalo"), QStringLiteral("Database")),
              QStringLiteral("/home/é ; x/démo.sqlite"));
    EXPECT_EQ(wordOf(QStringLiteral("MonKalo"), QStringLiteral("Driver")),
              QStringLiteral("SQLite3"));
    EXPECT_EQ(wordOf(QStringLiteral("Other"), QStringLiteral("Server")), QStringLiteral("far"));
    EXPECT_EQ(wordOf(QStringLiteral("MonKalo"), QStringLiteral("Server")), QString());
}

TEST_F(DataSources, giveWayToOneOfTheirName)
{
    writeDataSource({QStringLiteral("MonKalo"),
                     QStringLiteral("MariaDB Unicode"),
                     {{QStringLiteral("Server"), QStringLiteral("db1")}}});
    writeDataSource({QStringLiteral("MonKalo"),
                     QStringLiteral("SQLite3"),
                     {{QStringLiteral("Database"), QStringLiteral("/a.sqlite")}}});
    EXPECT_EQ(wordOf(QStringLiteral("MonKalo"), QStringLiteral("Server")), QString());
    EXPECT_EQ(machine().text(QStringLiteral("odbc.ini")).count("[MonKalo]"), 1);
}

TEST_F(DataSources, leaveACopyOfTheFirstFileAndKeepTheirOwnForTheUser)
{
    writeDataSource({QStringLiteral("A"), QStringLiteral("SQLite3"), {}});
    writeDataSource({QStringLiteral("B"), QStringLiteral("SQLite3"), {}});
    EXPECT_EQ(machine().text(QStringLiteral("odbc.ini.avant-tempora")),
              test::OwnDataSources::usersText());
    const auto rights = QFileInfo(machine().path(QStringLiteral("odbc.ini"))).permissions();
    EXPECT_FALSE(rights & (QFileDevice::ReadGroup | QFileDevice::ReadOther));
}

TEST_F(DataSources, lieInTheHomeOfTheAccountWhateverTheEnvironmentSays)
{
    const auto home = qScopeGuard([before = qgetenv("HOME")] { qputenv("HOME", before); });
    qputenv("HOME", "/nowhere");
    qunsetenv("ODBCINI");
    EXPECT_EQ(usersFile(), QString::fromLocal8Bit(getpwuid(getuid())->pw_dir) + "/.odbc.ini");
}

TEST_F(DataSources, takeNoValueOfSeveralLines)
{
    const auto error = test::errorOf([] {
        writeDataSource({QStringLiteral("MonKalo"),
                         QStringLiteral("SQLite3"),
                         {{QStringLiteral("Database"), QStringLiteral("a\nDriver=evil")}}});
        return 0;
    });
    EXPECT_EQ(error.number(), ErrorNumber::InvalidProcedureCall);
    EXPECT_FALSE(machine().text(QStringLiteral("odbc.ini")).contains("evil"));
}

TEST_F(DataSources, sayWhereTheyCannotBeWritten)
{
    qputenv("ODBCINI", machine().path(QStringLiteral("nowhere/odbc.ini")).toUtf8());
    const auto error = test::errorOf([] {
        writeDataSource({QStringLiteral("MonKalo"), QStringLiteral("SQLite3"), {}});
        return 0;
    });
    EXPECT_EQ(error.number(), ErrorNumber::PathFileAccess);
    EXPECT_TRUE(error.activity().contains(QStringLiteral("MonKalo")));
}
