#include "db/ResultReader.h"

#include "db/Session.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

#include <optional>

using namespace db;

namespace
{

class AResult : public test::OnBothDatabases
{
protected:
    void SetUp() override
    {
        database().execute({"create table t (n integer, a varchar(20), d date)",
                            "insert into t values (1, 'un', '2026-10-05')",
                            "insert into t values (2, null, null)",
                            "insert into t values (3, 'trois', '2026-10-07')"});
        m_session.emplace(database().connectString(), SqlDialect(database().usesMySql()));
    }

    [[nodiscard]] StatementHandle executed(const QString& sql) { return m_session->executed(sql); }

private:
    std::optional<Session> m_session;
};

} // namespace

TEST_P(AResult, isReadFromTheCurrentPositionOn)
{
    StatementHandle statement = executed("select * from t order by n");
    ASSERT_TRUE(statement.fetch());
    const Recordset rest = ResultReader(statement).readAll();
    ASSERT_EQ(rest.recordCount(), 2);
    EXPECT_EQ(rest.first().field(0), Value(std::int64_t{2}));
    EXPECT_TRUE(rest.first().field(1).isNull());
    EXPECT_EQ(rest.rows()[1].field(QStringLiteral("A")), Value(QStringLiteral("trois")));
    EXPECT_EQ(rest.rows()[1].field(2), Value(QDate(2026, 10, 7)));
}

TEST_P(AResult, isCountedFromTheCurrentPositionOn)
{
    StatementHandle statement = executed("select * from t");
    ASSERT_TRUE(statement.fetch());
    EXPECT_EQ(ResultReader(statement).countRows(), 2);
    EXPECT_EQ(ResultReader(statement).countRows(), 0);
}

TEST_P(AResult, hasNoColumnsWithoutRows)
{
    StatementHandle statement = executed("select * from t where n=4");
    const Recordset none = ResultReader(statement).readAll();
    EXPECT_TRUE(none.isEmpty());
    EXPECT_EQ(none.columns(), nullptr);
}

TEST_P(AResult, tellsTheTypesOfItsColumns)
{
    StatementHandle statement = executed("select * from t where 0 = 1");
    ResultReader reader(statement);
    EXPECT_EQ(reader.columnType(1), SQL_INTEGER);
    EXPECT_EQ(reader.columnType(3), SQL_TYPE_DATE);
}

TEST_P(AResult, givesAFieldAsTextWhateverItsType)
{
    StatementHandle statement = executed("select * from t order by n");
    ASSERT_TRUE(statement.fetch());
    ResultReader first(statement);
    EXPECT_EQ(first.readText(1), Value(QStringLiteral("1")));
    EXPECT_EQ(first.readText(2), Value(QStringLiteral("un")));
    EXPECT_EQ(first.readText(3), Value(QStringLiteral("2026-10-05")));
    ASSERT_TRUE(statement.fetch());
    EXPECT_TRUE(ResultReader(statement).readText(2).isNull());
}

TEMPORA_ON_BOTH_DATABASES(AResult);
