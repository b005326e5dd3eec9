#pragma once

#include "db/Await.h"
#include "db/OdbcApi.h"
#include "db/Product.h"

#include <QString>
#include <QStringList>
#include <chrono>
#include <functional>
#include <memory>
#include <utility>

namespace db
{

/// One ODBC handle of the given type. At its end a connection is closed and the handle freed;
/// nothing is thrown there.
template <SQLSMALLINT Type>
class OdbcHandle
{
public:
    explicit OdbcHandle(SQLHANDLE handle) noexcept : m_handle(handle) {}
    ~OdbcHandle() { release(); }
    OdbcHandle(OdbcHandle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
    OdbcHandle& operator=(OdbcHandle&& other) noexcept
    {
        if (this != &other) {
            release();
            m_handle = std::exchange(other.m_handle, nullptr);
        }
        return *this;
    }
    OdbcHandle(const OdbcHandle&) = delete;
    OdbcHandle& operator=(const OdbcHandle&) = delete;

    [[nodiscard]] SQLHANDLE get() const { return m_handle; }

private:
    void release() noexcept
    {
        if (m_handle == nullptr) {
            return;
        }
        if constexpr (Type == SQL_HANDLE_DBC) {
            SQLDisconnect(m_handle); // refused, without harm, where nothing was opened
        }
        SQLFreeHandle(Type, m_handle);
    }

    SQLHANDLE m_handle;
};

/// The ODBC environment, version 3.
class EnvironmentHandle
{
public:
    /// Error: DatabaseFailure.
    EnvironmentHandle();

    [[nodiscard]] SQLHENV get() const { return m_handle.get(); }

private:
    OdbcHandle<SQL_HANDLE_ENV> m_handle;
};

/// An open connection, which commits every statement by itself.
class ConnectionHandle
{
public:
    /// `await` runs what may take long.
    /// Errors: DatabaseFailure with the driver's text, also for a data source without a name.
    ConnectionHandle(const EnvironmentHandle& environment, const QString& connectString,
                     Await await = awaitHere);

    [[nodiscard]] SQLHDBC get() const { return m_handle.get(); }
    [[nodiscard]] const Product& product() const { return *m_product; }
    [[nodiscard]] TextForm textForm() const { return m_product->textForm(); }
    /// Whether a field that is bound to a place in memory, and was too long for it, can be read
    /// from its beginning, wherever it stands in the row.
    [[nodiscard]] bool rereadsBoundFields() const { return m_rereadsBoundFields; }
    /// The name between the driver's own quotes.
    [[nodiscard]] QString quoted(const QString& identifier) const;
    /// A text that the driver tells of itself or of the database, by its SQL_… code; empty when it
    /// does not.
    [[nodiscard]] QString info(SQLUSMALLINT what) const;

    /// Whether the connection is known to be gone, or to tell what is so no longer. Asks no more
    /// than the driver needs to tell.
    [[nodiscard]] bool isDead() const;

    /// What a call that may take long comes to. Fetching is none: a server's whole result is there
    /// once the statement has been sent.
    [[nodiscard]] SQLRETURN awaited(const std::function<SQLRETURN()>& call) const;

    /// Throws what the failing call on `handle` amounts to. `waited`: how long the call took.
    [[noreturn]] void raise(SQLSMALLINT handleType, SQLHANDLE handle,
                            std::chrono::milliseconds waited = {}) const;

private:
    void connect(const QString& connectString);
    void commitEachStatement();
    [[nodiscard]] bool readsBoundFieldsInAnyOrder() const;

    Await m_await;
    QStringList m_passwords;
    OdbcHandle<SQL_HANDLE_DBC> m_handle;
    std::unique_ptr<const Product> m_product; ///< one without ways of its own until it is known
    bool m_rereadsBoundFields = false;
    QString m_quote;
};

/// A statement of a connection, which must outlive it. A failing call throws the run-time error
/// that the driver's answer amounts to: DatabaseFailure, StatementRefused or TableMissing.
class StatementHandle
{
public:
    explicit StatementHandle(const ConnectionHandle& connection);

    [[nodiscard]] SQLHSTMT get() const { return m_handle.get(); }
    [[nodiscard]] const ConnectionHandle& connection() const { return *m_connection; }

    /// Sets a statement attribute to a number. A driver that changes it to what it can do is fine.
    void setAttribute(SQLINTEGER attribute, SQLULEN value);
    /// Sends the statement.
    void execute(const QString& sql);
    /// Makes the next row the current one; false after the last.
    bool fetch();
    /// The same as a rowset of that one row, to act on by its position in it.
    bool fetchRowset();
    /// How many rows the statement changed; -1 when the driver does not know.
    [[nodiscard]] SQLLEN changedRows() const;

    /// Throws unless the call succeeded, with or without a warning.
    void check(SQLRETURN result) const;

private:
    [[nodiscard]] bool isRow(SQLRETURN fetched) const;

    const ConnectionHandle* m_connection;
    OdbcHandle<SQL_HANDLE_STMT> m_handle;
    std::chrono::steady_clock::time_point m_asked; ///< when the call that may wait began
};

} // namespace db
