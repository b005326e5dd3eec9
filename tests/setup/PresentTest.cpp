#include "setup/Present.h"

#include "db/DataSources.h"
#include "setup/Registration.h"
#include "support/OwnDataSources.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace setup;

namespace
{

/// What is set up on a machine of the test's own.
class ThePresent : public testing::Test
{
protected:
    [[nodiscard]] QString folder() const { return m_machine.path("program"); }
    [[nodiscard]] shell::Settings settings() const
    {
        return shell::Settings::fromFile(m_machine.path("réglages.ini"));
    }
    [[nodiscard]] Present present() const
    {
        return presentOf(settings(), {folder(), m_machine.path("etc")});
    }
    void set(const QString& key, const QString& value) const { settings().save(key, value); }
    /// A server's file in `app_data` of that folder.
    void describe(const Server& server, const QString& folder) const
    {
        QDir().mkpath(m_machine.path(folder + "/app_data"));
        m_machine.write(folder + "/app_data/SaKalo.php", phpFileOf(server));
    }

private:
    test::OwnDataSources m_machine;
};

const Server kServer{"db1", "3310", "kalo", "secret", "sa"};

} // namespace

TEST_F(ThePresent, isNothingAtFirst)
{
    EXPECT_EQ(present().words, "");
    EXPECT_FALSE(present().source.has_value());
}

TEST_F(ThePresent, isAFile)
{
    db::writeDataSource({"MonKalo", "SQLite3", {{"Database", "/srv/école.sqlite"}}});
    EXPECT_EQ(present().words, "Fichier SQLite /srv/école.sqlite");
    ASSERT_TRUE(present().source.has_value());
    EXPECT_EQ(present().source->kind, SourceKind::SqliteFile);
    EXPECT_EQ(present().source->file, "/srv/école.sqlite");
}

TEST_F(ThePresent, isAServerWithItsAccount)
{
    db::writeDataSource({"MonKalo",
                         "MariaDB Unicode",
                         {{"Server", "db1"},
                          {"Port", "3310"},
                          {"Database", "sa"},
                          {"User", "kalo"},
                          {"Password", "secret"}}});
    EXPECT_EQ(present().words, "Serveur db1");
    ASSERT_TRUE(present().source.has_value());
    EXPECT_EQ(present().source->kind, SourceKind::Server);
    EXPECT_EQ(present().source->server, kServer);
}

TEST_F(ThePresent, readsTheOtherNamesThatDriversKnow)
{
    db::writeDataSource({"Ailleurs",
                         "MySQL ODBC 8.0",
                         {{"Server", "db2"}, {"UID", "lire"}, {"PWD", "mot"}, {"Database", "sa"}}});
    set("Base", " Ailleurs ");
    ASSERT_TRUE(present().source.has_value());
    EXPECT_EQ(present().source->server, (Server{"db2", "3306", "lire", "mot", "sa"}));
}

TEST_F(ThePresent, isAnAccessFile)
{
    db::writeDataSource({"MonKalo", "Microsoft Access Driver (*.mdb)", {{"DBQ", "C:/Kalo.mdb"}}});
    EXPECT_EQ(present().words, "Base Access C:/Kalo.mdb");
    ASSERT_TRUE(present().source.has_value());
    EXPECT_EQ(present().source->kind, SourceKind::Access);
    EXPECT_EQ(present().source->file, "C:/Kalo.mdb");
}

TEST_F(ThePresent, namesADataSourceThatItKnowsNoMoreOf)
{
    set("Base", "Other"); // the machine's own, which has a driver and a server
    EXPECT_EQ(present().words, "Serveur far");
    db::writeDataSource({"Bare", "Oracle", {}});
    set("Base", "Bare");
    EXPECT_EQ(present().words, "Source de données « Bare »");
    EXPECT_FALSE(present().source.has_value());
}

TEST_F(ThePresent, isTheServerThatAFileBesideTheProgramDescribes)
{
    set("Mysql", "Vrai");
    EXPECT_EQ(present().words, "Serveur MariaDB ou MySQL, fichier app_data/SaKalo.php");
    EXPECT_FALSE(present().source.has_value()); // there is no such file
    describe(kServer, "program");
    ASSERT_TRUE(present().source.has_value());
    EXPECT_EQ(present().source->kind, SourceKind::Server);
    EXPECT_EQ(present().source->server, kServer);
}

TEST_F(ThePresent, isTheServerThatTheMachinesFileDescribes)
{
    set("Mysql", "True");
    describe(kServer, "etc");
    ASSERT_TRUE(present().source.has_value());
    EXPECT_EQ(present().source->server, kServer);
}
