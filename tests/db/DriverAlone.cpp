// What ODBC's manager does between a program and a driver that knows texts in UTF-16 alone: the few
// functions that the program calls in the other form. A program that links this and the driver's
// own library calls the driver itself. So the driver of SQLite for Windows is tried under Wine,
// whose manager hands every call on to the drivers of the machine.
#include "db/OdbcApi.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace
{

constexpr SQLSMALLINT kStateRoom = 6;
constexpr SQLSMALLINT kTextRoom = 2048;

std::wstring wide(const SQLCHAR* text, SQLINTEGER length)
{
    const char* bytes = reinterpret_cast<const char*>(text);
    const int size = length == SQL_NTS ? static_cast<int>(std::strlen(bytes)) : length;
    std::wstring result(
        static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes, size, nullptr, 0)), L' ');
    MultiByteToWideChar(CP_ACP, 0, bytes, size, result.data(), static_cast<int>(result.size()));
    return result;
}

/// The length of all of it, as much of which is written as there is room for.
SQLSMALLINT narrow(const SQLWCHAR* text, SQLCHAR* to, SQLSMALLINT room)
{
    const auto* const units = reinterpret_cast<const wchar_t*>(text);
    std::vector<char> bytes(static_cast<std::size_t>(
        WideCharToMultiByte(CP_ACP, 0, units, -1, nullptr, 0, nullptr, nullptr)));
    WideCharToMultiByte(CP_ACP, 0, units, -1, bytes.data(), static_cast<int>(bytes.size()), nullptr,
                        nullptr);
    const auto length = static_cast<SQLSMALLINT>(bytes.size() - 1);
    if (to != nullptr && room > 0) {
        const SQLSMALLINT written = std::min<SQLSMALLINT>(length, room - 1);
        std::memcpy(to, bytes.data(), static_cast<std::size_t>(written));
        to[written] = 0;
    }
    return length;
}

} // namespace

extern "C" {

SQLRETURN SQL_API SQLGetConnectAttr(SQLHDBC connection, SQLINTEGER attribute, SQLPOINTER value,
                                    SQLINTEGER room, SQLINTEGER* length)
{
    return SQLGetConnectAttrW(connection, attribute, value, room, length);
}

SQLRETURN SQL_API SQLSetConnectAttr(SQLHDBC connection, SQLINTEGER attribute, SQLPOINTER value,
                                    SQLINTEGER length)
{
    return SQLSetConnectAttrW(connection, attribute, value, length);
}

SQLRETURN SQL_API SQLSetStmtAttr(SQLHSTMT statement, SQLINTEGER attribute, SQLPOINTER value,
                                 SQLINTEGER length)
{
    return SQLSetStmtAttrW(statement, attribute, value, length);
}

SQLRETURN SQL_API SQLExecDirect(SQLHSTMT statement, SQLCHAR* sql, SQLINTEGER length)
{
    std::wstring text = wide(sql, length);
    return SQLExecDirectW(statement, reinterpret_cast<SQLWCHAR*>(text.data()),
                          static_cast<SQLINTEGER>(text.size()));
}

SQLRETURN SQL_API SQLGetDiagRec(SQLSMALLINT kind, SQLHANDLE handle, SQLSMALLINT number,
                                SQLCHAR* state, SQLINTEGER* code, SQLCHAR* text, SQLSMALLINT room,
                                SQLSMALLINT* length)
{
    std::vector<SQLWCHAR> states(kStateRoom);
    std::vector<SQLWCHAR> texts(kTextRoom);
    SQLSMALLINT size = 0;
    const SQLRETURN result =
        SQLGetDiagRecW(kind, handle, number, states.data(), code, texts.data(), kTextRoom, &size);
    if (SQL_SUCCEEDED(result)) {
        narrow(states.data(), state, kStateRoom);
        *length = narrow(texts.data(), text, room);
    }
    return result;
}

SQLRETURN SQL_API SQLDescribeCol(SQLHSTMT statement, SQLUSMALLINT column, SQLCHAR* name,
                                 SQLSMALLINT room, SQLSMALLINT* length, SQLSMALLINT* type,
                                 SQLULEN* size, SQLSMALLINT* digits, SQLSMALLINT* nulls)
{
    std::vector<SQLWCHAR> names(kTextRoom);
    SQLSMALLINT units = 0;
    const SQLRETURN result = SQLDescribeColW(statement, column, names.data(), kTextRoom, &units,
                                             type, size, digits, nulls);
    if (SQL_SUCCEEDED(result)) {
        *length = narrow(names.data(), name, room);
    }
    return result;
}

} // extern "C"
