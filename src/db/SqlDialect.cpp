#include "db/SqlDialect.h"

#include "db/StatementReading.h"

#include <algorithm>

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

bool SqlDialect::isOneLiteral(const QString& text) const
{
    return holds(text) || (!text.contains(QChar(u'\0')) && endOfLiteral(text) == text.size());
}

QStringList SqlDialect::askable(const QStringList& texts) const
{
    QStringList askable = texts;
    askable.removeIf([this](const QString& text) { return !isOneLiteral(text); });
    askable.removeDuplicates();
    return askable;
}

bool SqlDialect::isRefused(const QString& text) const
{
    if (isOneLiteral(text) || !std::all_of(text.begin(), text.end(), isHarmless)) {
        return false;
    }
    // What stands before the quote is within the literal, and at the word the grammar gives up.
    return breaksOff(firstWord(QStringView(text).mid(endOfLiteral(text) + 1)));
}

/// Where the first quote stands that ends the literal; the text's size where the last one does, and
/// beyond it where none does.
qsizetype SqlDialect::endOfLiteral(const QString& text) const
{
    qsizetype position = 0;
    while (position < text.size()) {
        const bool isEscaping = m_backslashEscapes && text[position] == u'\\';
        const bool isQuote = text[position] == u'\'';
        const bool isLast = position + 1 == text.size();
        const bool isPair = isQuote && !isLast && text[position + 1] == u'\'';
        if (isQuote && !isPair) {
            // The last one forms a pair with the quote behind the text.
            return isLast ? text.size() + 1 : position;
        }
        position += isEscaping || isPair ? 2 : 1;
    }
    return position;
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
