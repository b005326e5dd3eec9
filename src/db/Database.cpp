#include "db/Database.h"

#include <utility>

namespace db
{

void Database::open(const QString& connectString)
{
    m_connectString = connectString;
    connect();
}

void Database::close()
{
    m_connectString.reset();
    m_statementsBefore = statementCount();
    m_connection.reset();
    m_fault.reset();
}

void Database::connect()
{
    m_statementsBefore = statementCount();
    m_connection.reset();
    const auto began = Clock::now();
    try {
        m_connection.emplace(*m_connectString, m_bySetting, m_await);
        m_fault.reset();
    } catch (const DatabaseError& error) {
        m_fault = error;
        m_used = Clock::now();
        m_attempt = std::chrono::duration_cast<std::chrono::milliseconds>(m_used - began);
        throw;
    }
    m_used = Clock::now();
}

/// How long nothing is asked about the connection, or done about a missing one.
std::chrono::milliseconds Database::notBefore() const
{
    constexpr std::chrono::milliseconds atOnce{200};
    if (m_connection) {
        return m_patience.used;
    }
    return m_attempt < atOnce ? std::chrono::milliseconds(-1) : m_patience.failed;
}

bool Database::hasPassed(std::chrono::milliseconds time) const
{
    const auto passed = Clock::now() - m_used;
    return passed > time || passed < Clock::duration::zero(); // somebody has set the clock
}

void Database::revive()
{
    if (!m_connectString || !hasPassed(notBefore())) {
        return;
    }
    if (!m_connection || hasPassed(m_patience.idle) || m_connection->isDead()) {
        connect();
    }
}

void Database::renew()
{
    if (m_connectString) {
        connect();
    }
}

/// Asks over a connection that is there as far as can be told, and once more over a new one.
template <typename Question>
auto Database::again(Question ask)
{
    revive();
    try {
        return ask(Db());
    } catch (const DatabaseError& error) {
        if (error.failure() != Failure::ConnectionLost) {
            throw;
        }
    }
    renew();
    return ask(Db());
}

Recordset Database::read(const QString& sql)
{
    return again([&sql](Connection& connection) { return connection.open(sql); });
}

int Database::count(const QString& sql)
{
    return again([&sql](Connection& connection) { return connection.recordCount(sql); });
}

Connection& Database::Db()
{
    if (!m_connection) {
        throw m_fault ? DatabaseError(*m_fault)
                      : DatabaseError(Failure::Unreachable, runtime::ErrorNumber::DatabaseFailure,
                                      QStringLiteral("The connection is closed."));
    }
    m_used = Clock::now();
    return *m_connection;
}

long long Database::statementCount() const
{
    return m_statementsBefore + (m_connection ? m_connection->statementCount() : 0);
}

} // namespace db
