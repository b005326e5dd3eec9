#include "db/DeletionSql.h"

#include "runtime/RunTimeError.h"

#include <QRegularExpression>

namespace db
{

DeletionSql::DeletionSql(const QString& sql)
{
    // The table's name may stand in the quotes of any of the databases and hold "where" there.
    static const QRegularExpression form(
        QStringLiteral("^\\s*select\\s+\\*\\s+from\\s+"
                       "(\"[^\"]*\"|`[^`]*`|\\[[^\\]]*\\]|[^\\s\"`\\[]+)"
                       "(?:\\s+where\\b(.*))?\\s*$"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = form.match(sql);
    if (!match.hasMatch()) {
        throw runtime::RunTimeError(runtime::ErrorNumber::InvalidProcedureCall);
    }
    m_table = match.captured(1);
    m_condition = match.captured(2).trimmed();
}

QString DeletionSql::deletingFirst() const
{
    return QStringLiteral("DELETE FROM ") + m_table +
           (m_condition.isEmpty() ? QString() : QStringLiteral(" WHERE ") + m_condition) +
           QStringLiteral("\nLIMIT 1");
}

QString DeletionSql::selectingRowId() const
{
    return QStringLiteral("SELECT _ROWID_, * FROM ") + m_table +
           (m_condition.isEmpty() ? QString() : QStringLiteral(" WHERE ") + m_condition);
}

QString DeletionSql::deletingRowId(const QString& rowId) const
{
    return QStringLiteral("DELETE FROM ") + m_table + QStringLiteral(" WHERE _ROWID_ = ") + rowId +
           (m_condition.isEmpty() ? QString()
                                  : QStringLiteral(" AND (") + m_condition + QStringLiteral("\n)"));
}

} // namespace db
