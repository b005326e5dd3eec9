#pragma once

#include "db/OdbcApi.h"
#include "runtime/RunTimeError.h"

#include <QString>
#include <QStringList>
#include <cstddef>
#include <utility>

namespace db
{

/// The product behind a connection, as far as it makes a difference here.
enum class Product {
    Sqlite,
    MySql, ///< MariaDB included
    Other, ///< Access
};

/// How texts pass to and from the driver.
enum class TextForm {
    Utf16, ///< Through the wide API
    Utf8,  ///< Through the narrow API, which the driver reads as UTF-8
};

/// The driver's answer to a failing call.
struct Diagnostics {
    QString state; ///< SQLSTATE of the first record, five characters; empty without a record
    int nativeCode = 0;
    QString text; ///< The texts of all records, a line each
};

/// The run-time error that a failing call amounts to.
/// `opening`: the call was to open the connection, so whatever failed, there is none.
[[nodiscard]] runtime::ErrorNumber errorNumberOf(const Diagnostics& diagnostics, Product product,
                                                 bool opening);

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
    /// Errors: DatabaseFailure with the driver's text.
    ConnectionHandle(const EnvironmentHandle& environment, const QString& connectString);

    [[nodiscard]] SQLHDBC get() const { return m_handle.get(); }
    [[nodiscard]] Product product() const { return m_product; }
    [[nodiscard]] TextForm textForm() const { return m_textForm; }
    /// Whether the bytes in which a server sends texts are known to be UTF-8. Its driver spends
    /// most of a fetch on turning them into UTF-16, text by text.
    [[nodiscard]] bool sendsUtf8() const { return m_sendsUtf8; }
    /// Whether the server is MariaDB and not MySQL, whatever the driver.
    [[nodiscard]] bool isMariaDb() const { return m_isMariaDb; }
    /// Whether a field that is bound to a place in memory, and was too long for it, can be read
    /// from its beginning, wherever it stands in the row.
    [[nodiscard]] bool rereadsBoundFields() const { return m_rereadsBoundFields; }
    /// The name between the driver's own quotes.
    [[nodiscard]] QString quoted(const QString& identifier) const;

    /// Throws what the failing call on `handle` amounts to.
    [[noreturn]] void raise(SQLSMALLINT handleType, SQLHANDLE handle) const;

private:
    void connect(const QString& connectString);
    [[nodiscard]] QString info(SQLUSMALLINT what) const;
    void askServer();
    [[nodiscard]] bool readsBoundFieldsInAnyOrder() const;

    QStringList m_passwords;
    OdbcHandle<SQL_HANDLE_DBC> m_handle;
    Product m_product = Product::Other;
    TextForm m_textForm = TextForm::Utf16;
    bool m_sendsUtf8 = false;
    bool m_isMariaDb = false;
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
};

} // namespace db
