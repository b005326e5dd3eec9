#include "db/ParameterSet.h"

#include "db/Session.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

#include <limits>

using namespace db;

namespace
{

class AParameter : public test::OnBothDatabases
{
protected:
    /// What a column of the type holds after this value was sent for it.
    [[nodiscard]] QString stored(const QString& type, const Value& value)
    {
        database().execute({"drop table if exists t", "create table t (a " + type + ')'});
        Session session(database().connectString(), SqlDialect(database().usesMySql()));
        StatementHandle statement = session.newStatement();
        ParameterSet parameters(statement);
        parameters.bind(value);
        statement.execute(QStringLiteral("insert into t values (?)"));
        // A client shows a set bit as a raw byte.
        const QString column = type == QLatin1String("bit") ? "a+0" : "a";
        return database().read("select " + column + " from t")[0][0];
    }
};

Value wholeNumber(std::int64_t value)
{
    return Value(value);
}

} // namespace

TEST_P(AParameter, bringsATextAsItIs)
{
    for (const char* text : {"", "L'été 😀", " a\tb ", "?", "10/05/26"}) {
        EXPECT_EQ(stored("varchar(50)", Value(QString::fromUtf8(text))), QString::fromUtf8(text));
    }
}

TEST_P(AParameter, bringsIntegersOf32AndOf64Bits)
{
    for (const std::int64_t number :
         {std::int64_t{0}, std::int64_t{2147483647}, std::int64_t{2147483648},
          std::int64_t{-2147483648}, std::int64_t{-2147483649},
          std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
        EXPECT_EQ(stored("bigint", wholeNumber(number)), QString::number(number));
    }
}

TEST_P(AParameter, bringsFractionsAndFlags)
{
    EXPECT_EQ(stored("double", Value(-1.5)), QStringLiteral("-1.5"));
    EXPECT_EQ(stored("bit", Value(true)), QStringLiteral("1"));
    EXPECT_EQ(stored("bit", Value(false)), QStringLiteral("0"));
}

TEST_P(AParameter, bringsNullToEveryType)
{
    for (const char* type : {"varchar(50)", "bigint", "double", "date"}) {
        EXPECT_EQ(stored(type, Value()), QStringLiteral("NULL")) << type;
        EXPECT_EQ(stored(type, Value(QDate())), QStringLiteral("NULL")) << type;
    }
}

TEST_P(AParameter, bringsADateAsItsMidnight)
{
    EXPECT_EQ(stored("datetime", Value(QDate(2026, 10, 5))).left(19),
              QStringLiteral("2026-10-05 00:00:00"));
}

TEMPORA_ON_BOTH_DATABASES(AParameter);
