#pragma once

#include "db/Await.h"
#include "db/DatabaseError.h"
#include "db/PackedRow.h"
#include "db/Recordset.h"
#include "db/RowOrder.h"
#include "db/SqlDialect.h"
#include "db/TextCounts.h"
#include "db/TextQuestion.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace db
{

class Session;

/// The one connection to the timetable database, through ODBC. Statements are in the connection's
/// own dialect; what its product does not speak of Access's is adapted on the way.
///
/// Errors of every member, as runtime::RunTimeError with the driver's own text: DatabaseFailure
/// (no connection, connection lost, driver fault), StatementRefused, TableMissing.
class Connection
{
public:
    /// Opens with an empty user and password: the connection string holds what is needed. Its
    /// password never appears in an error's text.
    /// `bySetting`: the dialect that the settings choose, for a product that has none of its own.
    /// `await` runs the calls to the driver that may take long.
    explicit Connection(const QString& connectString,
                        const SqlDialect& bySetting = SqlDialect(false), Await await = awaitHere);
    ~Connection();
    Connection(Connection&&) noexcept;
    Connection& operator=(Connection&&) noexcept;

    /// How dates are written into this connection's statements.
    [[nodiscard]] SqlDialect dialect() const;

    /// Runs a query and reads all its rows.
    [[nodiscard]] Recordset open(const QString& sql);
    /// Runs a query and counts its rows without reading their fields.
    [[nodiscard]] int recordCount(const QString& sql);
    /// Runs several queries, each without its "Select", as one statement, or a few where not so
    /// many can be joined. Returns the rows of each, a number put before their first column.
    [[nodiscard]] std::vector<Recordset> openJoined(const QStringList& queries);
    /// Where these rows stand among those that each query alone would bring: `Same` or `Untold`.
    [[nodiscard]] RowOrder joinedRowOrder() const;
    /// Whether the wide queries have brought the rows of their parts in each part's own order; by
    /// one statement at most. Raises no error while the connection is open.
    [[nodiscard]] std::vector<RowOrder> rowOrders(const std::vector<WideQuery>& queries);
    /// Which of the texts of each question are equal where its column is compared with them; by one
    /// statement as a rule (see EqualTexts.h).
    [[nodiscard]] std::vector<TextGroups> equalTexts(const std::vector<TextQuestion>& questions);
    /// How many rows each of the texts finds in the questions' columns; by one statement (see
    /// TextCounts.h).
    [[nodiscard]] std::vector<std::vector<TextCount>>
    countTexts(const std::vector<CountQuestion>& questions, const QStringList& texts);
    /// How a query's rows can arrive as one text each (see PackedRow.h); nothing where they cannot.
    [[nodiscard]] std::optional<Packing> packing() const;
    /// The condition, with a hint to the database that most rows of the table meet it.
    [[nodiscard]] QString metByMost(const QString& condition) const;
    /// Runs a statement that returns no rows.
    void execute(const QString& sql);

    /// Adds one row by one parameterised statement with exactly these columns, in this order.
    /// A date is written so that the dialect's literal finds it, whatever the column's type; a text
    /// is written as it is. The row is there as a whole or not at all. Another program's lock is
    /// waited for longer than in a read.
    void insert(const QString& table, const std::vector<std::pair<QString, Value>>& columns);

    /// Deletes exactly the first row that the query finds, also where the table has no key and
    /// holds identical rows. `sql` is a "select * from" one table. Tells whether there was a row.
    /// Another program's lock is waited for longer than in a read.
    bool deleteFirst(const QString& sql);

    /// Whether the connection is known to be gone, or to tell what is so no longer. Raises no
    /// error; asks no more than the driver needs to tell, which is a short question to the server
    /// or nothing at all.
    [[nodiscard]] bool isDead() const;

    /// How many statements were sent so far: what a refresh costs over a far server.
    [[nodiscard]] long long statementCount() const;

    /// Closes early; every later call fails with DatabaseFailure. Closing twice does nothing.
    void close();

private:
    [[nodiscard]] Session& session() const;
    void write(const std::function<void()>& step);
    [[nodiscard]] Value valueToWrite(const QString& table, const QString& column,
                                     const Value& value);

    std::unique_ptr<Session> m_session;
};

} // namespace db
