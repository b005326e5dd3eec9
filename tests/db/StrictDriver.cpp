// An ODBC driver that stands in for that of Access, as far as its documentation tells what it
// refuses: it names itself ACCESS, knows neither integers of 64 bits nor dates without a time, and
// deletes through a keyset-driven cursor only. Behind it there are no tables: what is inserted is
// counted, whatever the table, and every "select *" finds all of it. What it is sent it writes to
// the file that the connection string names as Log. The functions' contracts are ODBC's own.

#ifndef SQL_NOUNICODEMAP
#define SQL_NOUNICODEMAP
#endif
#include <sql.h>
#include <sqlext.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace
{

struct Parameter {
    SQLSMALLINT cType = 0;
    SQLPOINTER value = nullptr;
    const SQLLEN* length = nullptr;
};

/// An environment, a connection or a statement: each uses what is its own.
struct Handle {
    Handle* parent = nullptr;
    std::string state; ///< SQLSTATE of the last failure; empty without one
    // Connection
    std::ofstream log;
    int rows = 0;
    // Statement
    std::vector<Parameter> parameters;
    std::string sql;
    SQLULEN cursorType = SQL_CURSOR_FORWARD_ONLY;
    SQLULEN concurrency = SQL_CONCUR_READ_ONLY;
    int position = 0; ///< of the current row, from 1 on; 0 before the first
};

Handle& handleAt(SQLHANDLE handle)
{
    return *static_cast<Handle*>(handle);
}

SQLRETURN refuse(Handle& handle, const char* state)
{
    handle.state = state;
    return SQL_ERROR;
}

/// ASCII is all that the tests send.
std::string narrow(const SQLWCHAR* text, SQLLEN length)
{
    std::string result;
    for (SQLLEN i = 0; length == SQL_NTS ? text[i] != 0 : i < length; ++i) {
        result += static_cast<char>(text[i]);
    }
    return result;
}

/// `Character` is wide or narrow.
template <typename Character>
void put(const std::string& text, Character* buffer)
{
    *std::copy(text.begin(), text.end(), buffer) = 0;
}

template <typename Character>
SQLRETURN diagnose(const Handle& failed, SQLSMALLINT record, Character* state, SQLINTEGER* native,
                   Character* text, SQLSMALLINT* length)
{
    const std::string message = "Optional feature not implemented";
    if (record != 1 || failed.state.empty()) {
        return SQL_NO_DATA;
    }
    put(failed.state, state);
    put(message, text);
    *native = 0;
    *length = static_cast<SQLSMALLINT>(message.size());
    return SQL_SUCCESS;
}

std::string valueOf(const Parameter& parameter)
{
    if (parameter.length != nullptr && *parameter.length == SQL_NULL_DATA) {
        return "null";
    }
    switch (parameter.cType) {
    case SQL_C_SLONG:
        return "integer " + std::to_string(*static_cast<const SQLINTEGER*>(parameter.value));
    case SQL_C_BIT:
        return "bit " + std::to_string(*static_cast<const SQLCHAR*>(parameter.value));
    case SQL_C_WCHAR:
        return "text " + narrow(static_cast<const SQLWCHAR*>(parameter.value),
                                *parameter.length / static_cast<SQLLEN>(sizeof(SQLWCHAR)));
    case SQL_C_TYPE_TIMESTAMP: {
        const auto& time = *static_cast<const SQL_TIMESTAMP_STRUCT*>(parameter.value);
        return "time " + std::to_string(time.year) + ' ' + std::to_string(time.month) + ' ' +
               std::to_string(time.day) + ' ' +
               std::to_string(time.hour + time.minute + time.second);
    }
    default:
        return "other";
    }
}

bool startsWith(const std::string& sql, const char* word)
{
    return sql.rfind(word, 0) == 0;
}

SQLRETURN fetchNext(Handle& statement)
{
    const bool hasRows = startsWith(statement.sql, "select *");
    if (!hasRows || statement.position >= statement.parent->rows) {
        return SQL_NO_DATA;
    }
    ++statement.position;
    return SQL_SUCCESS;
}

} // namespace

