#include "db/JoinedQueries.h"

#include "db/Session.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;

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

    /// The rows of each query's `b`, joined by a comma, and the statements that it took.
    QStringList open(const QStringList& queries, int statements = 1)
    {
        Session session(database().connectString(), SqlDialect(database().usesMySql()));
        QStringList texts;
        for (const Recordset& rows : openJoined(queries, session)) {
            QStringList names;
            for (const Row& row : rows.rows()) {
                names << row.field(QStringLiteral("b")).toText();
            }
            texts << names.join(u',');
        }
        EXPECT_EQ(session.statementCount(), statements);
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
    EXPECT_EQ(open({}, 0), QStringList());
}

TEST_P(JoinedQueries, areSeveralStatementsBeyondTheMostThatADatabaseJoins)
{
    const QStringList queries = QStringList(450, "t.* from t where a = 1") +
                                QStringList({"t.* from t where a = 3", "t.* from t where a = 2"});
    EXPECT_EQ(open(queries, 2), QStringList(450, "one") + QStringList({"", "two,zwei"}));
}

TEST_P(JoinedQueries, failTogether)
{
    EXPECT_EQ(test::errorNumberOf([this] {
                  open({"t.* from t where a = 2", "t.* from t where nowhere = 3"});
              }),
              runtime::ErrorNumber::StatementRefused);
}

TEMPORA_ON_BOTH_DATABASES(JoinedQueries);
