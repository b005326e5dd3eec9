#include "db/OdbcHandles.h"

#include "db/ConnectOptions.h"

#include <array>
#include <vector>

namespace db
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

/// Nobody waits longer for a server that does not answer.
constexpr SQLULEN loginTimeoutSeconds = 15;

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

SQLCHAR* narrow(const QByteArray& text)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): taken without const, never written
    return const_cast<SQLCHAR*>(reinterpret_cast<const SQLCHAR*>(text.constData()));
}

/// One diagnostic record of a handle; false when there is no such record.
bool readRecord(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT index, TextForm form,
                Diagnostics& record)
{
    constexpr std::size_t longestMessage = 2048;
    constexpr int stateLength = 5;
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    if (form == TextForm::Utf8) {
        std::array<SQLCHAR, stateLength + 1> state{};
        std::array<SQLCHAR, longestMessage> text{};
        if (!SQL_SUCCEEDED(SQLGetDiagRec(type, handle, index, state.data(), &native, text.data(),
                                         static_cast<SQLSMALLINT>(text.size()), &length))) {
            return false;
        }
        record.state = QString::fromUtf8(reinterpret_cast<const char*>(state.data()));
        record.text = QString::fromUtf8(reinterpret_cast<const char*>(text.data()));
    } else {
        std::array<SQLWCHAR, stateLength + 1> state{};
        std::array<SQLWCHAR, longestMessage> text{};
        if (!SQL_SUCCEEDED(SQLGetDiagRecW(type, handle, index, state.data(), &native, text.data(),
                                          static_cast<SQLSMALLINT>(text.size()), &length))) {
            return false;
        }
        record.state = QString::fromUtf16(reinterpret_cast<const char16_t*>(state.data()));
        record.text = QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data()));
    }
    record.nativeCode = native;
    return true;
}

Diagnostics diagnosticsOf(SQLSMALLINT type, SQLHANDLE handle, TextForm form)
{
    constexpr SQLSMALLINT mostRecords = 20;
    Diagnostics all;
    QStringList texts;
    Diagnostics record;
    for (SQLSMALLINT i = 1; i <= mostRecords && readRecord(type, handle, i, form, record); ++i) {
        if (i == 1) {
            all = record;
        }
        texts << record.text;
    }
    texts.removeDuplicates();
    if (texts.isEmpty()) {
        texts << QStringLiteral("The driver gives no reason.");
    }
    all.text = texts.join(u'\n');
    return all;
}

SQLHANDLE allocated(SQLSMALLINT type, SQLHANDLE parent)
{
    SQLHANDLE handle = nullptr;
    if (!SQL_SUCCEEDED(SQLAllocHandle(type, parent, &handle))) {
        throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("ODBC is not available."));
    }
    return handle;
}

Product productNamed(const QString& name)
{
    if (name.contains(QStringLiteral("sqlite"), Qt::CaseInsensitive)) {
        return Product::Sqlite;
    }
    if (name.contains(QStringLiteral("mysql"), Qt::CaseInsensitive) ||
        name.contains(QStringLiteral("mariadb"), Qt::CaseInsensitive)) {
        return Product::MySql;
    }
    return Product::Other;
}

/// SQLite's driver knows UTF-8 alone where there is no Windows. The driver manager would put texts
/// into the process's character set for it, and cut every character outside the Basic Multilingual
/// Plane down to single bytes; the narrow functions pass UTF-8 on untouched.
TextForm textFormFor(Product product)
{
#ifdef _WIN32
    static_cast<void>(product);
    return TextForm::Utf16;
#else
    return product == Product::Sqlite ? TextForm::Utf8 : TextForm::Utf16;
#endif
}

} // namespace

EnvironmentHandle::EnvironmentHandle() : m_handle(allocated(SQL_HANDLE_ENV, SQL_NULL_HANDLE))
{
    SQLSetEnvAttr(get(), SQL_ATTR_ODBC_VERSION, numberArgument(SQL_OV_ODBC3), 0);
}

