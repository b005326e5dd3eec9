#pragma once

#include "db/Connection.h"
#include "db/SqlDialect.h"

#include <QString>
#include <chrono>
#include <optional>
#include <utility>

namespace db
{

/// The connection that the whole program shares, together with the dialect that goes with it.
/// Open from the reading of the establishment header until the window closes. In between it may
/// break, and come back: laptops sleep, and servers close connections that idle.
class Database
{
public:
    using Clock =
        std::chrono::system_clock; // unlike the steady one it goes on while a laptop sleeps

    /// How long the program trusts what it knows of the connection.
    struct Patience {
        /// An idle connection is trusted so long; asking whether a line is dead that a network has
        /// dropped without a word takes as long as waiting for an answer.
        std::chrono::milliseconds idle = std::chrono::minutes(3);
        /// One that has just been used is not asked about: one action asks once.
        std::chrono::milliseconds used = std::chrono::milliseconds(100);
        /// After an attempt that failed no other one is made for so long, unless it failed at once:
        /// one action waits once.
        std::chrono::milliseconds failed = std::chrono::seconds(2);
    };

    /// `useMySql` is the setting "Mysql".
    explicit Database(bool useMySql = false) : m_bySetting(useMySql) {}
    Database(bool useMySql, Patience patience) : m_bySetting(useMySql), m_patience(patience) {}

    /// Chooses the database kind by the setting, before the connection is opened.
    void setKind(bool useMySql, SqlDialect::Quotes quotes)
    {
        m_bySetting = SqlDialect(useMySql, quotes);
    }
    /// Chooses who runs the calls that may take long, before the connection is opened.
    void setAwait(Await await) { m_await = std::move(await); }
    /// Error: DatabaseFailure.
    void open(const QString& connectString);
    /// Closes for good: nothing brings the connection back.
    void close();

    /// Sees to it that an opened connection is there: one that is known to be gone, and one that
    /// has idled for long, is opened anew. Does nothing before open() and after close().
    /// Error: DatabaseFailure when it cannot be opened; the next revive() tries again.
    void revive();
    /// Opens a new connection in the place of the present one, whatever its state.
    /// Error: as above.
    void renew();

    /// Runs a query by itself, over a connection that is there as far as can be told, and once more
    /// over a new one when it went away under the query. Error: any database error.
    [[nodiscard]] Recordset read(const QString& sql);
    /// The same, counting rows without reading their fields.
    [[nodiscard]] int count(const QString& sql);

    /// The open connection's dialect; before, that of the setting.
    [[nodiscard]] SqlDialect dialect() const
    {
        return m_connection ? m_connection->dialect() : m_bySetting;
    }
    /// Error: DatabaseFailure when the connection is not open; where it could not be opened anew,
    /// with what was said then.
    [[nodiscard]] Connection& Db();

    /// Statements sent so far, over all connections.
    [[nodiscard]] long long statementCount() const;

private:
    void connect();
    template <typename Question>
    [[nodiscard]] auto again(Question ask);
    [[nodiscard]] std::chrono::milliseconds notBefore() const;
    [[nodiscard]] bool hasPassed(std::chrono::milliseconds time) const;

    SqlDialect m_bySetting;
    Patience m_patience;
    Await m_await = awaitHere;
    std::optional<QString> m_connectString; ///< while the program wants to be connected
    std::optional<Connection> m_connection;
    std::optional<DatabaseError> m_fault;   ///< why there is no connection
    Clock::time_point m_used;               ///< when it was last asked for, or tried to be opened
    std::chrono::milliseconds m_attempt{0}; ///< how long the last attempt to open it took
    long long m_statementsBefore = 0;       ///< sent over connections that are gone
};

} // namespace db
