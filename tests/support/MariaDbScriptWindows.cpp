// Where there may be no command line client, a script goes through ODBC: by its plain functions,
// and not by those of the program.

#include "support/MariaDbAccess.h"

#include <windows.h>

#include <QStringList>
#include <array>
#include <sql.h>
#include <sqlext.h>
#include <stdexcept>

namespace test
{
namespace
{

SQLWCHAR* wide(QString& text)
{
    return reinterpret_cast<SQLWCHAR*>(text.data());
}

/// A connection of its own, and a statement on it.
class Line
{
public:
    explicit Line(QString words)
    {
        SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &m_environment);
        SQLSetEnvAttr(m_environment, SQL_ATTR_ODBC_VERSION,
                      reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        SQLAllocHandle(SQL_HANDLE_DBC, m_environment, &m_connection);
        check(SQLDriverConnectW(m_connection, nullptr, wide(words), SQL_NTS, nullptr, 0, nullptr,
                                SQL_DRIVER_NOPROMPT),
              SQL_HANDLE_DBC, m_connection);
        SQLAllocHandle(SQL_HANDLE_STMT, m_connection, &m_statement);
    }
    ~Line()
    {
        SQLFreeHandle(SQL_HANDLE_STMT, m_statement);
        SQLDisconnect(m_connection);
        SQLFreeHandle(SQL_HANDLE_DBC, m_connection);
        SQLFreeHandle(SQL_HANDLE_ENV, m_environment);
    }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    void send(QString statement)
    {
        const SQLRETURN result = SQLExecDirectW(m_statement, wide(statement), SQL_NTS);
        if (result != SQL_NO_DATA) {
            check(result, SQL_HANDLE_STMT, m_statement);
        }
    }
    /// The rows of what was sent, as the client writes them.
    [[nodiscard]] QByteArray rows()
    {
        QByteArray all;
        SQLSMALLINT columns = 0;
        SQLNumResultCols(m_statement, &columns);
        while (columns > 0 && SQL_SUCCEEDED(SQLFetch(m_statement))) {
            for (SQLSMALLINT column = 1; column <= columns; ++column) {
                all += field(column) + (column < columns ? '\t' : '\n');
            }
        }
        SQLFreeStmt(m_statement, SQL_CLOSE);
        return all;
    }

private:
    static void check(SQLRETURN result, SQLSMALLINT type, SQLHANDLE handle)
    {
        if (SQL_SUCCEEDED(result)) {
            return;
        }
        std::array<SQLWCHAR, 6> state{};
        std::array<SQLWCHAR, 1024> text{};
        SQLINTEGER native = 0;
        SQLSMALLINT length = 0;
        SQLGetDiagRecW(type, handle, 1, state.data(), &native, text.data(),
                       static_cast<SQLSMALLINT>(text.size() - 1), &length);
        throw std::runtime_error(
            QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data())).toStdString());
    }
    [[nodiscard]] QByteArray field(SQLSMALLINT column)
    {
        std::array<SQLWCHAR, 8192> piece{};
        QString read;
        SQLLEN left = 0; // a longer field comes in pieces, each of them ended by a null character
        SQLRETURN result = SQL_SUCCESS_WITH_INFO;
        while (result == SQL_SUCCESS_WITH_INFO) {
            result = SQLGetData(m_statement, static_cast<SQLUSMALLINT>(column), SQL_C_WCHAR,
                                piece.data(), static_cast<SQLLEN>(sizeof(piece)), &left);
            if (left == SQL_NULL_DATA) {
                return "NULL";
            }
            if (SQL_SUCCEEDED(result)) {
                read += QString::fromUtf16(reinterpret_cast<const char16_t*>(piece.data()));
            }
        }
        return read.replace(u'\\', QStringLiteral("\\\\"))
            .replace(u'\t', QStringLiteral("\\t"))
            .replace(u'\n', QStringLiteral("\\n"))
            .toUtf8();
    }

    SQLHENV m_environment = nullptr;
    SQLHDBC m_connection = nullptr;
    SQLHSTMT m_statement = nullptr;
};

} // namespace

QByteArray MariaDbAccess::runScript(const QString& statements, const QString& database) const
{
    Line line(connectString(database, kAdministrator, {}));
    QByteArray output;
    for (const QString& statement : statements.split(QStringLiteral(";\n"), Qt::SkipEmptyParts)) {
        line.send(statement);
        output += line.rows();
    }
    return output;
}

} // namespace test