ConnectionHandle::ConnectionHandle(const EnvironmentHandle& environment,
                                   const QString& connectString)
    : m_passwords(passwordsIn(connectString)),
      m_handle(allocated(SQL_HANDLE_DBC, environment.get()))
{
    // Drivers without a server have no login timeout and may say so.
    SQLSetConnectAttr(get(), SQL_ATTR_LOGIN_TIMEOUT, numberArgument(loginTimeoutSeconds), 0);
    connect(withServerTimeouts(connectString));
    m_product = productNamed(info(SQL_DBMS_NAME));
    if (m_product == Product::Sqlite) {
        // Only now is it known which driver stands behind a data source's name, and no other may
        // be given words that it does not know.
        SQLDisconnect(get());
        connect(withLockTimeout(connectString));
    }
    m_textForm = textFormFor(m_product);
    if (m_product == Product::MySql) {
        askServer();
    }
    m_rereadsBoundFields = readsBoundFieldsInAnyOrder();
    m_quote = info(SQL_IDENTIFIER_QUOTE_CHAR);
    SQLSetConnectAttr(get(), SQL_ATTR_AUTOCOMMIT, numberArgument(SQL_AUTOCOMMIT_ON), 0);
}

void ConnectionHandle::connect(const QString& connectString)
{
    const SQLRETURN result = SQLDriverConnectW(get(), nullptr, wide(connectString),
                                               static_cast<SQLSMALLINT>(connectString.size()),
                                               nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(result)) {
        const Diagnostics diagnostics = diagnosticsOf(SQL_HANDLE_DBC, get(), TextForm::Utf16);
        throw RunTimeError(errorNumberOf(diagnostics, m_product, true),
                           withoutPasswords(diagnostics.text, m_passwords));
    }
}

QString ConnectionHandle::info(SQLUSMALLINT what) const
{
    constexpr std::size_t longestInfo = 128;
    std::array<SQLWCHAR, longestInfo> text{};
    const SQLRETURN result =
        SQLGetInfoW(get(), what, text.data(),
                    static_cast<SQLSMALLINT>(text.size() * sizeof(SQLWCHAR)), nullptr);
    return SQL_SUCCEEDED(result)
               ? QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data()))
               : QString();
}

/// The driver chooses the character set of results when it connects, by its version and options;
/// what it says of the server is its own product's name. Without an answer neither is known.
void ConnectionHandle::askServer()
{
    constexpr std::size_t longestAnswer = 256;
    std::array<SQLWCHAR, longestAnswer> text{};
    const StatementHandle statement(*this);
    const QString question =
        QStringLiteral("select concat_ws(' ', @@character_set_results, @@version)");
    const bool answered =
        SQL_SUCCEEDED(SQLExecDirectW(statement.get(), wide(question),
                                     static_cast<SQLINTEGER>(question.size()))) &&
        SQL_SUCCEEDED(SQLFetch(statement.get())) &&
        SQL_SUCCEEDED(SQLGetData(statement.get(), 1, SQL_C_WCHAR, text.data(),
                                 static_cast<SQLLEN>(text.size() * sizeof(SQLWCHAR)), nullptr));
    if (answered) {
        const QString answer = QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data()));
        m_sendsUtf8 = answer.startsWith(u"utf8"); // utf8, utf8mb3, utf8mb4
        m_isMariaDb = answer.contains(u"mariadb", Qt::CaseInsensitive);
    }
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

void ConnectionHandle::raise(SQLSMALLINT handleType, SQLHANDLE handle) const
{
    const Diagnostics diagnostics = diagnosticsOf(handleType, handle, m_textForm);
    throw RunTimeError(errorNumberOf(diagnostics, m_product, false),
                       withoutPasswords(diagnostics.text, m_passwords));
}

StatementHandle::StatementHandle(const ConnectionHandle& connection)
    : m_connection(&connection), m_handle(nullptr)
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
    if (m_connection->textForm() == TextForm::Utf8) {
        const QByteArray text = sql.toUtf8();
        result = SQLExecDirect(get(), narrow(text), static_cast<SQLINTEGER>(text.size()));
    } else {
        result = SQLExecDirectW(get(), wide(sql), static_cast<SQLINTEGER>(sql.size()));
    }
    if (result != SQL_NO_DATA) { // the answer to a deletion that found no row
        check(result);
    }
}

bool StatementHandle::fetch()
{
    return isRow(SQLFetch(get()));
}

bool StatementHandle::fetchRowset()
{
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
        m_connection->raise(SQL_HANDLE_STMT, get());
    }
}

} // namespace db
