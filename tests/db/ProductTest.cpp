#include "db/Product.h"

#include "support/RuntimeMatchers.h"

using namespace db;
using runtime::ErrorNumber;

namespace
{

/// A product that does as ODBC says and nothing else.
class PlainProduct : public Product
{
public:
    bool deleteFirst(const QString& /*sql*/, Session& /*session*/) const override { return false; }
    [[nodiscard]] std::optional<QStringList>
    equalTextsSql(const std::vector<TextQuestion>& /*questions*/,
                  TextColumns /*columns*/) const override
    {
        return QStringList();
    }
    [[nodiscard]] SQLSMALLINT cTypeOf(SQLSMALLINT /*type*/) const override { return SQL_C_WCHAR; }
    [[nodiscard]] Value dateToWrite(QDate date, const ColumnName& /*column*/,
                                    Session& /*session*/) const override
    {
        return Value(date);
    }
};

} // namespace

TEST(AProductWithoutWaysOfItsOwn, isSentWhatTheProgramSays)
{
    const QString sql = QStringLiteral("select * from t where a=#03/15/07# and ISNULL(b)");
    EXPECT_EQ(PlainProduct().adapted(sql), sql);
    EXPECT_EQ(PlainProduct().reconnectString(QStringLiteral("DSN=x")), std::nullopt);
    EXPECT_EQ(PlainProduct().textForm(), TextForm::Utf16);
}

TEST(AProductWithoutWaysOfItsOwn, hasTheDialectOfTheSetting)
{
    EXPECT_EQ(PlainProduct().dialect(SqlDialect(false)).SqlDateDelimiter(), QStringLiteral("#"));
    EXPECT_EQ(PlainProduct().dialect(SqlDialect(true)).SqlDateDelimiter(), QStringLiteral("'"));
}

TEST(AProductWithoutWaysOfItsOwn, failsAsItsStateSays)
{
    EXPECT_EQ(PlainProduct().errorNumberOf({QStringLiteral("08S01"), 1146, QString()}),
              ErrorNumber::DatabaseFailure);
    EXPECT_EQ(PlainProduct().errorNumberOf({QStringLiteral("HY000"), 1146, QString()}),
              ErrorNumber::StatementRefused);
}

TEST(AProductWithoutWaysOfItsOwn, promisesNoOrderOfRows)
{
    EXPECT_FALSE(PlainProduct().joinedQueriesKeepOrder());
    EXPECT_FALSE(PlainProduct().tellsOnlyPaths());
    EXPECT_EQ(PlainProduct().mostJoined(), 450);
}
