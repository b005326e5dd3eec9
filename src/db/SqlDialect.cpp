#include "db/SqlDialect.h"

namespace db
{

SqlDialect SqlDialect::ofMySql(bool backslashEscapes) const
{
    SqlDialect dialect(true, m_quotes);
    dialect.m_backslashEscapes = backslashEscapes;
    return dialect;
}

SqlDialect SqlDialect::withoutBackslashes() const
{
    SqlDialect dialect = *this;
    dialect.m_backslashEscapes = false;
    return dialect;
}

QString SqlDialect::literal(const QString& text) const
{
    QString within = text;
    if (m_quotes == Quotes::Doubled) {
        if (m_backslashEscapes) {
            within.replace(u'\\', QStringLiteral("\\\\"));
        }
        within.replace(u'\'', QStringLiteral("''"));
    }
    return u'\'' + within + u'\'';
}

bool SqlDialect::holds(const QString& text) const
{
    if (text.contains(QChar(u'\0'))) {
        return false;
    }
    return m_quotes == Quotes::Doubled ||
           (!text.contains(u'\'') && !(m_backslashEscapes && text.contains(u'\\')));
}

QStringList SqlDialect::held(const QStringList& texts) const
{
    QStringList held = texts;
    held.removeIf([this](const QString& text) { return !holds(text); });
    held.removeDuplicates();
    return held;
}

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
