#include "db/ConnectFault.h"

#include "db/Connection.h"
#include "support/MariaDbServer.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;

namespace
{

QString words(const char* state, int code, const char* text = "")
{
    return connectFaultWords({state, code, text}, {});
}

QString explanationOf(const QString& connectString)
{
    return test::errorOf([&] { const Connection connection(connectString); }).explanation();
}

} // namespace

TEST(AConnectFault, isToldInWordsOfWhoIsToMendIt)
{
    EXPECT_EQ(words("IM002", 0), "la source de données ODBC n’existe pas sur cet ordinateur");
    EXPECT_EQ(connectFaultWords({"IM002", 0, {}}, "MySQL ODBC 3.51 Driver"),
              "le pilote ODBC de la base de données ne se charge pas");
    EXPECT_EQ(words("IM003", 160), "le pilote ODBC de la base de données ne se charge pas");
    EXPECT_EQ(words("01000", 0, "[unixODBC][Driver Manager]Can't open lib 'x' : file not found"),
              "le pilote ODBC de la base de données ne se charge pas");
    EXPECT_EQ(words("28000", 0), "le serveur refuse le nom d’utilisateur ou le mot de passe");
    EXPECT_EQ(words("HY000", 1045), "le serveur refuse le nom d’utilisateur ou le mot de passe");
    EXPECT_EQ(words("42000", 1044), "ce compte n’a pas le droit d’ouvrir la base de données");
    EXPECT_EQ(words("42000", 1049), "le serveur n’a pas de base de données de ce nom");
    EXPECT_EQ(words("08004", 1040), "le serveur a déjà trop de connexions");
    EXPECT_EQ(words("HY000", 2002), "le serveur de la base de données ne répond pas");
    EXPECT_EQ(words("HY000", 14), "la base de données ne s’ouvre pas");
}

TEST(AConnectFault, explainsTheErrorThatItRaises)
{
    EXPECT_EQ(explanationOf("DSN=Nulle Part"),
              "La source de données ODBC n’existe pas sur cet ordinateur.");
    EXPECT_EQ(explanationOf("DRIVER=/nulle/part.so"),
              "Le pilote ODBC de la base de données ne se charge pas.");
    EXPECT_EQ(explanationOf("DSN="), "La base de données ne s’ouvre pas.");
}

TEST(AConnectFault, isToldOfARealServer)
{
    const test::TestDatabase database(test::DatabaseKind::MariaDb);
    const QString connectString = database.connectString();
    QString strange = connectString;
    strange.replace(database.baseName(), "nullepart", Qt::CaseInsensitive);
    ASSERT_NE(strange, connectString);
    EXPECT_TRUE(QStringList({"Le serveur n’a pas de base de données de ce nom.",
                             "Ce compte n’a pas le droit d’ouvrir la base de données."})
                    .contains(explanationOf(strange)))
        << explanationOf(strange).toStdString();
    EXPECT_EQ(explanationOf(connectString + ";PWD=faux;UID=personne"),
              "Le serveur refuse le nom d’utilisateur ou le mot de passe.");
}
