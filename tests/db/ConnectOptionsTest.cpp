#include "db/ConnectOptions.h"

#include "support/RuntimeMatchers.h"

using namespace db;

namespace
{

QStringList passwords(const char* connectString)
{
    return passwordsIn(QString::fromUtf8(connectString));
}

} // namespace

TEST(ServerTimeouts, areAddedForMySqlsDriverWhateverItsName)
{
    const QString limits = QStringLiteral(";CONN_TIMEOUT=15;READ_TIMEOUT=10;WRITE_TIMEOUT=10");
    for (const char* text : {"DRIVER={MySQL ODBC 3.51 Driver};SERVER=a;port=3306OPTION=35",
                             "SERVER=a;driver = {MariaDB Unicode}"}) {
        const QString connectString = QString::fromUtf8(text);
        EXPECT_EQ(withServerTimeouts(connectString), connectString + limits);
    }
}

TEST(ServerTimeouts, areNotAddedForAnyOtherDriver)
{
    for (const char* text :
         {"DSN=MonKalo", "DSN=MySQL", "DRIVER={SQLite3};Database=mysql.db", ""}) {
        EXPECT_EQ(withServerTimeouts(QString::fromUtf8(text)), QString::fromUtf8(text));
    }
}

TEST(TheLockTimeout, isAdded)
{
    EXPECT_EQ(withLockTimeout(QStringLiteral("DSN=MonKalo")),
              QStringLiteral("DSN=MonKalo;Timeout=1000"));
}

TEST(Passwords, areFoundUnderBothNamesInAnyCase)
{
    EXPECT_EQ(passwords("DSN=x;PASSWORD=secret;port=3"), QStringList({QStringLiteral("secret")}));
    EXPECT_EQ(passwords("Pwd=secret"), QStringList({QStringLiteral("secret")}));
    EXPECT_EQ(passwords("DSN=x; password = secret;"), QStringList({QStringLiteral("secret")}));
}

TEST(Passwords, areFoundWholeAndAsTheDriverReadsThem)
{
    EXPECT_EQ(passwords("USER=u;PASSWORD=a;bcd;port=3306OPTION=35"),
              QStringList({QStringLiteral("a;bcd"), QStringLiteral("a")}));
    EXPECT_EQ(passwords("PWD={a;b};port=1"),
              QStringList({QStringLiteral("{a;b}"), QStringLiteral("a;b")}));
}

TEST(Passwords, areNotFoundWhereThereIsNone)
{
    EXPECT_EQ(passwords("DSN=MonKalo"), QStringList());
    EXPECT_EQ(passwords("SERVER=;DATABASE=;USER=;PASSWORD=;port=3306OPTION=35"), QStringList());
}

TEST(Passwords, areTakenOutOfATextWhereverTheyStand)
{
    EXPECT_EQ(
        withoutPasswords(QStringLiteral("secret: no secret for 'u'"), {QStringLiteral("secret")}),
        QStringLiteral("***: no *** for 'u'"));
    EXPECT_EQ(withoutPasswords(QStringLiteral("a;b"), {QStringLiteral("a;b"), QStringLiteral("a")}),
              QStringLiteral("***"));
}
