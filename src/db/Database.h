#pragma once

#include "db/Connection.h"
#include "db/SqlDialect.h"
#include "runtime/RunTimeError.h"

#include <optional>
#include <utility>

namespace db
{

/// The connection that the whole program shares, together with the dialect that goes with it.
/// Open from the reading of the establishment header until the window closes.
class Database
{
public:
    /// `useMySql` is the setting "Mysql".
    explicit Database(bool useMySql = false) : m_bySetting(useMySql) {}

    /// Chooses the database kind by the setting, before the connection is opened.
    void setUseMySql(bool useMySql) { m_bySetting = SqlDialect(useMySql); }
    /// Error: DatabaseFailure.
    void open(const QString& connectString) { m_connection.emplace(connectString, m_bySetting); }
    void close() { m_connection.reset(); }

    /// The open connection's dialect; before, that of the setting.
    [[nodiscard]] SqlDialect dialect() const
    {
        return m_connection ? m_connection->dialect() : m_bySetting;
    }
    /// Error: DatabaseFailure when the connection is not open.
    [[nodiscard]] Connection& Db()
    {
        if (!m_connection) {
            throw runtime::RunTimeError(runtime::ErrorNumber::DatabaseFailure,
                                        QStringLiteral("The connection is closed."));
        }
        return *m_connection;
    }

private:
    SqlDialect m_bySetting;
    std::optional<Connection> m_connection;
};

} // namespace db
