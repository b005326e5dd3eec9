#include "bench/Limit.h"

#include "form/PlanForm.h"

#include <algorithm>
#include <stdexcept>
// Behind Qt: it defines words of its own.
#include <sql.h>
#include <sqlext.h>

namespace bench
{
namespace
{

constexpr SQLLEN kLongest = 128; ///< bytes of a field; nothing in the faculties is longer
constexpr std::size_t kAtOnce = 100;

QString listOf(const QStringList& texts)
{
    return QStringLiteral("('") + texts.join(QStringLiteral("','")) + QStringLiteral("')");
}

bool isDone(SQLRETURN result)
{
    return result == SQL_SUCCESS || result == SQL_SUCCESS_WITH_INFO;
}

} // namespace

struct Limit::Handles {
    SQLHANDLE environment = SQL_NULL_HANDLE;
    SQLHANDLE connection = SQL_NULL_HANDLE;

    Handles() = default;
    Handles(const Handles&) = delete;
    Handles& operator=(const Handles&) = delete;
    ~Handles()
    {
        SQLDisconnect(connection);
        SQLFreeHandle(SQL_HANDLE_DBC, connection);
        SQLFreeHandle(SQL_HANDLE_ENV, environment);
    }
};

Limit::Limit(const QString& connectString) : m_handles(std::make_unique<Handles>())
{
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &m_handles->environment);
    SQLSetEnvAttr(m_handles->environment, SQL_ATTR_ODBC_VERSION,
                  reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0); // NOLINT: the interface's way
    SQLAllocHandle(SQL_HANDLE_DBC, m_handles->environment, &m_handles->connection);
    QByteArray text = connectString.toUtf8();
    if (!isDone(SQLDriverConnectA(m_handles->connection, nullptr,
                                  reinterpret_cast<SQLCHAR*>(text.data()), SQL_NTS, nullptr, 0,
                                  nullptr, SQL_DRIVER_NOPROMPT))) {
        throw std::runtime_error("the limit cannot be measured without a connection");
    }
}

Limit::~Limit() = default;

std::vector<Limit::Row> Limit::rows(const QString& sql)
{
    SQLHANDLE statement = SQL_NULL_HANDLE;
    SQLAllocHandle(SQL_HANDLE_STMT, m_handles->connection, &statement);
    QByteArray text = sql.toUtf8();
    if (!isDone(SQLExecDirectA(statement, reinterpret_cast<SQLCHAR*>(text.data()), SQL_NTS))) {
        SQLFreeHandle(SQL_HANDLE_STMT, statement);
        throw std::runtime_error("the limit's statement is refused: " + sql.toStdString());
    }
    SQLSMALLINT columns = 0;
    SQLNumResultCols(statement, &columns);
    SQLULEN fetched = 0;
    SQLSetStmtAttr(statement, SQL_ATTR_ROW_ARRAY_SIZE, reinterpret_cast<SQLPOINTER>(kAtOnce),
                   0); // NOLINT: the interface's way
    SQLSetStmtAttr(statement, SQL_ATTR_ROWS_FETCHED_PTR, &fetched, 0);
    const auto width = static_cast<std::size_t>(columns);
    std::vector<char> fields(width * kAtOnce * kLongest);
    std::vector<SQLLEN> lengths(width * kAtOnce);
    for (std::size_t column = 0; column < width; ++column) {
        SQLBindCol(statement, static_cast<SQLUSMALLINT>(column + 1), SQL_C_CHAR,
                   &fields[column * kAtOnce * kLongest], kLongest, &lengths[column * kAtOnce]);
    }
    std::vector<Row> found;
    while (isDone(SQLFetch(statement))) {
        for (std::size_t row = 0; row < fetched; ++row) {
            Row& taken = found.emplace_back();
            taken.reserve(width);
            for (std::size_t column = 0; column < width; ++column) {
                const SQLLEN length = lengths[column * kAtOnce + row];
                const char* field = &fields[(column * kAtOnce + row) * kLongest];
                taken.emplace_back(field, std::clamp<SQLLEN>(length, 0, kLongest - 1));
            }
        }
    }
    SQLFreeHandle(SQL_HANDLE_STMT, statement);
    return found;
}

int Limit::fetchPage(const plan::PlanState& state)
{
    QStringList rooms;
    for (int row = 1; row <= state.page.RowsShown; ++row) {
        rooms << state.page.room(row).name;
    }
    QStringList keys;
    for (int slot = 1; slot <= 10; ++slot) {
        keys << state.form.CbJour.text() + QString::number(slot);
    }
    QStringList named;
    for (const char* column : {"Salle", "XSalle", "YSalle", "SalleB", "XSalleB", "YSalleB"}) {
        named << QLatin1String(column) + QStringLiteral(" in ") + listOf(rooms);
    }
    // The class first: what follows is asked about.
    const std::vector<Row> meetings = rows(
        QStringLiteral("select Classe, emplois.* from emplois where Seance in ") + listOf(keys) +
        QStringLiteral(" and Tranche=") + QString::number(state.period.TrancheIdent) +
        QStringLiteral(" and (") + named.join(QStringLiteral(" or ")) + u')');
    QStringList classes;
    for (const Row& meeting : meetings) {
        classes << QString::fromUtf8(meeting.front());
    }
    classes.removeDuplicates();
    if (classes.isEmpty()) {
        return 0;
    }
    const QString list = listOf(classes);
    const std::vector<Row> sizes =
        rows(QStringLiteral("select classe, count(*) as n, 0 as c from etudiant where classe in ") +
             list +
             QStringLiteral(" group by classe union all select Nom, count(*), min(Capacite) from "
                            "classe where Nom in ") +
             list + QStringLiteral(" group by Nom"));
    const QDate day = state.form.DTPicker1.value();
    const QString date = u'\'' + day.toString(Qt::ISODate) + u'\'';
    const std::vector<Row> absences =
        rows(QStringLiteral("select Classe, Debut from abscence where Datex=") + date +
             QStringLiteral(" and Classe in ") + list +
             QStringLiteral(" union all select Classe, HeureD from etud_abs where Jour=") + date +
             QStringLiteral(" and Classe in ") + list);
    return static_cast<int>(meetings.size() + sizes.size() + absences.size());
}

} // namespace bench
