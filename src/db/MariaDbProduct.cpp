#include "db/MariaDbProduct.h"

#include "db/ConnectOptions.h"
#include "db/DeletionSql.h"
#include "db/ResultReader.h"
#include "db/Session.h"
#include "db/StatementReading.h"

#include <QRegularExpression>

namespace db
{
namespace
{

using runtime::ErrorNumber;

constexpr int kNoSuchTable = 1146;

/// Codes by which the connection is reported to be gone, whatever the SQLSTATE: the two ranges of
/// errors found at this end of it, and two of the server's.
bool isConnectionLost(int nativeCode)
{
    constexpr int serverShutdown = 1053;
    constexpr int connectionKilled = 1927;
    const int range = nativeCode / 1000;
    return range == 2 || range == 5 || nativeCode == serverShutdown ||
           nativeCode == connectionKilled;
}

/// What the driver is asked for where texts come as UTF-8: these as the bytes that the server sent,
/// numbers and dates in characters that are the same in every character set.
SQLSMALLINT cTypeWithoutConversion(SQLSMALLINT type)
{
    switch (type) {
    case SQL_CHAR:
    case SQL_VARCHAR:
    case SQL_LONGVARCHAR:
    case SQL_WCHAR:
    case SQL_WVARCHAR:
    case SQL_WLONGVARCHAR:
        return SQL_C_BINARY;
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_DECIMAL:
    case SQL_NUMERIC:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
        return SQL_C_CHAR;
    default:
        return SQL_C_WCHAR;
    }
}

/// Character sets of its answers and of our statements, version and modes; empty when it is silent.
QString whatItSays(const ConnectionHandle& connection)
{
    StatementHandle statement(connection);
    statement.execute(QStringLiteral("select concat_ws(' ', @@character_set_results, "
                                     "@@character_set_client, @@version, @@sql_mode)"));
    return statement.fetch() ? ResultReader(statement).readText(1).toJoinedText() : QString();
}

bool hearsUtf8(const QString& answer)
{
    return answer.section(u' ', 1, 1).startsWith(u"utf8");
}

/// Whether the driver puts statements into UTF-8, whatever it is told.
bool speaksUtf8(const ConnectionHandle& connection)
{
    static const QRegularExpression unicodeDrivers(QStringLiteral("maodbc|myodbc\\d+w"),
                                                   QRegularExpression::CaseInsensitiveOption);
    return connection.info(SQL_DRIVER_NAME).contains(unicodeDrivers);
}

} // namespace

void MariaDbProduct::beforeWriting(Session& session) const
{
    constexpr int seconds = 8;
    static_assert(std::chrono::seconds(seconds) < kAnswerLimit);
    runtime::skipOnError([&] {
        StatementHandle statement = session.newStatement();
        session.sendAsItIs(statement, QStringLiteral("SET SESSION innodb_lock_wait_timeout=%1, "
                                                     "SESSION lock_wait_timeout=%1")
                                          .arg(seconds));
    });
}

/// The driver chooses the character set of results when it connects, by its version and options;
/// what it says of the server is its own product's name.
MariaDbProduct::Server MariaDbProduct::serverBehind(const ConnectionHandle& connection)
{
    Server server;
    runtime::skipOnError([&] {
        QString answer = whatItSays(connection);
        if (!hearsUtf8(answer) && speaksUtf8(connection)) {
            // The driver refuses the short form, SET NAMES.
            StatementHandle(connection)
                .execute(QStringLiteral("SET character_set_client=utf8mb4, "
                                        "character_set_connection=utf8mb4, "
                                        "character_set_results=utf8mb4"));
            answer = whatItSays(connection);
        }
        if (!answer.isEmpty()) {
            server.sendsUtf8 = answer.startsWith(u"utf8"); // utf8, utf8mb3, utf8mb4
            server.backslashEscapes = !answer.contains(u"NO_BACKSLASH_ESCAPES");
            server.isMariaDb = answer.contains(u"mariadb", Qt::CaseInsensitive);
        }
    });
    return server;
}

ErrorNumber MariaDbProduct::errorNumberOf(const Diagnostics& diagnostics) const
{
    const ErrorNumber byState = errorNumberByState(diagnostics);
    if (byState == ErrorNumber::DatabaseFailure || isConnectionLost(diagnostics.nativeCode)) {
        return ErrorNumber::DatabaseFailure;
    }
    return diagnostics.nativeCode == kNoSuchTable ? ErrorNumber::TableMissing : byState;
}

Failure MariaDbProduct::failureOf(const Diagnostics& diagnostics) const
{
    constexpr int lockWaitTimeout = 1205;
    constexpr int deadlock = 1213;
    constexpr int statementTimeout = 1969;
    if (isConnectionLost(diagnostics.nativeCode)) {
        return Failure::ConnectionLost;
    }
    switch (diagnostics.nativeCode) {
    case kNoSuchTable:
        return Failure::TableMissing;
    case lockWaitTimeout:
        return Failure::Locked;
    case deadlock:
        return Failure::RolledBack;
    case statementTimeout:
        return Failure::NoAnswer;
    default:
        return failureByState(diagnostics);
    }
}

SqlDialect MariaDbProduct::dialect(const SqlDialect& bySetting) const
{
    return bySetting.ofMySql(m_server.backslashEscapes);
}

QString MariaDbProduct::adapted(const QString& sql) const
{
    if (sql.contains(u'%') && !keepsToItsLiterals(sql, m_server.backslashEscapes)) {
        throw nameRefused();
    }
    return sql;
}

bool MariaDbProduct::deleteFirst(const QString& sql, Session& session) const
{
    return session.executed(DeletionSql(sql).deletingFirst()).changedRows() > 0;
}

SQLSMALLINT MariaDbProduct::cTypeOf(SQLSMALLINT type) const
{
    if (type == SQL_BIT) {
        return SQL_C_BIT; // as text it is a raw byte
    }
    if (!m_server.sendsUtf8) {
        return SQL_C_WCHAR;
    }
    return cTypeWithoutConversion(type);
}

Value MariaDbProduct::dateToWrite(QDate date, const ColumnName& /*column*/, Session& session) const
{
    return Value(session.dialect().dateText(date));
}

std::optional<QStringList> MariaDbProduct::equalTextsSql(const std::vector<TextQuestion>& questions,
                                                         TextColumns columns) const
{
    return QStringList{serverEqualTextsSql(questions, columns)};
}

QString MariaDbProduct::textCountsSql(const std::vector<CountQuestion>& questions,
                                      const QStringList& literals) const
{
    return serverTextCountsSql(questions, literals);
}

AccessPaths MariaDbProduct::accessPaths(const QString& sql, Session& session) const
{
    // In capitals: where "i" and "I" are no pair, as in Turkish, the driver does not know the word
    // in small letters, takes the statement for one without rows and falls over. MySQL tells of
    // partitions unasked, and does not know the word.
    return mariaDbAccessPaths(session.open(
        (m_server.isMariaDb ? QStringLiteral("EXPLAIN PARTITIONS ") : QStringLiteral("EXPLAIN ")) +
        sql));
}

} // namespace db
