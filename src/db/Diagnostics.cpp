#include "db/OdbcHandles.h"

namespace db
{
namespace
{

using runtime::ErrorNumber;

/// SQLite's driver reports every failure as HY000 with SQLite's own result code.
ErrorNumber sqliteErrorNumber(const Diagnostics& diagnostics)
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

/// Codes by which MariaDB and MySQL report that the connection is gone, whatever the SQLSTATE: the
/// two ranges of errors found at this end of it, and two of the server's.
bool isConnectionLost(int nativeCode)
{
    constexpr int serverShutdown = 1053;
    constexpr int connectionKilled = 1927;
    const int range = nativeCode / 1000;
    return range == 2 || range == 5 || nativeCode == serverShutdown ||
           nativeCode == connectionKilled;
}

} // namespace

ErrorNumber errorNumberOf(const Diagnostics& diagnostics, Product product, bool opening)
{
    constexpr int mariaDbNoSuchTable = 1146;
    const QString& state = diagnostics.state;
    if (opening || state.isEmpty() || state.startsWith(QStringLiteral("08")) ||
        state == QStringLiteral("HYT00") || state == QStringLiteral("HYT01") ||
        state.startsWith(QStringLiteral("IM0"))) {
        return ErrorNumber::DatabaseFailure;
    }
    if (product == Product::Sqlite && diagnostics.nativeCode != 0) {
        return sqliteErrorNumber(diagnostics);
    }
    if (product == Product::MySql && isConnectionLost(diagnostics.nativeCode)) {
        return ErrorNumber::DatabaseFailure;
    }
    if (state == QStringLiteral("42S02") ||
        (product == Product::MySql && diagnostics.nativeCode == mariaDbNoSuchTable)) {
        return ErrorNumber::TableMissing;
    }
    return ErrorNumber::StatementRefused;
}

} // namespace db
