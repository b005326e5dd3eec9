#include "db/ConnectOptions.h"

#include "support/RuntimeMatchers.h"

using namespace db;

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
