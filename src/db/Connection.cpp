#include "db/Connection.h"

#include "db/AccessPaths.h"
#include "db/DeletionSql.h"
#include "db/EmbeddedSql.h"
#include "db/OdbcHandles.h"
#include "db/ParameterSet.h"
#include "db/ResultReader.h"

#include <optional>

namespace db
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

bool isDateType(SQLSMALLINT type)
{
    return type == SQL_TYPE_DATE || type == SQL_TYPE_TIMESTAMP || type == SQL_DATE ||
           type == SQL_TIMESTAMP;
}

/// The date that a text stands for, as the product reads it in a date literal: what was written
/// must be found again.
std::optional<QDate> dateWrittenIn(const Value& value, Product product)
{
    const auto* text = std::get_if<QString>(&value.variant());
    return text == nullptr ? std::nullopt
                           : dialectDate(*text, product == Product::Other ? kAccessFirstYear
                                                                          : kEmbeddedFirstYear);
}

} // namespace

/// The handles of an open connection, in the order in which they depend on one another.
class Connection::Session
{
public:
    explicit Session(const QString& connectString) : m_connection(m_environment, connectString) {}

    [[nodiscard]] bool isEmbedded() const { return m_connection.product() == Product::Sqlite; }
    [[nodiscard]] long long statementCount() const { return m_statementCount; }

    [[nodiscard]] Recordset open(const QString& sql)
    {
        StatementHandle statement = executed(sql);
        return ResultReader(statement).readAll();
    }

    [[nodiscard]] int recordCount(const QString& sql)
    {
        StatementHandle statement = executed(sql);
        return ResultReader(statement).countRows();
    }

    [[nodiscard]] AccessPaths accessPaths(const QString& sql)
    {
        switch (m_connection.product()) {
        case Product::Sqlite:
            return sqliteAccessPaths(open(QStringLiteral("explain query plan ") + sql));
        case Product::MySql:
            // In capitals: where "i" and "I" are no pair, as in Turkish, the driver does not know
            // the word in small letters, takes the statement for one without rows and falls over.
            // MySQL tells of partitions unasked, and does not know the word.
            return mySqlAccessPaths(
                open((m_connection.isMariaDb() ? QStringLiteral("EXPLAIN PARTITIONS ")
                                               : QStringLiteral("EXPLAIN ")) +
                     sql));
        case Product::Other:
            break;
        }
        return std::nullopt;
    }

    void execute(const QString& sql) { static_cast<void>(executed(sql)); }

    void insert(const QString& table, const std::vector<std::pair<QString, Value>>& columns);

    bool deleteFirst(const QString& sql);

private:
    [[nodiscard]] StatementHandle executed(const QString& sql)
    {
        StatementHandle statement(m_connection);
        send(statement, sql);
        return statement;
    }

    void send(StatementHandle& statement, const QString& sql)
    {
        ++m_statementCount;
        statement.execute(isEmbedded() ? adaptToEmbedded(sql) : sql);
    }

    [[nodiscard]] std::vector<Value>
    valuesToWrite(const QString& table, const std::vector<std::pair<QString, Value>>& columns);
    [[nodiscard]] bool isDateColumn(const QString& table, const QString& column);
    bool deleteFirstByRowId(const DeletionSql& deletion);
    bool deleteFirstByCursor(const QString& sql);

    EnvironmentHandle m_environment;
    ConnectionHandle m_connection;
    long long m_statementCount = 0;
};

void Connection::Session::insert(const QString& table,
                                 const std::vector<std::pair<QString, Value>>& columns)
{
    QStringList names;
    QStringList marks;
    for (const auto& [name, value] : columns) {
        names << m_connection.quoted(name);
        marks << QStringLiteral("?");
    }
    const std::vector<Value> values = valuesToWrite(table, columns);
    StatementHandle statement(m_connection);
    ParameterSet parameters(statement);
    for (const Value& value : values) {
        parameters.bind(value);
    }
    ++m_statementCount;
    statement.execute(QStringLiteral("INSERT INTO ") + m_connection.quoted(table) +
                      QStringLiteral(" (") + names.join(QStringLiteral(", ")) +
                      QStringLiteral(") VALUES (") + marks.join(QStringLiteral(", ")) + u')');
}

