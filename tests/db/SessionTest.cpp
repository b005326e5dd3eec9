#include "db/Session.h"

#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;

namespace
{

class ASession : public test::OnBothDatabases
{
protected:
    [[nodiscard]] Session& session()
    {
        if (!m_session) {
            m_session.emplace(database().connectString(), SqlDialect(database().usesMySql()));
        }
        return *m_session;
    }

private:
    std::optional<Session> m_session;
};

} // namespace

TEST_P(ASession, countsWhatItSends)
{
    EXPECT_EQ(session().statementCount(), 0);
    EXPECT_EQ(session().open(QStringLiteral("select 7")).first().field(0).toInt32(), 7);
    EXPECT_TRUE(session().executed(QStringLiteral("select 7")).fetch());
    StatementHandle statement = session().newStatement();
    EXPECT_EQ(session().statementCount(), 2);
    session().send(statement, QStringLiteral("select 7"));
    session().countStatement();
    EXPECT_EQ(session().statementCount(), 4);
}

TEST_P(ASession, countsARefusedStatementToo)
{
    EXPECT_THROW(static_cast<void>(session().executed(QStringLiteral("selec"))),
                 runtime::RunTimeError);
    EXPECT_EQ(session().statementCount(), 1);
}

TEST_P(ASession, sendsStatementsInTheProductsWords)
{
    database().execute({QStringLiteral("create table t (a text, b date)"),
                        QStringLiteral("insert into t values (null, '2007-03-15')")});
    const QString sql = QStringLiteral("select * from t where ISNULL(a) and b=") +
                        session().dialect().dateLiteral({2007, 3, 15});
    EXPECT_EQ(session().open(sql).recordCount(), 1);
}

TEST_P(ASession, putsNamesBetweenTheDriversQuotes)
{
    const QString quote = database().usesMySql() ? QStringLiteral("`") : QStringLiteral("\"");
    EXPECT_EQ(session().quoted(QStringLiteral("la table")), quote + "la table" + quote);
    EXPECT_EQ(session().quoted(u'a' + quote), quote + u'a' + quote + quote + quote);
}

TEMPORA_ON_BOTH_DATABASES(ASession);
