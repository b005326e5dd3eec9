#include "db/BoundColumns.h"

#include "db/ResultReader.h"
#include "db/Session.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

#include <optional>

using namespace db;

namespace
{

class BoundPlaces : public test::OnBothDatabases
{
protected:
    /// A table of one column with these values, as SQL.
    [[nodiscard]] StatementHandle rowsOf(const QString& type, const QStringList& values)
    {
        QStringList statements{QStringLiteral("create table t (n integer, a ") + type + u')'};
        for (qsizetype n = 0; n < values.size(); ++n) {
            statements << QStringLiteral("insert into t values (%1, ").arg(n) + values[n] + u')';
        }
        database().execute(statements);
        m_session.emplace(database().connectString(), SqlDialect(database().usesMySql()));
        return m_session->executed(QStringLiteral("select a from t order by n"));
    }
    /// As texts are read from this database.
    [[nodiscard]] FieldForm text() const
    {
        return {SQL_VARCHAR, m_session->product().cTypeOf(SQL_VARCHAR)};
    }

private:
    std::optional<Session> m_session;
};

FetchedFields fieldsOf(const FieldForm& form)
{
    return FetchedFields(std::make_shared<const Columns>(QStringList{QStringLiteral("a")}), {form});
}

} // namespace

TEST_P(BoundPlaces, receiveEachRowThatIsFetched)
{
    StatementHandle statement = rowsOf("varchar(20)", {"'é€😀'", "null", "''", "'x'"});
    const BoundColumns bound(statement, {text()});
    FetchedFields fields = fieldsOf(text());
    while (statement.fetch()) {
        EXPECT_TRUE(bound.take(0, fields));
    }
    EXPECT_EQ(fields.value(0, 0), Value(QStringLiteral("é€😀")));
    EXPECT_TRUE(fields.value(1, 0).isNull());
    EXPECT_EQ(fields.value(2, 0), Value(QStringLiteral("")));
    EXPECT_EQ(fields.value(3, 0), Value(QStringLiteral("x")));
}

TEST_P(BoundPlaces, holdNoFieldThatIsLongerThanThey)
{
    // A place has 256 bytes; one of them may be needed to end the text.
    StatementHandle statement =
        rowsOf("varchar(300)",
               {u'\'' + QString(255, u'x') + u'\'', u'\'' + QString(257, u'x') + u'\'', "'short'"});
    const BoundColumns bound(statement, {text()});
    FetchedFields fields = fieldsOf(text());
    ASSERT_TRUE(statement.fetch());
    EXPECT_TRUE(bound.take(0, fields));
    ASSERT_TRUE(statement.fetch());
    EXPECT_FALSE(bound.take(0, fields));
    ASSERT_TRUE(statement.fetch());
    EXPECT_TRUE(bound.take(0, fields));
    EXPECT_EQ(fields.value(0, 0), Value(QString(255, u'x')));
    EXPECT_EQ(fields.value(1, 0), Value(QStringLiteral("short"))); // nothing of the long one
}

TEST_P(BoundPlaces, areNotThereForBitsAndUtf16)
{
    StatementHandle statement = rowsOf("varchar(20)", {"'1'"});
    for (const FieldForm form :
         {FieldForm{SQL_BIT, SQL_C_BIT}, FieldForm{SQL_WVARCHAR, SQL_C_WCHAR}}) {
        const BoundColumns bound(statement, {form});
        FetchedFields fields = fieldsOf(form);
        EXPECT_FALSE(bound.take(0, fields));
    }
    EXPECT_TRUE(statement.fetch());
}

TEST_P(BoundPlaces, areGivenUpAtTheEnd)
{
    StatementHandle statement = rowsOf("varchar(20)", {"'one'", "'two'"});
    {
        const BoundColumns bound(statement, {text()});
        ASSERT_TRUE(statement.fetch());
    }
    ASSERT_TRUE(statement.fetch());
    EXPECT_EQ(ResultReader(statement).readText(1), Value(QStringLiteral("two")));
}

TEMPORA_ON_BOTH_DATABASES(BoundPlaces);
