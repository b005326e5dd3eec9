#include "db/AccessProduct.h"

#include "db/DatabaseError.h"
#include "db/DialectDate.h"
#include "db/ResultReader.h"
#include "db/Session.h"

#include <QRegularExpression>

namespace db
{
namespace
{

bool isDateType(SQLSMALLINT type)
{
    return type == SQL_TYPE_DATE || type == SQL_TYPE_TIMESTAMP || type == SQL_DATE ||
           type == SQL_TIMESTAMP;
}

bool isDateColumn(const ColumnName& name, Session& session)
{
    StatementHandle statement = session.executed(
        QStringLiteral("SELECT ") + session.quoted(name.column) + QStringLiteral(" FROM ") +
        session.quoted(name.table) + QStringLiteral(" WHERE 0 = 1"));
    return isDateType(ResultReader(statement).columnType(1));
}

/// Whether the word stands in the statement, outside its texts.
bool choosesByCase(const QString& sql)
{
    static const QRegularExpression text(QStringLiteral("'(?:[^']|'')*'"));
    return sql.contains(u"case when ") &&
           QString(sql).remove(text).contains(QStringLiteral("case when "));
}

} // namespace

QString AccessProduct::adapted(const QString& sql) const
{
    if (choosesByCase(sql)) {
        throw DatabaseError(Failure::Refused, runtime::ErrorNumber::StatementRefused,
                            QStringLiteral("Access does not know CASE."));
    }
    return sql;
}

bool AccessProduct::deleteFirst(const QString& sql, Session& session) const
{
    constexpr SQLSETPOSIROW firstOfRowset = 1;
    StatementHandle statement = session.newStatement();
    statement.setAttribute(SQL_ATTR_CURSOR_TYPE, SQL_CURSOR_KEYSET_DRIVEN);
    statement.setAttribute(SQL_ATTR_CONCURRENCY, SQL_CONCUR_VALUES);
    session.send(statement, sql);
    if (!statement.fetchRowset()) {
        return false;
    }
    statement.check(SQLSetPos(statement.get(), firstOfRowset, SQL_POSITION, SQL_LOCK_NO_CHANGE));
    session.countStatement();
    statement.check(SQLSetPos(statement.get(), firstOfRowset, SQL_DELETE, SQL_LOCK_NO_CHANGE));
    return true;
}

std::optional<QStringList> AccessProduct::equalTextsSql(const std::vector<TextQuestion>& questions,
                                                        TextColumns columns) const
{
    // Its texts are Unicode as they are.
    return columns == TextColumns::AsTheyAre ? std::optional(pairedEqualTextsSql(questions))
                                             : std::nullopt;
}

SQLSMALLINT AccessProduct::cTypeOf(SQLSMALLINT type) const
{
    return type == SQL_BIT ? SQL_C_BIT : SQL_C_WCHAR;
}

Value AccessProduct::dateToWrite(QDate date, const ColumnName& column, Session& session) const
{
    const QString text = session.dialect().dateText(date);
    const std::optional<QDate> asRead = dialectDate(text, kAccessFirstYear);
    return asRead && isDateColumn(column, session) ? Value(*asRead) : Value(text);
}

} // namespace db
