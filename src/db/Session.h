#pragma once

#include "db/OdbcHandles.h"
#include "db/QueryPlans.h"
#include "db/Recordset.h"
#include "db/SqlDialect.h"

#include <QString>

namespace db
{

/// An open connection and all that is sent through it: each statement in the product's words, and
/// counted. Its handles depend on one another in the order in which they stand here.
///
/// Errors of every member that sends: DatabaseFailure, StatementRefused, TableMissing.
class Session
{
public:
    /// `bySetting`: the dialect that the settings choose. `await` runs what may take long.
    Session(const QString& connectString, const SqlDialect& bySetting, Await await = awaitHere);
    Session(const Session&) = delete; // its handles refer to one another
    Session& operator=(const Session&) = delete;

    [[nodiscard]] const Product& product() const { return m_connection.product(); }
    /// Whether the connection is known to be gone.
    [[nodiscard]] bool isDead() const { return m_connection.isDead(); }
    /// How dates are written for this product.
    [[nodiscard]] const SqlDialect& dialect() const { return m_dialect; }
    /// The name between the driver's own quotes.
    [[nodiscard]] QString quoted(const QString& name) const { return m_connection.quoted(name); }

    [[nodiscard]] StatementHandle newStatement() const { return StatementHandle(m_connection); }
    /// Sends a statement of the program, and a few times again while the database rolls it back:
    /// then nothing of it was done.
    void send(StatementHandle& statement, const QString& sql);
    /// The same for a statement that is in the product's words already.
    void sendAsItIs(StatementHandle& statement, const QString& sql);
    /// To be called before each write: readies the connection for the first one.
    void prepareToWrite();
    /// Sends it through a handle of its own.
    [[nodiscard]] StatementHandle executed(const QString& sql);
    /// Sends a query and reads all its rows.
    [[nodiscard]] Recordset open(const QString& sql);

    /// Counts what was sent by other means.
    void countStatement() { ++m_statementCount; }
    [[nodiscard]] long long statementCount() const { return m_statementCount; }

    /// What is known of the database's query plans.
    [[nodiscard]] QueryPlans& queryPlans() { return m_queryPlans; }

private:
    EnvironmentHandle m_environment;
    ConnectionHandle m_connection;
    SqlDialect m_dialect;
    QueryPlans m_queryPlans{*this};
    long long m_statementCount = 0;
    bool m_isReadyToWrite = false;
};

} // namespace db
