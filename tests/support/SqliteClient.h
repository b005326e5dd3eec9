#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// An SQLite file by another way than ODBC, which is the program's: the command line client; on
// Windows, where there may be none, the database's own library.
namespace test
{

/// Runs the statements in this order. Throws std::runtime_error when one is refused.
void executeOnSqlite(const QString& file, const QStringList& statements);
/// The rows of a query, each field as text; null reads "NULL". Throws likewise.
[[nodiscard]] QList<QStringList> readFromSqlite(const QString& file, const QString& query);

} // namespace test
