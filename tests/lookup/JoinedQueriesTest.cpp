#include "lookup/JoinedQueries.h"

#include "support/TestDatabase.h"

using namespace lookup;

namespace
{

class JoinedQueries : public test::OnBothDatabases
{
protected:
    void SetUp() override
    {
        database().execute({"create table t (a integer, b varchar(9))",
                            "insert into t values (1, 'one'), (2, 'two'), (2, 'zwei')"});
    }

    /// The rows of each query's `b`, joined by a comma.
    QStringList open(const QStringList& queries)
    {
        db::Connection connection(database().connectString());
        QStringList texts;
        for (const db::Recordset& rows : openJoined(connection, queries)) {
            QStringList names;
            for (const db::Row& row : rows.rows()) {
                names << row.field(QStringLiteral("b")).toText();
            }
            texts << names.join(u',');
        }
        return texts;
    }
};

} // namespace

TEST_P(JoinedQueries, giveEachItsOwnRows)
{
    EXPECT_EQ(open({"t.* from t where a = 2", "t.* from t where a = 3", "t.* from t where a = 1"}),
              QStringList({"two,zwei", "", "one"}));
}

TEST_P(JoinedQueries, areNoStatementAtAllWhenThereAreNone)
{
    db::Connection connection(database().connectString());
    const long long before = connection.statementCount();
    EXPECT_TRUE(openJoined(connection, {}).empty());
    EXPECT_EQ(connection.statementCount(), before);
}

TEST_P(JoinedQueries, leaveOutWhatIsBeyondTheMostThatADatabaseJoins)
{
    EXPECT_EQ(open(QStringList(451, "t.* from t where a = 1")), QStringList(450, "one"));
}

TEMPORA_ON_BOTH_DATABASES(JoinedQueries);
