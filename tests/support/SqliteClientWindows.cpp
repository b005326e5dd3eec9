#include "support/SqliteClient.h"

#include <memory>
#include <sqlite3.h>
#include <stdexcept>

namespace test
{
namespace
{

using File = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

void require(bool isDone, sqlite3* file)
{
    if (!isDone) {
        throw std::runtime_error(sqlite3_errmsg(file));
    }
}

File opened(const QString& path)
{
    sqlite3* file = nullptr;
    const int code = sqlite3_open(path.toUtf8().constData(), &file);
    File owned(file, sqlite3_close);
    require(code == SQLITE_OK, file);
    return owned;
}

QString fieldOf(sqlite3_stmt* row, int column)
{
    const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    return text == nullptr ? QStringLiteral("NULL") : QString::fromUtf8(text);
}

} // namespace

void executeOnSqlite(const QString& file, const QStringList& statements)
{
    const File opening = opened(file);
    for (const QString& statement : statements) {
        require(sqlite3_exec(opening.get(), statement.toUtf8().constData(), nullptr, nullptr,
                             nullptr) == SQLITE_OK,
                opening.get());
    }
}

QList<QStringList> readFromSqlite(const QString& file, const QString& query)
{
    const File opening = opened(file);
    sqlite3_stmt* prepared = nullptr;
    require(sqlite3_prepare_v2(opening.get(), query.toUtf8().constData(), -1, &prepared, nullptr) ==
                SQLITE_OK,
            opening.get());
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> rows(prepared,
                                                                          sqlite3_finalize);
    QList<QStringList> read;
    while (sqlite3_step(prepared) == SQLITE_ROW) {
        QStringList row;
        for (int column = 0; column < sqlite3_column_count(prepared); ++column) {
            row << fieldOf(prepared, column);
        }
        read << row;
    }
    return read;
}

} // namespace test
