// An ODBC driver that calls itself ACCESS, on top of SQLite's: whatever a program asks of it is
// asked of an SQLite file, so that a program in Access mode finds a faculty and goes all its ways.
// Each statement is written, as it came, to the file that the data source names as Log, one a line.
//
// Of Access's own forms it turns #03/15/07# and ISNULL(x) into SQLite's; a row is deleted through a
// cursor. All else goes to SQLite's driver, which this one is linked with: the manager finds there
// what it does not find here. Like that driver it has the narrow functions alone.

#ifndef SQL_NOUNICODEMAP
#define SQL_NOUNICODEMAP
#endif
#include <sql.h>
#include <sqlext.h>

#include <QFile>
#include <QRegularExpression>
#include <QString>
#include <array>
#include <dlfcn.h>
#include <map>
#include <mutex>
#include <odbcinst.h>

namespace
{

/// A function of SQLite's driver, by its name.
template <typename Function>
Function* beneath(Function* /*same type*/, const char* name)
{
    static void* const driver = dlopen(TEMPORA_SQLITE_DRIVER, RTLD_LAZY);
    return reinterpret_cast<Function*>(dlsym(driver, name));
}

/// What is known of a statement.
struct Sent {
    SQLHDBC connection = nullptr;
    QString sql;
};

/// All statements of the process, and where each connection's are told.
struct Book {
    std::mutex mutex;
    std::map<SQLHSTMT, Sent> statements;
    std::map<SQLHDBC, QString> logs;
};

Book& book()
{
    static Book kept;
    return kept;
}

QString textOf(const SQLCHAR* text, SQLLEN length)
{
    const auto* const bytes = reinterpret_cast<const char*>(text);
    return QString::fromUtf8(bytes, length == SQL_NTS ? -1 : length);
}

QString inWordsOfSqlite(QString sql)
{
    static const QRegularExpression date(QStringLiteral("#(\\d\\d)/(\\d\\d)/(\\d\\d)#"));
    static const QRegularExpression isNull(QStringLiteral("\\bisnull\\(([^()]*)\\)"),
                                           QRegularExpression::CaseInsensitiveOption);
    sql.replace(date, QStringLiteral("'20\\3-\\1-\\2'"));
    return sql.replace(isNull, QStringLiteral("(\\1 is null)"));
}

SQLRETURN executed(SQLHSTMT statement, const QString& sql)
{
    QByteArray bytes = sql.toUtf8();
    return beneath(SQLExecDirect,
                   "SQLExecDirect")(statement, reinterpret_cast<SQLCHAR*>(bytes.data()), SQL_NTS);
}

/// The first row that the query finds; `sql` is a "select * from" one table.
SQLRETURN deleteFirst(const Sent& found)
{
    static const QRegularExpression query(QStringLiteral("^\\s*select \\* from (\\S+)(.*)$"),
                                          QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch parts = query.match(inWordsOfSqlite(found.sql));
    SQLHSTMT deleting = nullptr;
    beneath(SQLAllocStmt, "SQLAllocStmt")(found.connection, &deleting);
    const SQLRETURN result =
        executed(deleting, QStringLiteral("delete from %1 where rowid = (select rowid from %1%2 "
                                          "limit 1)")
                               .arg(parts.captured(1), parts.captured(2)));
    beneath(SQLFreeStmt, "SQLFreeStmt")(deleting, SQL_DROP);
    return result;
}

} // namespace

extern "C" {

SQLRETURN SQL_API SQLDriverConnect(SQLHDBC connection, SQLHWND window, SQLCHAR* text,
                                   SQLSMALLINT length, SQLCHAR* out, SQLSMALLINT outSize,
                                   SQLSMALLINT* outLength, SQLUSMALLINT completion)
{
    const QString words = textOf(text, length);
    const QString source = words.section(QStringLiteral("DSN="), 1).section(u';', 0, 0);
    std::array<char, 1024> log{};
    SQLGetPrivateProfileString(source.toUtf8().constData(), "Log", "", log.data(),
                               static_cast<int>(log.size()) - 1, "odbc.ini");
    {
        const std::lock_guard lock(book().mutex);
        book().logs[connection] = QString::fromUtf8(log.data());
    }
    return beneath(SQLDriverConnect, "SQLDriverConnect")(connection, window, text, length, out,
                                                         outSize, outLength, completion);
}

SQLRETURN SQL_API SQLGetInfo(SQLHDBC connection, SQLUSMALLINT what, SQLPOINTER value,
                             SQLSMALLINT size, SQLSMALLINT* length)
{
    const char* const text = what == SQL_DBMS_NAME               ? "ACCESS"
                             : what == SQL_IDENTIFIER_QUOTE_CHAR ? "`"
                                                                 : nullptr;
    if (text == nullptr) {
        return beneath(SQLGetInfo, "SQLGetInfo")(connection, what, value, size, length);
    }
    qstrncpy(static_cast<char*>(value), text, static_cast<std::size_t>(size));
    if (length != nullptr) {
        *length = static_cast<SQLSMALLINT>(qstrlen(text));
    }
    return SQL_SUCCESS;
}

/// By this one the manager makes its statements.
SQLRETURN SQL_API SQLAllocStmt(SQLHDBC connection, SQLHSTMT* statement)
{
    const SQLRETURN result = beneath(SQLAllocStmt, "SQLAllocStmt")(connection, statement);
    if (SQL_SUCCEEDED(result)) {
        const std::lock_guard lock(book().mutex);
        book().statements[*statement] = {connection, {}};
    }
    return result;
}

SQLRETURN SQL_API SQLExecDirect(SQLHSTMT statement, SQLCHAR* text, SQLINTEGER length)
{
    const QString sql = textOf(text, length);
    {
        const std::lock_guard lock(book().mutex);
        Sent& sent = book().statements[statement];
        sent.sql = sql;
        QFile log(book().logs[sent.connection]);
        if (log.open(QIODevice::Append)) {
            log.write(sql.simplified().toUtf8() + '\n');
        }
    }
    return executed(statement, inWordsOfSqlite(sql));
}

/// A date with a time is what Access keeps; SQLite's file is to hold the date alone, with which the
/// longer structure begins.
SQLRETURN SQL_API SQLBindParameter(SQLHSTMT statement, SQLUSMALLINT number, SQLSMALLINT direction,
                                   SQLSMALLINT cType, SQLSMALLINT sqlType, SQLULEN size,
                                   SQLSMALLINT digits, SQLPOINTER value, SQLLEN room,
                                   SQLLEN* length)
{
    const bool isTime = cType == SQL_C_TYPE_TIMESTAMP;
    return beneath(SQLBindParameter, "SQLBindParameter")(
        statement, number, direction, isTime ? SQL_C_TYPE_DATE : cType,
        isTime ? SQL_TYPE_DATE : sqlType, isTime ? 10 : size, isTime ? 0 : digits, value, room,
        length);
}

SQLRETURN SQL_API SQLSetPos(SQLHSTMT statement, SQLSETPOSIROW /*row*/, SQLUSMALLINT operation,
                            SQLUSMALLINT /*lock*/)
{
    if (operation != SQL_DELETE) {
        return SQL_SUCCESS;
    }
    const std::lock_guard lock(book().mutex);
    return deleteFirst(book().statements[statement]);
}

} // extern "C"
