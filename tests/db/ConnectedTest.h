#pragma once

#include "db/Connection.h"

#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

#include <optional>

[[nodiscard]] inline db::Value text(const char* value)
{
    return db::Value(QString::fromUtf8(value));
}

[[nodiscard]] inline db::Value integer(std::int64_t value)
{
    return db::Value(value);
}

/// A test on both databases with an open connection.
class ConnectedTest : public test::OnBothDatabases
{
protected:
    /// Opened at the first call, so that a test can fill the database before.
    [[nodiscard]] db::Connection& connection()
    {
        if (!m_connection) {
            m_connection.emplace(database().connectString());
        }
        return *m_connection;
    }

    /// The query's one value.
    [[nodiscard]] db::Value single(const QString& sql)
    {
        const db::Recordset rows = connection().open(sql);
        EXPECT_EQ(rows.recordCount(), 1);
        return rows.isEmpty() ? db::Value() : rows.first().field(0);
    }

private:
    std::optional<db::Connection> m_connection;
};
