#include "db/OdbcHandles.h"

#include "db/AccessProduct.h"
#include "db/ConnectFault.h"
#include "db/ConnectOptions.h"
#include "db/Passwords.h"
#include "db/ProductChoice.h"

#include <array>
#include <optional>

namespace db
{
namespace
{

using runtime::ErrorNumber;

/// Nobody waits longer for a server that does not answer.
constexpr SQLULEN kLoginTimeoutSeconds = 15;
/// How much earlier than told a driver's timer may go off.
constexpr std::chrono::milliseconds kTimerSlack{500};

SQLPOINTER numberArgument(SQLULEN value)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): so ODBC takes its numbers
    return reinterpret_cast<SQLPOINTER>(value);
}

SQLWCHAR* wide(const QString& text)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): taken without const, never written
    return const_cast<SQLWCHAR*>(reinterpret_cast<const SQLWCHAR*>(text.utf16()));
}

/// How long the manager is told that the text is. Its end is its terminator wherever it can be: one
/// driver counts a pair of surrogates as one character, and would read on behind the text.
SQLINTEGER wideLength(const QString& text)
{
    return text.contains(QChar::Null) ? static_cast<SQLINTEGER>(text.size()) : SQL_NTS;
}

SQLCHAR* narrow(const QByteArray& text)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): taken without const, never written
    return const_cast<SQLCHAR*>(reinterpret_cast<const SQLCHAR*>(text.constData()));
}

QString fromWide(const SQLWCHAR* text)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text));
}

/// The driver of a data source, as the driver manager lists it; empty for an unknown one.
QString driverOf(const QString& dataSource, const EnvironmentHandle& environment)
{
    constexpr std::size_t longest = 512;
    std::array<SQLWCHAR, longest> name{};
    std::array<SQLWCHAR, longest> driver{};
    SQLUSMALLINT direction = SQL_FETCH_FIRST;
    while (SQL_SUCCEEDED(SQLDataSourcesW(environment.get(), direction, name.data(),
                                         static_cast<SQLSMALLINT>(longest), nullptr, driver.data(),
                                         static_cast<SQLSMALLINT>(longest), nullptr))) {
        if (fromWide(name.data()).compare(dataSource, Qt::CaseInsensitive) == 0) {
            return fromWide(driver.data());
        }
        direction = SQL_FETCH_NEXT;
    }
    return {};
}

SQLHANDLE allocated(SQLSMALLINT type, SQLHANDLE parent)
{
    SQLHANDLE handle = nullptr;
    if (!SQL_SUCCEEDED(SQLAllocHandle(type, parent, &handle))) {
        throw DatabaseError(Failure::Unreachable, ErrorNumber::DatabaseFailure,
                            QStringLiteral("ODBC is not available."));
    }
    return handle;
}

} // namespace

EnvironmentHandle::EnvironmentHandle() : m_handle(allocated(SQL_HANDLE_ENV, SQL_NULL_HANDLE))
{
    SQLSetEnvAttr(get(), SQL_ATTR_ODBC_VERSION, numberArgument(SQL_OV_ODBC3), 0);
}

ConnectionHandle::ConnectionHandle(const EnvironmentHandle& environment,
                                   const QString& connectString, Await await)
    : m_await(std::move(await)), m_passwords(passwordsIn(connectString)),
      m_handle(allocated(SQL_HANDLE_DBC, environment.get())),
      m_product(std::make_unique<AccessProduct>())
{
    // Drivers without a server have no login timeout and may say so.
    SQLSetConnectAttr(get(), SQL_ATTR_LOGIN_TIMEOUT, numberArgument(kLoginTimeoutSeconds), 0);
    const QString driver = driverIn(connectString);
    const QString limited =
        withLimits(connectString,
                   driver.isEmpty() ? driverOf(dataSourceIn(connectString), environment) : driver);
    connect(limited);
    m_product = productBehind(*this);
    const std::optional<QString> again = m_product->reconnectString(connectString);
    if (again && *again != limited) {
        SQLDisconnect(get());
        connect(*again);
    }
    m_rereadsBoundFields = readsBoundFieldsInAnyOrder();
    m_quote = info(SQL_IDENTIFIER_QUOTE_CHAR);
    commitEachStatement();
}

/// Whatever fails here, there is no connection.
void ConnectionHandle::connect(const QString& connectString)
{
    // A driver may take the word for the name of a file, and make it.
    if (connectString.startsWith(u"DSN=", Qt::CaseInsensitive) &&
        dataSourceIn(connectString).isEmpty()) {
        throw DatabaseError(Failure::Unreachable, ErrorNumber::DatabaseFailure,
                            QStringLiteral("No data source is named."));
    }
    const SQLRETURN result = awaited([&] {
        return SQLDriverConnectW(get(), nullptr, wide(connectString),
                                 static_cast<SQLSMALLINT>(wideLength(connectString)), nullptr, 0,
                                 nullptr, SQL_DRIVER_NOPROMPT);
    });
    if (!SQL_SUCCEEDED(result)) {
        const Diagnostics diagnostics = diagnosticsOf(SQL_HANDLE_DBC, get(), TextForm::Utf16);
        DatabaseError error(Failure::Unreachable, ErrorNumber::DatabaseFailure,
                            withoutPasswords(diagnostics, m_passwords));
        error.explain(connectFaultWords(diagnostics, driverIn(connectString)));
        throw error;
    }
}

