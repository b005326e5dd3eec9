#include "db/SqlDialect.h"

namespace db
{

QString SqlDialect::SqlDateDelimiter() const
{
    return m_useMySql ? QStringLiteral("'") : QStringLiteral("#");
}

QString SqlDialect::SqlDateFormat() const
{
    return m_useMySql ? QStringLiteral("yyyy/mm/dd") : QStringLiteral("mm/dd/yy");
}

QString SqlDialect::dateText(QDate date) const
{
    // Qt writes the month with capitals; "mm" would be minutes.
    return date.toString(SqlDateFormat().replace(u'm', u'M'));
}

QString SqlDialect::dateLiteral(QDate date) const
{
    return SqlDateDelimiter() + dateText(date) + SqlDateDelimiter();
}

} // namespace db
