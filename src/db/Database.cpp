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
    try {
        m_connection.emplace(*m_connectString, m_bySetting);
        m_fault.reset();
    } catch (const DatabaseError& error) {
        m_fault = error;
        m_used = Clock::now();
        throw;
    }
    m_used = Clock::now();
}

bool Database::hasPassed(std::chrono::milliseconds time) const
{
    const auto passed = Clock::now() - m_used;
    return passed > time || passed < Clock::duration::zero(); // somebody has set the clock
}

void Database::revive()
{
    if (!m_connectString || !hasPassed(m_connection ? m_patience.used : m_patience.failed)) {
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

Recordset Database::read(const QString& sql)
{
    revive();
    try {
        return Db().open(sql);
    } catch (const DatabaseError& error) {
        if (error.failure() != Failure::ConnectionLost) {
            throw;
        }
    }
    renew();
    return Db().open(sql);
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
