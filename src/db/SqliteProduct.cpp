#include "db/SqliteProduct.h"

#include "db/ConnectOptions.h"
#include "db/DeletionSql.h"
#include "db/ResultReader.h"
#include "db/Session.h"
#include "db/SqliteSql.h"

namespace db
{
namespace
{

using runtime::ErrorNumber;

/// The driver reports every failure as HY000 with SQLite's own result code.
ErrorNumber errorNumberByCode(const Diagnostics& diagnostics)
{
    constexpr int genericError = 1;
    constexpr int tooBig = 18;
    constexpr int constraint = 19;
    constexpr int mismatch = 20;
    constexpr int range = 25;
    switch (diagnostics.nativeCode) {
    case genericError:
        return diagnostics.text.contains(QStringLiteral("no such table"))
                   ? ErrorNumber::TableMissing
                   : ErrorNumber::StatementRefused;
    case tooBig:
    case constraint:
    case mismatch:
    case range:
        return ErrorNumber::StatementRefused;
    default: // locked, read-only, full disk, damaged file, …
        return ErrorNumber::DatabaseFailure;
    }
}

} // namespace

OpenedFile SqliteProduct::fileBehind(const ConnectionHandle& connection)
{
    constexpr SQLUSMALLINT fileColumn = 3;
    QString path;
    runtime::skipOnError([&] {
        StatementHandle statement(connection);
        statement.execute(QStringLiteral("pragma database_list"));
        if (statement.fetch()) {
            path = ResultReader(statement).readText(fileColumn).toJoinedText();
        }
    });
    return OpenedFile(path);
}

std::optional<QString> SqliteProduct::reconnectString(const QString& connectString) const
{
    return withFileLimits(connectString);
}

ErrorNumber SqliteProduct::errorNumberOf(const Diagnostics& diagnostics) const
{
    const ErrorNumber byState = errorNumberByState(diagnostics);
    return byState == ErrorNumber::DatabaseFailure || diagnostics.nativeCode == 0
               ? byState
               : errorNumberByCode(diagnostics);
}

Failure SqliteProduct::failureOf(const Diagnostics& diagnostics) const
{
    constexpr int busy = 5;
    constexpr int locked = 6;
    if (diagnostics.nativeCode == busy || diagnostics.nativeCode == locked) {
        return Failure::Locked;
    }
    switch (errorNumberOf(diagnostics)) {
    case ErrorNumber::TableMissing:
        return Failure::TableMissing;
    case ErrorNumber::StatementRefused:
        return Failure::Refused;
    default: // there is no connection that could be lost
        return Failure::Other;
    }
}

/// The driver lets every statement load a library, and nothing turns that off. A name with an
/// apostrophe brings words of its own into a statement: that one would be a program.
QString SqliteProduct::adapted(const QString& sql) const
{
    if (sql.contains(QStringLiteral("load_extension"), Qt::CaseInsensitive)) {
        throw DatabaseError(Failure::Refused, ErrorNumber::StatementRefused,
                            QStringLiteral("load_extension is not allowed."));
    }
    return adaptToSqlite(sql);
}

bool SqliteProduct::deleteFirst(const QString& sql, Session& session) const
{
    const DeletionSql deletion(sql);
    constexpr int attempts = 100; // each one lost to another program that deletes the same rows
    for (int i = 0; i < attempts; ++i) {
        QString rowId;
        {
            StatementHandle found = session.executed(deletion.selectingRowId());
            if (!found.fetch()) {
                return false;
            }
            rowId = ResultReader(found).readText(1).toText();
        }
        if (session.executed(deletion.deletingRowId(rowId)).changedRows() > 0) {
            return true;
        }
    }
    throw DatabaseError(Failure::Locked, ErrorNumber::DatabaseFailure,
                        QStringLiteral("Row cannot be located for updating."));
}

SQLSMALLINT SqliteProduct::cTypeOf(SQLSMALLINT /*type*/) const
{
    return textForm() == TextForm::Utf8 ? SQL_C_CHAR : SQL_C_WCHAR;
}

Value SqliteProduct::dateToWrite(QDate date, const ColumnName& /*column*/, Session& session) const
{
    const QString literal = adaptToSqlite(session.dialect().dateLiteral(date));
    return Value(literal.mid(1, literal.size() - 2)); // between its quotes
}

QString SqliteProduct::metByMost(const QString& condition) const
{
    return QStringLiteral("likelihood(") + condition + QStringLiteral(",0.9)");
}

std::optional<QStringList> SqliteProduct::equalTextsSql(const std::vector<TextQuestion>& questions,
                                                        TextColumns columns) const
{
    return columns == TextColumns::AsTheyAre
               ? std::optional(QStringList{sqliteEqualTextsSql(questions)})
               : std::nullopt;
}

QString SqliteProduct::spelledCountsSql(const std::vector<CountQuestion>& questions,
                                        const QStringList& literals) const
{
    return sqliteSpelledCountsSql(questions, literals);
}

QString SqliteProduct::textCountsSql(const std::vector<CountQuestion>& questions,
                                     const QStringList& literals) const
{
    return sqliteTextCountsSql(questions, literals);
}

AccessPaths SqliteProduct::accessPaths(const QString& sql, Session& session) const
{
    return sqliteAccessPaths(session.open(QStringLiteral("explain query plan ") + sql));
}

} // namespace db