/// MySQL reads the dialect's dates as they are. SQLite would keep the text, and Access would read
/// it by the system's language: there a text that is a date is written to a date column as one.
std::vector<Value>
Connection::Session::valuesToWrite(const QString& table,
                                   const std::vector<std::pair<QString, Value>>& columns)
{
    std::vector<Value> values;
    values.reserve(columns.size());
    for (const auto& [name, value] : columns) {
        const std::optional<QDate> date = m_connection.product() == Product::MySql
                                              ? std::nullopt
                                              : dateWrittenIn(value, m_connection.product());
        values.push_back(date && isDateColumn(table, name) ? Value(*date) : value);
    }
    return values;
}

bool Connection::Session::isDateColumn(const QString& table, const QString& column)
{
    StatementHandle statement = executed(QStringLiteral("SELECT ") + m_connection.quoted(column) +
                                         QStringLiteral(" FROM ") + m_connection.quoted(table) +
                                         QStringLiteral(" WHERE 0 = 1"));
    return isDateType(ResultReader(statement).columnType(1));
}

bool Connection::Session::deleteFirst(const QString& sql)
{
    switch (m_connection.product()) {
    case Product::Sqlite:
        return deleteFirstByRowId(DeletionSql(sql));
    case Product::MySql:
        // One statement, so that two programs never delete the same row. Not through the cursor:
        // the driver then looks for a row with the same text in every column, which finds none
        // where a BIT is set or a number is real, and reports success.
        return executed(DeletionSql(sql).deletingFirst()).changedRows() > 0;
    case Product::Other:
        break;
    }
    return deleteFirstByCursor(sql);
}

/// SQLite's driver cannot delete through a cursor, but every row of SQLite has an identity.
bool Connection::Session::deleteFirstByRowId(const DeletionSql& deletion)
{
    constexpr int attempts = 100; // each one lost to another program that deletes the same rows
    for (int i = 0; i < attempts; ++i) {
        QString rowId;
        {
            StatementHandle found = executed(deletion.selectingRowId());
            if (!found.fetch()) {
                return false;
            }
            rowId = ResultReader(found).readText(1).toText();
        }
        if (executed(deletion.deletingRowId(rowId)).changedRows() > 0) {
            return true;
        }
    }
    throw RunTimeError(ErrorNumber::DatabaseFailure,
                       QStringLiteral("Row cannot be located for updating."));
}

bool Connection::Session::deleteFirstByCursor(const QString& sql)
{
    constexpr SQLSETPOSIROW firstOfRowset = 1;
    // The one kind of cursor through which Access's driver writes; it compares values at most.
    StatementHandle statement(m_connection);
    statement.setAttribute(SQL_ATTR_CURSOR_TYPE, SQL_CURSOR_KEYSET_DRIVEN);
    statement.setAttribute(SQL_ATTR_CONCURRENCY, SQL_CONCUR_VALUES);
    send(statement, sql);
    if (!statement.fetchRowset()) {
        return false;
    }
    statement.check(SQLSetPos(statement.get(), firstOfRowset, SQL_POSITION, SQL_LOCK_NO_CHANGE));
    ++m_statementCount;
    statement.check(SQLSetPos(statement.get(), firstOfRowset, SQL_DELETE, SQL_LOCK_NO_CHANGE));
    return true;
}

Connection::Connection(const QString& connectString)
    : m_session(std::make_unique<Session>(connectString))
{
}

Connection::~Connection() = default;
Connection::Connection(Connection&&) noexcept = default;
Connection& Connection::operator=(Connection&&) noexcept = default;

Connection::Session& Connection::session() const
{
    if (!m_session) {
        throw RunTimeError(ErrorNumber::DatabaseFailure,
                           QStringLiteral("Operation is not allowed when the object is closed."));
    }
    return *m_session;
}

Recordset Connection::open(const QString& sql)
{
    return session().open(sql);
}

int Connection::recordCount(const QString& sql)
{
    return session().recordCount(sql);
}

AccessPaths Connection::accessPaths(const QString& sql)
{
    return session().accessPaths(sql);
}

void Connection::execute(const QString& sql)
{
    session().execute(sql);
}

void Connection::insert(const QString& table, const std::vector<std::pair<QString, Value>>& columns)
{
    session().insert(table, columns);
}

bool Connection::deleteFirst(const QString& sql)
{
    return session().deleteFirst(sql);
}

long long Connection::statementCount() const
{
    return session().statementCount();
}

bool Connection::isEmbedded() const
{
    return session().isEmbedded();
}

void Connection::close()
{
    m_session.reset();
}

} // namespace db
