#include "setup/Registration.h"

#include "db/ConnectString.h"
#include "db/DataSources.h"
#include "support/OwnDataSources.h"
#include "support/RuntimeMatchers.h"

#include <QDir>
#include <QFileInfo>

using namespace setup;
using runtime::ErrorNumber;

namespace
{

class Registering : public testing::Test
{
protected:
    Registering() { QDir().mkpath(folder()); }

    [[nodiscard]] QString folder() const { return m_machine.path("program"); }
    /// Of a program that no package owns.
    [[nodiscard]] db::ConfigurationFolders folders() const { return {folder(), {}}; }
    [[nodiscard]] shell::Settings settings() const
    {
        return shell::Settings::fromFile(m_machine.path("réglages.ini"));
    }
    [[nodiscard]] const test::OwnDataSources& machine() const { return m_machine; }
    [[nodiscard]] static Source school()
    {
        return {SourceKind::SqliteFile, "/srv/école.sqlite", {}};
    }
    [[nodiscard]] static Source server()
    {
        return {SourceKind::Server, {}, {"db1", "3310", "kalo", "se cr\"et", "sa"}};
    }

private:
    test::OwnDataSources m_machine;
};

const QStringList kOldDriver{"MySQL ODBC 3.51 Driver"};

} // namespace

TEST_F(Registering, makesADataSourceOfAFile)
{
    shell::Settings kept = settings();
    registerSource(school(), routeOf(school(), kOldDriver, folders()), "SQLite3", folder(), kept);
    EXPECT_EQ(db::wordOf("MonKalo", "Database"), "/srv/école.sqlite");
    EXPECT_EQ(settings().get("Base", {}), "MonKalo");
    EXPECT_EQ(settings().get("Mysql", {}), "False");
    EXPECT_FALSE(QFileInfo::exists(folder() + "/app_data"));
}

TEST_F(Registering, describesAServerBesideTheProgramAsTheProgramReadsIt)
{
    shell::Settings kept = settings();
    ASSERT_EQ(routeOf(server(), kOldDriver, folders()), Route::PhpFile);
    registerSource(server(), Route::PhpFile, {}, folder(), kept);
    const QString file = folder() + "/app_data/SaKalo.php";
    const db::PhpConfiguration read = db::readPhpConfiguration(file);
    EXPECT_EQ(read.host, "db1");
    EXPECT_EQ(read.login, "kalo");
    EXPECT_EQ(read.password, "se cr\"et");
    EXPECT_EQ(read.base, "sa");
    EXPECT_EQ(read.port, "3310");
    EXPECT_FALSE(QFileInfo(file).permissions() & QFileDevice::ReadOther);
    EXPECT_EQ(settings().get("Mysql", {}), "True");
    EXPECT_EQ(settings().get("Base_Sql", {}), "SaKalo");
}

TEST_F(Registering, makesADataSourceOfAServerWhereTheProgramsFolderIsNotForWriting)
{
    EXPECT_EQ(routeOf(server(), kOldDriver, {"/nowhere/program", {}}), Route::DataSource);
    EXPECT_EQ(routeOf(server(), {"MariaDB Unicode"}, folders()), Route::DataSource);
    shell::Settings kept = settings();
    registerSource(server(), Route::DataSource, "MariaDB Unicode", folder(), kept);
    EXPECT_EQ(db::wordOf("MonKalo", "Driver"), "MariaDB Unicode");
    EXPECT_EQ(db::wordOf("MonKalo", "Server"), "db1");
    EXPECT_EQ(db::wordOf("MonKalo", "Port"), "3310");
    EXPECT_EQ(db::wordOf("MonKalo", "User"), "kalo");
    EXPECT_EQ(settings().get("Mysql", {}), "False");
}

TEST_F(Registering, makesADataSourceOfAServerWhoseWordsTheProgramCannotPassOn)
{
    for (const char* password : {"se;cret", "se{cret", "se}cret"}) {
        Source source = server();
        source.server.password = password;
        EXPECT_EQ(routeOf(source, kOldDriver, folders()), Route::DataSource) << password;
    }
}

TEST_F(Registering, writesNothingIntoTheFolderOfAPackage)
{
    const QString systems = machine().path("etc");
    EXPECT_EQ(routeOf(server(), kOldDriver, {folder(), systems}), Route::PhpFile); // not there
    QDir().mkpath(systems);
    EXPECT_EQ(routeOf(server(), kOldDriver, {folder(), systems}), Route::DataSource);
}

TEST_F(Registering, tellsTheRouteByTryingAndLeavesNothingBehind)
{
    static_cast<void>(routeOf(server(), kOldDriver, folders()));
    EXPECT_TRUE(QDir(folder()).isEmpty());
    QDir().mkpath(folder() + "/app_data");
    static_cast<void>(routeOf(server(), kOldDriver, folders()));
    EXPECT_TRUE(QDir(folder() + "/app_data").isEmpty());
}

TEST_F(Registering, opensEachRouteByItsDriver)
{
    const QStringList drivers{"MariaDB Unicode", "MySQL ODBC 3.51 Driver", "SQLite3"};
    EXPECT_EQ(driverOn(Route::PhpFile, SourceKind::Server, drivers), "MySQL ODBC 3.51 Driver");
    EXPECT_EQ(driverOn(Route::DataSource, SourceKind::Server, drivers), "MariaDB Unicode");
    EXPECT_EQ(driverOn(Route::DataSource, SourceKind::SqliteFile, drivers), "SQLite3");
}

TEST_F(Registering, takesNoValueOfSeveralLines)
{
    Server server;
    server.host = "db1\";\n$login=\"root";
    EXPECT_EQ(test::errorOf([&] { return phpFileOf(server); }).number(),
              ErrorNumber::InvalidProcedureCall);
}

TEST_F(Registering, savesWhatWasAcceptedAndWhatWasTakenBack)
{
    shell::Settings kept = settings();
    std::vector<Recommendation> all{{"Toutes_Salles", "True", "False", {}, {}, true},
                                    {"Ouvrir_Aujourdhui", "True", "False", {}, {}, false}};
    saveRecommendations(all, kept);
    EXPECT_EQ(settings().get("Toutes_Salles", "none"), "True");
    EXPECT_EQ(settings().get("Ouvrir_Aujourdhui", "none"), "none"); // stands at its default
    all[0].isProposed = false;
    saveRecommendations(all, kept);
    EXPECT_EQ(settings().get("Toutes_Salles", "none"), "False");
}

TEST_F(Registering, saysWhereSettingsCannotBeSaved)
{
    shell::Settings nowhere = shell::Settings::fromFile("/proc/nowhere/réglages.ini");
    EXPECT_EQ(test::errorOf([&] {
                  saveRecommendations({{"Toutes_Salles", "True", "False", {}, {}, true}}, nowhere);
                  return 0;
              }).number(),
              ErrorNumber::PathFileAccess);
}
