#include "db/Connection.h"

#include "db/EqualTexts.h"
#include "db/JoinedQueries.h"
#include "db/ParameterSet.h"
#include "db/Repeated.h"
#include "db/ResultReader.h"
#include "db/Session.h"

namespace db
{

Connection::Connection(const QString& connectString, const SqlDialect& bySetting, Await await)
    : m_session(std::make_unique<Session>(connectString, bySetting, std::move(await)))
{
}

Connection::~Connection() = default;
Connection::Connection(Connection&&) noexcept = default;
Connection& Connection::operator=(Connection&&) noexcept = default;

Session& Connection::session() const
{
    if (!m_session) {
        throw DatabaseError(Failure::Unreachable, runtime::ErrorNumber::DatabaseFailure,
                            QStringLiteral("Operation is not allowed when the object is closed."));
    }
    return *m_session;
}

SqlDialect Connection::dialect() const
{
    return session().dialect();
}

Recordset Connection::open(const QString& sql)
{
    return session().open(sql);
}

int Connection::recordCount(const QString& sql)
{
    StatementHandle statement = session().executed(sql);
    return ResultReader(statement).countRows();
}

std::vector<Recordset> Connection::openJoined(const QStringList& queries)
{
    return db::openJoined(queries, session());
}

RowOrder Connection::joinedRowOrder() const
{
    return session().queryPlans().joinedRowOrder();
}

std::vector<RowOrder> Connection::rowOrders(const std::vector<WideQuery>& queries)
{
    return session().queryPlans().rowOrders(queries);
}

std::vector<TextGroups> Connection::equalTexts(const std::vector<TextQuestion>& questions)
{
    return db::equalTexts(questions, session());
}

std::vector<std::vector<TextCount>>
Connection::countTexts(const std::vector<CountQuestion>& questions, const QStringList& texts)
{
    return db::countTexts(questions, texts, session());
}

std::optional<Packing> Connection::packing() const
{
    return session().product().packing();
}

QString Connection::metByMost(const QString& condition) const
{
    return session().product().metByMost(condition);
}

void Connection::execute(const QString& sql)
{
    static_cast<void>(session().executed(sql));
}

Value Connection::valueToWrite(const QString& table, const QString& column, const Value& value)
{
    const auto* date = std::get_if<QDate>(&value.variant());
    return date == nullptr || !date->isValid()
               ? value
               : session().product().dateToWrite(*date, {table, column}, session());
}

void Connection::insert(const QString& table, const std::vector<std::pair<QString, Value>>& columns)
{
    QStringList names;
    QStringList marks;
    std::vector<Value> values;
    for (const auto& [name, value] : columns) {
        names << session().quoted(name);
        marks << QStringLiteral("?");
        values.push_back(valueToWrite(table, name, value));
    }
    StatementHandle statement = session().newStatement();
    ParameterSet parameters(statement);
    for (const Value& value : values) {
        parameters.bind(value);
    }
    const QString sql = QStringLiteral("INSERT INTO ") + session().quoted(table) +
                        QStringLiteral(" (") + names.join(QStringLiteral(", ")) +
                        QStringLiteral(") VALUES (") + marks.join(QStringLiteral(", ")) + u')';
    session().prepareToWrite();
    write([&] { session().sendAsItIs(statement, sql); });
}

bool Connection::deleteFirst(const QString& sql)
{
    session().prepareToWrite();
    bool found = false;
    write([&] { found = session().product().deleteFirst(sql, session()); });
    return found;
}

/// Waits for another program's lock longer than a read does.
void Connection::write(const std::function<void()>& step)
{
    if (session().product().waitsForLocks()) {
        step();
    } else {
        againWhile({Failure::Locked}, step);
    }
}

bool Connection::isDead() const
{
    return m_session == nullptr || m_session->isDead();
}

long long Connection::statementCount() const
{
    return session().statementCount();
}

void Connection::close()
{
    m_session.reset();
}

} // namespace db
