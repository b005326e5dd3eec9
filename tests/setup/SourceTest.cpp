#include "setup/Source.h"

#include "setup/DriverAdvice.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace setup;

namespace
{

const QStringList kDrivers{"SQLite", "SQLite3", "MySQL ODBC 8.0", "MariaDB Unicode"};

Source serverAt(const QString& host)
{
    Source source;
    source.kind = SourceKind::Server;
    source.server = {host, "3306", "kalo", "s;cr}t", "faculte"};
    return source;
}

Source fileAt(const QString& path)
{
    return {SourceKind::SqliteFile, path, {}};
}

} // namespace

TEST(ASource, takesTheBestOfTheInstalledDrivers)
{
    EXPECT_EQ(driverFor(SourceKind::Demo, kDrivers), "SQLite3"); // "SQLite" reads version 2
    EXPECT_EQ(driverFor(SourceKind::SqliteFile, kDrivers), "SQLite3");
    EXPECT_EQ(driverFor(SourceKind::Server, kDrivers), "MariaDB Unicode");
    EXPECT_EQ(driverFor(SourceKind::Server, {"MySQL ODBC 8.0"}), "MySQL ODBC 8.0");
    EXPECT_EQ(driverFor(SourceKind::Access, {"Microsoft Access Driver (*.mdb)"}),
              "Microsoft Access Driver (*.mdb)");
    EXPECT_EQ(driverFor(SourceKind::Access, kDrivers), "");
}

TEST(ASource, isOpenedByItsFile)
{
    EXPECT_EQ(connectStringOf(fileAt("/home/école/emploi.sqlite"), "SQLite3"),
              "DRIVER={SQLite3};Database=/home/école/emploi.sqlite");
    EXPECT_EQ(connectStringOf({SourceKind::Access, "C:/Kalo.mdb", {}}, "Access (*.mdb)"),
              "DRIVER={Access (*.mdb)};DBQ=C:/Kalo.mdb");
}

TEST(ASource, isOpenedOnItsServerWhateverThePasswordHolds)
{
    EXPECT_EQ(connectStringOf(serverAt(" db1 "), "MariaDB Unicode"),
              "DRIVER={MariaDB Unicode};SERVER={db1};PORT=3306;DATABASE={faculte};UID={kalo};"
              "PWD={s;cr}}t}");
}

TEST(ASource, saysWhatItLacks)
{
    EXPECT_EQ(missingIn(serverAt("db1"), "MariaDB"), "");
    EXPECT_EQ(missingIn(serverAt(" "), "MariaDB"), "Indiquez le nom ou l’adresse du serveur.");
    Source server = serverAt("db1");
    server.server.port = "70000";
    EXPECT_TRUE(missingIn(server, "MariaDB").startsWith("Le port est un nombre"));
    server = serverAt("db1");
    server.server.login.clear();
    EXPECT_TRUE(missingIn(server, "MariaDB").startsWith("Indiquez le compte"));
    server = serverAt("db1");
    server.server.base = " ";
    EXPECT_TRUE(missingIn(server, "MariaDB").startsWith("Indiquez le nom de la base"));
    EXPECT_TRUE(missingIn(fileAt(""), "SQLite3").startsWith("Choisissez le fichier"));
    EXPECT_TRUE(missingIn(fileAt("/nowhere.sqlite"), "SQLite3").contains("n’existe pas"));
    EXPECT_TRUE(missingIn(fileAt(test::processFolder()), "SQLite3").contains("n’existe pas"));
    const QString twoParts = test::processFolder() + "/a;b.sqlite";
    test::writeFile(twoParts, "");
    EXPECT_TRUE(missingIn(fileAt(twoParts), "SQLite3").startsWith("Un point-virgule"));
    EXPECT_EQ(missingIn({SourceKind::Demo, {}, {}}, "SQLite3"), "");
}

TEST(ASource, saysWhichDriverItLacksAndHowToGetIt)
{
    EXPECT_EQ(missingIn(serverAt("db1"), ""),
              "Le pilote ODBC de MariaDB n’est pas installé sur ce poste. " +
                  howToGetDriver(SourceKind::Server));
    EXPECT_EQ(missingIn(fileAt(""), ""),
              "Le pilote ODBC de SQLite n’est pas installé sur ce poste. " +
                  howToGetDriver(SourceKind::SqliteFile));
    EXPECT_TRUE(missingIn({SourceKind::Access, "C:/Kalo.mdb", {}}, "")
                    .startsWith("Le pilote ODBC d’Access n’est pas installé sur ce poste. "));
}
