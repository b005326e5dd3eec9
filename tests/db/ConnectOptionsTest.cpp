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

TEST(AConnectionString, namesADriverOrADataSource)
{
    EXPECT_EQ(driverIn(QStringLiteral("DRIVER={MySQL ODBC 3.51 Driver};SERVER=a")),
              QStringLiteral("MySQL ODBC 3.51 Driver"));
    EXPECT_EQ(driverIn(QStringLiteral("SERVER=a; driver = SQLite3 ;x=y")),
              QStringLiteral("SQLite3"));
    EXPECT_EQ(driverIn(QStringLiteral("DSN=MonKalo")), QString());
    EXPECT_EQ(dataSourceIn(QStringLiteral("dsn=Mon Kalo;UID=x")), QStringLiteral("Mon Kalo"));
    EXPECT_EQ(dataSourceIn(QStringLiteral("DSN=")), QString());
    EXPECT_EQ(dataSourceIn(QStringLiteral("SERVER=a;NODSN=b")), QString());
}

TEST(ServerTimeouts, areAddedForMySqlsDriverWhateverItsName)
{
    const QString limits = QStringLiteral(";CONN_TIMEOUT=15;READ_TIMEOUT=10;WRITE_TIMEOUT=10");
    for (const char* driver :
         {"MySQL ODBC 3.51 Driver", "MariaDB Unicode", "/usr/lib/libmaodbc.so"}) {
        EXPECT_EQ(withLimits(QStringLiteral("SERVER=a"), QString::fromUtf8(driver)),
                  QStringLiteral("SERVER=a") + limits);
    }
}

TEST(Limits, areThoseOfAFileForSqlitesDriverWhateverItsName)
{
    const QString limited = QStringLiteral("DSN=MonKalo;Timeout=1000;NoCreat=1");
    EXPECT_EQ(withFileLimits(QStringLiteral("DSN=MonKalo")), limited);
    for (const char* driver :
         {"SQLite3", "/usr/lib/odbc/libsqlite3odbc.so", "SQLite3 ODBC Driver"}) {
        EXPECT_EQ(withLimits(QStringLiteral("DSN=MonKalo"), QString::fromUtf8(driver)), limited);
    }
}

TEST(Limits, areNotAddedForAnyOtherDriver)
{
    for (const char* driver : {"Microsoft Access Driver (*.mdb)", "Planning", ""}) {
        EXPECT_EQ(withLimits(QStringLiteral("DSN=MonKalo"), QString::fromUtf8(driver)),
                  QStringLiteral("DSN=MonKalo"));
    }
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
