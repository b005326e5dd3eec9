#include "db/SqliteSql.h"

#include "db/DialectDate.h"

#include <QDate>
#include <optional>

namespace db
{
namespace
{

/// Position behind the quoted text or name that starts at `start`; behind a single character when
/// none starts there. An unclosed quote reaches to the end. A doubled quote within a text reads
/// as two texts side by side, which comes to the same.
qsizetype behindQuoted(const QString& sql, qsizetype start)
{
    const QChar open = sql[start];
    if (open != u'\'' && open != u'"' && open != u'`' && open != u'[') {
        return start + 1;
    }
    const qsizetype close = sql.indexOf(open == u'[' ? QChar(u']') : open, start + 1);
    return close < 0 ? sql.size() : close + 1;
}

/// Position of the parenthesis that closes the one at `open`, or -1.
qsizetype closingParenthesis(const QString& sql, qsizetype open)
{
    int depth = 0;
    for (qsizetype i = open; i < sql.size(); i = behindQuoted(sql, i)) {
        if (sql[i] == u'(') {
            ++depth;
        } else if (sql[i] == u')' && --depth == 0) {
            return i;
        }
    }
    return -1;
}

bool isNameCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character == u'$';
}

/// Position behind the word `word`, in any case, that starts at `start`; -1 when it does not.
qsizetype behindWord(const QString& sql, qsizetype start, QLatin1String word)
{
    const qsizetype end = start + word.size();
    const bool found = QStringView(sql).mid(start).startsWith(word, Qt::CaseInsensitive) &&
                       (start == 0 || !isNameCharacter(sql[start - 1])) &&
                       (end >= sql.size() || !isNameCharacter(sql[end]));
    return found ? end : -1;
}

qsizetype skipSpaces(const QString& sql, qsizetype start)
{
    while (start < sql.size() && sql[start].isSpace()) {
        ++start;
    }
    return start;
}

/// Appends what the date literal at `start` becomes. Returns the position behind it, or -1.
qsizetype adaptDate(const QString& sql, qsizetype start, QString& adapted)
{
    const qsizetype close = sql.indexOf(u'#', start + 1);
    const std::optional<QDate> date =
        close < 0 ? std::nullopt
                  : dialectDate(sql.mid(start + 1, close - start - 1), kSqliteFirstYear);
    if (!date) {
        return -1;
    }
    adapted += u'\'' + date->toString(Qt::ISODate) + u'\'';
    return close + 1;
}

/// Appends what the call of ISNULL at `start` becomes. Returns the position behind it, or -1.
qsizetype adaptIsNull(const QString& sql, qsizetype start, QString& adapted)
{
    const qsizetype word = behindWord(sql, start, QLatin1String("isnull"));
    if (word < 0) {
        return -1;
    }
    const qsizetype open = skipSpaces(sql, word);
    const qsizetype close =
        open < sql.size() && sql[open] == u'(' ? closingParenthesis(sql, open) : -1;
    if (close < 0) {
        return -1;
    }
    const QString argument = adaptToSqlite(sql.mid(open + 1, close - open - 1)).trimmed();
    adapted += u'(' + argument + QStringLiteral(" IS NULL)");
    return close + 1;
}

} // namespace

QString adaptToSqlite(const QString& sql)
{
    if (!sql.contains(u'#') && !sql.contains(QLatin1String("isnull"), Qt::CaseInsensitive)) {
        return sql; // spares the long statements a walk letter by letter
    }
    QString adapted;
    adapted.reserve(sql.size());
    qsizetype copied = 0; // up to here
    for (qsizetype i = 0; i < sql.size();) {
        QString instead;
        qsizetype behind = -1;
        if (sql[i] == u'#') {
            behind = adaptDate(sql, i, instead);
        } else if (sql[i] == u'i' || sql[i] == u'I') {
            behind = adaptIsNull(sql, i, instead);
        }
        if (behind < 0) {
            i = behindQuoted(sql, i);
            continue;
        }
        adapted += QStringView(sql).mid(copied, i - copied);
        adapted += instead;
        copied = i = behind;
    }
    adapted += QStringView(sql).mid(copied);
    return adapted;
}

} // namespace db