extern "C" {

SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT /*type*/, SQLHANDLE parent, SQLHANDLE* handle)
{
    auto made = std::make_unique<Handle>();
    made->parent = static_cast<Handle*>(parent);
    *handle = made.release();
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFreeHandle(SQLSMALLINT /*type*/, SQLHANDLE handle)
{
    const std::unique_ptr<Handle> freed(static_cast<Handle*>(handle));
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetEnvAttr(SQLHENV, SQLINTEGER, SQLPOINTER, SQLINTEGER)
{
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetConnectAttr(SQLHDBC, SQLINTEGER, SQLPOINTER, SQLINTEGER)
{
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDriverConnectW(SQLHDBC connection, SQLHWND, SQLWCHAR* text, SQLSMALLINT length,
                                    SQLWCHAR*, SQLSMALLINT, SQLSMALLINT*, SQLUSMALLINT)
{
    const std::string words = narrow(text, length);
    const std::string key = "Log=";
    const std::size_t start = words.find(key) + key.size();
    handleAt(connection).log.open(words.substr(start, words.find(';', start) - start));
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDisconnect(SQLHDBC connection)
{
    handleAt(connection).log.close();
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetInfoW(SQLHDBC, SQLUSMALLINT what, SQLPOINTER value, SQLSMALLINT,
                              SQLSMALLINT* length)
{
    const std::string text = what == SQL_DBMS_NAME               ? "ACCESS"
                             : what == SQL_IDENTIFIER_QUOTE_CHAR ? "`"
                             : what == SQL_DRIVER_ODBC_VER       ? "03.51"
                                                                 : "";
    if (text.empty()) {
        return SQL_ERROR;
    }
    put(text, static_cast<SQLWCHAR*>(value));
    if (length != nullptr) {
        *length = static_cast<SQLSMALLINT>(text.size() * sizeof(SQLWCHAR));
    }
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetStmtAttr(SQLHSTMT statement, SQLINTEGER attribute, SQLPOINTER value,
                                 SQLINTEGER)
{
    const auto number = reinterpret_cast<SQLULEN>(value);
    if (attribute == SQL_ATTR_CURSOR_TYPE) {
        handleAt(statement).cursorType = number;
    } else if (attribute == SQL_ATTR_CONCURRENCY) {
        if (number == SQL_CONCUR_ROWVER) {
            return refuse(handleAt(statement), "HYC00");
        }
        handleAt(statement).concurrency = number;
    }
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLBindParameter(SQLHSTMT statement, SQLUSMALLINT, SQLSMALLINT, SQLSMALLINT cType,
                                   SQLSMALLINT sqlType, SQLULEN, SQLSMALLINT, SQLPOINTER value,
                                   SQLLEN, SQLLEN* length)
{
    constexpr std::array<SQLSMALLINT, 5> known{SQL_INTEGER, SQL_BIT, SQL_VARCHAR, SQL_WVARCHAR,
                                               SQL_TYPE_TIMESTAMP};
    if (std::find(known.begin(), known.end(), sqlType) == known.end()) {
        return refuse(handleAt(statement), "HYC00");
    }
    handleAt(statement).parameters.push_back({cType, value, length});
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLExecDirectW(SQLHSTMT statement, SQLWCHAR* text, SQLINTEGER length)
{
    Handle& executed = handleAt(statement);
    executed.sql = narrow(text, length);
    executed.position = 0;
    std::ofstream& log = executed.parent->log;
    log << executed.sql << '\n';
    for (const Parameter& parameter : executed.parameters) {
        log << valueOf(parameter) << '\n';
    }
    log.flush();
    executed.parent->rows += startsWith(executed.sql, "INSERT") ? 1 : 0;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT statement, SQLSMALLINT* count)
{
    *count = startsWith(handleAt(statement).sql, "INSERT") ? 0 : 1;
    return SQL_SUCCESS;
}

/// The columns of `SELECT` alone: dates where the name says so.
SQLRETURN SQL_API SQLDescribeColW(SQLHSTMT statement, SQLUSMALLINT, SQLWCHAR* name, SQLSMALLINT,
                                  SQLSMALLINT* nameLength, SQLSMALLINT* type, SQLULEN* size,
                                  SQLSMALLINT* digits, SQLSMALLINT* nullable)
{
    const bool isDate = handleAt(statement).sql.find("`Date") != std::string::npos;
    put("C", name);
    if (nameLength != nullptr) {
        *nameLength = 1;
    }
    *type = isDate ? SQL_TYPE_TIMESTAMP : SQL_WVARCHAR;
    *size = isDate ? 19 : 50;
    *digits = 0;
    *nullable = SQL_NULLABLE;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT statement)
{
    return fetchNext(handleAt(statement));
}

SQLRETURN SQL_API SQLFetchScroll(SQLHSTMT statement, SQLSMALLINT, SQLLEN)
{
    return fetchNext(handleAt(statement));
}

SQLRETURN SQL_API SQLSetPos(SQLHSTMT statement, SQLSETPOSIROW row, SQLUSMALLINT operation,
                            SQLUSMALLINT)
{
    Handle& cursor = handleAt(statement);
    if (row != 1 || cursor.position == 0) {
        return refuse(cursor, "HY107");
    }
    if (operation != SQL_DELETE) {
        return SQL_SUCCESS;
    }
    if (cursor.cursorType != SQL_CURSOR_KEYSET_DRIVEN ||
        cursor.concurrency == SQL_CONCUR_READ_ONLY) {
        return refuse(cursor, "HYC00");
    }
    cursor.parent->log << "delete row " << cursor.position << '\n' << std::flush;
    --cursor.parent->rows;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetDiagRecW(SQLSMALLINT /*type*/, SQLHANDLE handle, SQLSMALLINT record,
                                 SQLWCHAR* state, SQLINTEGER* native, SQLWCHAR* text, SQLSMALLINT,
                                 SQLSMALLINT* length)
{
    return diagnose(handleAt(handle), record, state, native, text, length);
}

/// The driver manager asks here after a call that has no wide form.
SQLRETURN SQL_API SQLGetDiagRec(SQLSMALLINT /*type*/, SQLHANDLE handle, SQLSMALLINT record,
                                SQLCHAR* state, SQLINTEGER* native, SQLCHAR* text, SQLSMALLINT,
                                SQLSMALLINT* length)
{
    return diagnose(handleAt(handle), record, state, native, text, length);
}

// Without these two the driver manager would not ask for the records either.

SQLRETURN SQL_API SQLGetDiagFieldW(SQLSMALLINT /*type*/, SQLHANDLE, SQLSMALLINT, SQLSMALLINT,
                                   SQLPOINTER, SQLSMALLINT, SQLSMALLINT*)
{
    return SQL_NO_DATA;
}

SQLRETURN SQL_API SQLGetDiagField(SQLSMALLINT /*type*/, SQLHANDLE, SQLSMALLINT, SQLSMALLINT,
                                  SQLPOINTER, SQLSMALLINT, SQLSMALLINT*)
{
    return SQL_NO_DATA;
}

} // extern "C"
