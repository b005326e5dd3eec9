// What a database says of itself: how it would answer a statement, and why one failed.
#include "db/AccessPath.h"

#include "db/AccessProduct.h"
#include "db/MariaDbProduct.h"
#include "db/SqliteProduct.h"
#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "runtime/RunTimeError.h"

#include <algorithm>

using fuzz::require;

namespace
{

/// The rows of an answer with these columns, from all fields that are left; "~" is null.
db::Recordset answer(const QStringList& names, fuzz::Input& input)
{
    const auto columns = std::make_shared<const db::Columns>(names);
    std::vector<db::Row> rows;
    while (!input.isAtEnd()) {
        std::vector<db::Value> values;
        while (static_cast<qsizetype>(values.size()) < names.size()) {
            const QString text = input.text();
            values.push_back(text == u"~" ? db::Value() : db::Value(text));
        }
        rows.emplace_back(columns, std::move(values));
    }
    return {columns, std::move(rows)};
}

bool readsATable(const db::Row& line)
{
    const QString detail = line.field(0).toJoinedText();
    return detail.startsWith(u"SEARCH ") || detail.startsWith(u"SCAN ");
}

void checkSqlite(fuzz::Input& input)
{
    const db::Recordset explained = answer({QStringLiteral("detail")}, input);
    const db::AccessPaths paths = db::sqliteAccessPaths(explained);
    if (!paths) {
        return;
    }
    const auto tables =
        std::count_if(explained.rows().begin(), explained.rows().end(), readsATable);
    require(static_cast<qsizetype>(paths->size()) == tables, "each table that is read has a path");
    for (const db::AccessPath& path : *paths) {
        require(!path.path.isEmpty() && !path.path.contains(u"COVERING INDEX"),
                "a path holds for whole rows", path.path);
        require(path.table.isEmpty(), "SQLite does not tell of other paths");
    }
}

/// The path of a line by its remarks and its kind, told once more.
void checkMariaDbPath(const db::AccessPath& path, const db::Row& line)
{
    const auto text = [&line](const char* name) {
        return line.field(QString::fromLatin1(name)).toJoinedText();
    };
    require(path.table == text("table"), "the table is the line's", path.table);
    if (path.path.isEmpty()) {
        return;
    }
    require(text("partitions").isEmpty(), "no order is known among partitions", path.path);
    QString remarks = text("Extra");
    for (const char* harmless : {"Using where", "Using index condition", ";", " "}) {
        remarks.remove(QString::fromLatin1(harmless));
    }
    require(remarks.isEmpty(), "no order is known of rows that are sorted", text("Extra"));
    require(path.path == u"ALL" || path.path == text("key") + u' ' + text("key_len"),
            "a path is the whole table or an index", path.path);
}

void checkMariaDb(fuzz::Input& input)
{
    static const QStringList names{QStringLiteral("select_type"),   QStringLiteral("table"),
                                   QStringLiteral("partitions"),    QStringLiteral("type"),
                                   QStringLiteral("possible_keys"), QStringLiteral("key"),
                                   QStringLiteral("key_len"),       QStringLiteral("Extra")};
    const db::Recordset explained = answer(names, input);
    const db::AccessPaths paths = db::mariaDbAccessPaths(explained);
    require(paths.has_value(), "every line is understood");
    auto path = paths->begin();
    for (const db::Row& line : explained.rows()) {
        if (line.field(0).toJoinedText() != u"UNION RESULT") {
            require(path != paths->end(), "each table that is read has a path");
            checkMariaDbPath(*path++, line);
        }
    }
    require(path == paths->end(), "there is no path without a table");
}

/// A column that an answer lacks is a run-time error.
void checkOther(fuzz::Input& input)
{
    const QString first = input.text();
    const QString second = input.text();
    const db::Recordset explained = answer({first, second}, input);
    runtime::skipOnError([&] { static_cast<void>(db::sqliteAccessPaths(explained)); });
    runtime::skipOnError([&] { static_cast<void>(db::mariaDbAccessPaths(explained)); });
}

/// State, code and text of a failing call.
void checkFailure(fuzz::Input& input)
{
    const QString state = input.text();
    const int code = input.number(-1, INT32_MAX);
    const db::Diagnostics told{state, code, input.text()};
    // Without a record there is no code either, and a driver that has lost its connection or has
    // waited in vain, and a driver manager, have none of the server's.
    const bool isOfServer = !state.isEmpty() && !state.startsWith(u"08") &&
                            !state.startsWith(u"HYT") && !state.startsWith(u"IM0");
    const db::MariaDbProduct server{{}};
    const db::SqliteProduct file;
    const db::AccessProduct other;
    for (const db::Product* product :
         {static_cast<const db::Product*>(&server), static_cast<const db::Product*>(&file),
          static_cast<const db::Product*>(&other)}) {
        const db::Failure failure = product->failureOf(told);
        const runtime::ErrorNumber number = product->errorNumberOf(told);
        require(!isOfServer || failure != db::Failure::TableMissing ||
                    number == runtime::ErrorNumber::TableMissing,
                "a missing table is one", told.state, told.text);
        require(failure != db::Failure::ConnectionLost ||
                    number == runtime::ErrorNumber::DatabaseFailure,
                "a lost connection is a failure", told.state, told.text);
        require(failure != db::Failure::Refused || number == runtime::ErrorNumber::StatementRefused,
                "a refused statement is refused", told.state, told.text);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const QByteArray kind = input.bytes();
    if (kind == "sqlite") {
        checkSqlite(input);
    } else if (kind == "mariadb") {
        checkMariaDb(input);
    } else if (kind == "failure") {
        checkFailure(input);
    } else {
        checkOther(input);
    }
    return 0;
}
