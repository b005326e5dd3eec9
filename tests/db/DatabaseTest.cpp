#include "db/Database.h"

#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;

namespace
{

class ADatabase : public test::OnBothDatabases
{
};

} // namespace

TEST_P(ADatabase, isOpenUntilItIsClosed)
{
    Database opened(database().usesMySql());
    EXPECT_THROW(static_cast<void>(opened.Db()), runtime::RunTimeError);
    opened.open(database().connectString());
    EXPECT_EQ(opened.Db().open(QStringLiteral("select 7")).first().field(0).toInt32(), 7);
    opened.close();
    EXPECT_EQ(test::errorNumberOf([&] { static_cast<void>(opened.Db()); }),
              runtime::ErrorNumber::DatabaseFailure);
}

TEST_P(ADatabase, hasTheDialectThatTheDriverCallsForOnceItIsOpen)
{
    Database opened(false);
    const QDate date(2026, 10, 5);
    EXPECT_EQ(opened.dialect().dateLiteral(date), QStringLiteral("#10/05/26#"));
    opened.open(database().connectString());
    EXPECT_EQ(opened.dialect().dateLiteral(date), database().usesMySql()
                                                      ? QStringLiteral("'2026/10/05'")
                                                      : QStringLiteral("#10/05/26#"));
    opened.close();
    EXPECT_EQ(opened.dialect().dateLiteral(date), QStringLiteral("#10/05/26#"));
}

TEMPORA_ON_BOTH_DATABASES(ADatabase);

TEST(ADatabaseThatIsNotOpen, hasTheDialectOfTheSetting)
{
    Database database;
    EXPECT_EQ(database.dialect().SqlDateFormat(), QStringLiteral("mm/dd/yy"));
    database.setUseMySql(true);
    EXPECT_EQ(database.dialect().SqlDateFormat(), QStringLiteral("yyyy/mm/dd"));
    database.setUseMySql(false);
    EXPECT_EQ(database.dialect().SqlDateDelimiter(), QStringLiteral("#"));
    EXPECT_EQ(Database(true).dialect().SqlDateDelimiter(), QStringLiteral("'"));
}