/// As ODBC has it at first; told once more a driver may ask its server for it, which costs a
/// journey.
void ConnectionHandle::commitEachStatement()
{
    SQLUINTEGER mode = SQL_AUTOCOMMIT_OFF;
    const SQLRETURN told = SQLGetConnectAttr(get(), SQL_ATTR_AUTOCOMMIT, &mode, 0, nullptr);
    if (!SQL_SUCCEEDED(told) || mode != SQL_AUTOCOMMIT_ON) {
        SQLSetConnectAttr(get(), SQL_ATTR_AUTOCOMMIT, numberArgument(SQL_AUTOCOMMIT_ON), 0);
    }
}

QString ConnectionHandle::info(SQLUSMALLINT what) const
{
    constexpr std::size_t longestInfo = 128;
    std::array<SQLWCHAR, longestInfo> text{};
    const SQLRETURN result =
        SQLGetInfoW(get(), what, text.data(),
                    static_cast<SQLSMALLINT>(text.size() * sizeof(SQLWCHAR)), nullptr);
    return SQL_SUCCEEDED(result) ? fromWide(text.data()) : QString();
}

bool ConnectionHandle::readsBoundFieldsInAnyOrder() const
{
    constexpr SQLUINTEGER needed = SQL_GD_BOUND | SQL_GD_ANY_COLUMN | SQL_GD_ANY_ORDER;
    SQLUINTEGER extensions = 0;
    return SQL_SUCCEEDED(SQLGetInfoW(get(), SQL_GETDATA_EXTENSIONS, &extensions, sizeof(extensions),
                                     nullptr)) &&
           (extensions & needed) == needed;
}

QString ConnectionHandle::quoted(const QString& identifier) const
{
    if (m_quote.trimmed().isEmpty()) { // a blank says that the driver quotes nothing
        return identifier;
    }
    return m_quote + QString(identifier).replace(m_quote, m_quote + m_quote) + m_quote;
}

bool ConnectionHandle::isDead() const
{
    SQLUINTEGER state = SQL_CD_FALSE;
    const SQLRETURN told = awaited(
        [&] { return SQLGetConnectAttr(get(), SQL_ATTR_CONNECTION_DEAD, &state, 0, nullptr); });
    return (SQL_SUCCEEDED(told) && state == SQL_CD_TRUE) || m_product->isOutdated();
}

SQLRETURN ConnectionHandle::awaited(const std::function<SQLRETURN()>& call) const
{
    SQLRETURN result = SQL_ERROR;
    m_await([&] { result = call(); });
    return result;
}

void ConnectionHandle::raise(SQLSMALLINT handleType, SQLHANDLE handle,
                             std::chrono::milliseconds waited) const
{
    const Diagnostics diagnostics = diagnosticsOf(handleType, handle, textForm());
    Failure failure = m_product->failureOf(diagnostics);
    // A driver that has waited in vain gives the connection up and says that it is lost.
    if (failure == Failure::ConnectionLost && waited >= kAnswerLimit - kTimerSlack) {
        failure = Failure::NoAnswer;
    }
    throw DatabaseError(failure, m_product->errorNumberOf(diagnostics),
                        withoutPasswords(diagnostics, m_passwords));
}

StatementHandle::StatementHandle(const ConnectionHandle& connection)
    : m_connection(&connection), m_handle(nullptr), m_asked(std::chrono::steady_clock::now())
{
    SQLHANDLE handle = nullptr;
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_STMT, connection.get(), &handle))) {
        connection.raise(SQL_HANDLE_DBC, connection.get());
    }
    m_handle = OdbcHandle<SQL_HANDLE_STMT>(handle);
}

void StatementHandle::setAttribute(SQLINTEGER attribute, SQLULEN value)
{
    check(SQLSetStmtAttr(get(), attribute, numberArgument(value), 0));
}

void StatementHandle::execute(const QString& sql)
{
    SQLRETURN result = SQL_SUCCESS;
    m_asked = std::chrono::steady_clock::now();
    if (m_connection->textForm() == TextForm::Utf8) {
        const QByteArray text = sql.toUtf8();
        result = m_connection->awaited([&] {
            return SQLExecDirect(get(), narrow(text), static_cast<SQLINTEGER>(text.size()));
        });
    } else {
        result = m_connection->awaited(
            [&] { return SQLExecDirectW(get(), wide(sql), wideLength(sql)); });
    }
    if (result != SQL_NO_DATA) { // the answer to a deletion that found no row
        check(result);
    }
}

bool StatementHandle::fetch()
{
    m_asked = std::chrono::steady_clock::now();
    return isRow(SQLFetch(get()));
}

bool StatementHandle::fetchRowset()
{
    m_asked = std::chrono::steady_clock::now();
    return isRow(SQLFetchScroll(get(), SQL_FETCH_NEXT, 0));
}

bool StatementHandle::isRow(SQLRETURN fetched) const
{
    if (fetched == SQL_NO_DATA) {
        return false;
    }
    check(fetched);
    return true;
}

SQLLEN StatementHandle::changedRows() const
{
    SQLLEN rows = -1;
    return SQL_SUCCEEDED(SQLRowCount(get(), &rows)) ? rows : -1;
}

void StatementHandle::check(SQLRETURN result) const
{
    if (!SQL_SUCCEEDED(result)) {
        m_connection->raise(SQL_HANDLE_STMT, get(),
                            std::chrono::duration_cast<std::chrono::milliseconds>(
                                std::chrono::steady_clock::now() - m_asked));
    }
}

} // namespace db
