// The registry's own: unlike a file it cannot be put aside, so that the source has a name of the
// test's own and is taken away again.

#include "db/DataSources.h"
#include "db/OdbcInstaller.h"
#include "support/RuntimeMatchers.h"

#include <QSettings>

using namespace db;

namespace
{

const QString kSqlite = QStringLiteral("SQLite3");

class ADataSourceOfWindows : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!installedDrivers().contains(kSqlite)) {
            GTEST_SKIP() << "a driver called SQLite3 is not installed";
        }
    }
    ~ADataSourceOfWindows() override
    {
        QSettings sources(QStringLiteral("HKEY_CURRENT_USER\\Software\\ODBC\\ODBC.INI"),
                          QSettings::NativeFormat);
        for (const QString& one : {name, copy()}) {
            sources.remove(one);
            sources.remove(QStringLiteral("ODBC Data Sources/") + one);
        }
    }

    [[nodiscard]] QString copy() const { return name + QString(kCopyEnding); }

    const QString name = QStringLiteral("Tempora à l’essai");
};

} // namespace

TEST_F(ADataSourceOfWindows, isWrittenWithItsDriverAndWords)
{
    const QString file = QStringLiteral("C:\\École\\d'été.sqlite");
    writeDataSource({name, kSqlite, {{QStringLiteral("Database"), file}}});
    EXPECT_EQ(wordOf(name, QStringLiteral("Database")), file);
    EXPECT_EQ(wordOf(name, QStringLiteral("Server")), QString());
    EXPECT_EQ(usersFile(), QString());
}

TEST_F(ADataSourceOfWindows, givesWayToOneOfItsName)
{
    writeDataSource(
        {name, kSqlite, {{QStringLiteral("Database"), QStringLiteral("C:\\a.sqlite")}}});
    writeDataSource({name,
                     kSqlite,
                     {{QStringLiteral("Database"), QStringLiteral("C:\\b.sqlite")},
                      {QStringLiteral("Timeout"), QString()}}});
    EXPECT_EQ(wordOf(name, QStringLiteral("Database")), QStringLiteral("C:\\b.sqlite"));
    EXPECT_EQ(wordOf(name, QStringLiteral("Timeout")), QString());
}

TEST_F(ADataSourceOfWindows, leavesACopyOfTheFirstOne)
{
    for (const char* file : {"C:\\a.sqlite", "C:\\b.sqlite", "C:\\c.sqlite"}) {
        writeDataSource({name, kSqlite, {{QStringLiteral("Database"), QString::fromLatin1(file)}}});
    }
    EXPECT_EQ(wordOf(name, QStringLiteral("Database")), QStringLiteral("C:\\c.sqlite"));
    EXPECT_EQ(wordOf(copy(), QStringLiteral("Database")), QStringLiteral("C:\\a.sqlite"));
}

TEST_F(ADataSourceOfWindows, takesNoValueOfSeveralLines)
{
    const auto error = test::errorOf([this] {
        writeDataSource(
            {name, kSqlite, {{QStringLiteral("Database"), QStringLiteral("a\r\nDriver=evil")}}});
        return 0;
    });
    EXPECT_EQ(error.number(), runtime::ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(wordOf(name, QStringLiteral("Database")), QString());
}
