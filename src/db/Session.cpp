#include "db/Session.h"

#include "db/Repeated.h"
#include "db/ResultReader.h"

#include <utility>

namespace db
{

Session::Session(const QString& connectString, const SqlDialect& bySetting, Await await)
    : m_connection(m_environment, connectString, std::move(await)),
      m_dialect(product().dialect(bySetting))
{
}

void Session::send(StatementHandle& statement, const QString& sql)
{
    sendAsItIs(statement, product().adapted(sql));
}

void Session::sendAsItIs(StatementHandle& statement, const QString& sql)
{
    againWhile({Failure::RolledBack}, [&] {
        ++m_statementCount;
        statement.execute(sql);
    });
}

void Session::prepareToWrite()
{
    if (!std::exchange(m_isReadyToWrite, true)) {
        product().beforeWriting(*this);
    }
}

StatementHandle Session::executed(const QString& sql)
{
    StatementHandle statement = newStatement();
    send(statement, sql);
    return statement;
}

Recordset Session::open(const QString& sql)
{
    StatementHandle statement = executed(sql);
    return ResultReader(statement).readAll();
}

} // namespace db
