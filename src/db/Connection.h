#pragma once

#include "db/AccessPaths.h"
#include "db/Recordset.h"

#include <QString>
#include <memory>
#include <utility>
#include <vector>

namespace db
{

/// The one connection to the timetable database, through ODBC. Statements are in the dialect of
/// the database kind in use (see SqlDialect.h); where the driver at hand is the embedded SQLite,
/// what it does not speak of the Access dialect is adapted on the way.
///
/// Errors of every member, as runtime::RunTimeError with the driver's own text: DatabaseFailure
/// (no connection, connection lost, driver fault), StatementRefused, TableMissing.
class Connection
{
public:
    /// Opens with an empty user and password: the connection string holds what is needed. Its
    /// password never appears in an error's text.
    explicit Connection(const QString& connectString);
    ~Connection();
    Connection(Connection&&) noexcept;
    Connection& operator=(Connection&&) noexcept;

    /// Runs a query and reads all its rows.
    [[nodiscard]] Recordset open(const QString& sql);
    /// Runs a query and counts its rows without reading their fields.
    [[nodiscard]] int recordCount(const QString& sql);
    /// How the database would walk through its table for the joined queries, without running them;
    /// see AccessPaths.h. Nothing where the database does not tell.
    [[nodiscard]] AccessPaths accessPaths(const QString& sql);
    /// Runs a statement that returns no rows.
    void execute(const QString& sql);

    /// Adds one row by one parameterised statement with exactly these columns, in this order.
    /// A text meant for a date column may stand in the dialect's date format.
    /// The row is there as a whole or not at all.
    void insert(const QString& table, const std::vector<std::pair<QString, Value>>& columns);

    /// Deletes exactly the first row that the query finds, also where the table has no key and
    /// holds identical rows. `sql` is a "select * from" one table. Tells whether there was a row.
    bool deleteFirst(const QString& sql);

    /// How many statements were sent so far: what a refresh costs over a far server.
    [[nodiscard]] long long statementCount() const;
    /// Whether the driver is the embedded SQLite.
    [[nodiscard]] bool isEmbedded() const;

    /// Closes early; every later call fails with DatabaseFailure. Closing twice does nothing.
    void close();

private:
    class Session;
    [[nodiscard]] Session& session() const;

    std::unique_ptr<Session> m_session;
};

} // namespace db
