#include "AccessSql.h"

#include <QDate>
#include <QRegularExpression>

namespace test
{
namespace
{

/// The words of its grammar and the functions that its driver knows, as far as a program may need
/// them here.
const QSet<QString>& wordsOfAccess()
{
    static const QSet<QString> words{
        "all",      "and",   "as",     "asc",    "between", "by",     "count", "delete", "desc",
        "distinct", "false", "from",   "group",  "having",  "iif",    "in",    "inner",  "insert",
        "into",     "is",    "isnull", "join",   "left",    "like",   "max",   "min",    "not",
        "null",     "on",    "or",     "order",  "right",   "select", "set",   "sum",    "top",
        "trim",     "true",  "union",  "update", "val",     "values", "where"};
    return words;
}

/// Words that Access reserves beyond those of its grammar, of those that a column may well be
/// called.
const QSet<QString>& reservedAsNames()
{
    static const QSet<QString> words{
        "application", "char",    "column",   "container", "currency", "date",   "description",
        "document",    "double",  "else",     "end",       "error",    "field",  "form",
        "full",        "if",      "index",    "key",       "level",    "long",   "match",
        "memo",        "mod",     "module",   "money",     "move",     "name",   "no",
        "note",        "number",  "object",   "off",       "option",   "outer",  "parameter",
        "partial",     "percent", "property", "query",     "report",   "screen", "section",
        "short",       "single",  "string",   "table",     "text",     "time",   "timestamp",
        "type",        "user",    "value",    "version",   "with",     "year",   "yes"};
    return words;
}

bool isMatch(const QString& pattern, const QString& text)
{
    return QRegularExpression(pattern).match(text).hasMatch();
}

/// A text, a date, a name between its quotes, a word, a number, or one sign.
const QRegularExpression& pieces()
{
    static const QRegularExpression pattern(QStringLiteral(
        "'(?:[^']|'')*'|\"[^\"]*\"|#[^#]*#|\\[[^\\]]*\\]|`[^`]*`|[\\p{L}_][\\p{L}\\p{N}_]*"
        "|\\d+(?:\\.\\d+)?|--|/\\*|<>|<=|>=|!=|\\|\\||\\S"));
    return pattern;
}

QString faultOfDate(const QString& date)
{
    // The century is no part of it: Access reads 00 to 29 as 2000 to 2029.
    return QDate::fromString(date.mid(1, date.size() - 2), QStringLiteral("MM/dd/yy")).isValid() &&
                   isMatch(QStringLiteral("^#\\d\\d/\\d\\d/\\d\\d#$"), date)
               ? QString()
               : QStringLiteral("a date that Access reads otherwise: ") + date;
}

QString faultOfText(const QString& text)
{
    if (text.contains(u'\\')) {
        return QStringLiteral("a backslash means itself: ") + text;
    }
    return isMatch(QStringLiteral("^'\\d{4}[-/]\\d\\d?[-/]\\d\\d?.*'$"), text)
               ? QStringLiteral("a date written as a text: ") + text
               : QString();
}

/// The names that the statement gives to its own columns.
QSet<QString> aliasesOf(const QString& statement)
{
    static const QRegularExpression alias(QStringLiteral("\\bas\\s+([\\p{L}_][\\p{L}\\p{N}_]*)"),
                                          QRegularExpression::CaseInsensitiveOption);
    QSet<QString> names;
    auto found = alias.globalMatch(statement);
    while (found.hasNext()) {
        names.insert(found.next().captured(1).toLower());
    }
    return names;
}

} // namespace

AccessSql::AccessSql(const QStringList& names)
{
    for (const QString& name : names) {
        m_names.insert(name.toLower());
    }
}

QStringList AccessSql::faultsOf(const QString& statement) const
{
    const QSet<QString> aliases = aliasesOf(statement);
    QStringList faults;
    auto found = pieces().globalMatch(statement);
    while (found.hasNext()) {
        const QString piece = found.next().captured();
        const QString fault = aliases.contains(piece.toLower()) ? QString() : faultOf(piece);
        if (!fault.isEmpty()) {
            faults << fault;
        }
    }
    return faults;
}

QString AccessSql::faultOf(const QString& piece) const
{
    switch (piece[0].unicode()) {
    case u'\'':
        return piece.size() > 1 ? faultOfText(piece) : QStringLiteral("a text without an end");
    case u'#':
        return faultOfDate(piece);
    case u'[':
    case u'`':
        return faultOfBracketed(piece.mid(1, piece.size() - 2));
    default:
        break;
    }
    if (piece[0].isLetter() || piece[0] == u'_') {
        return faultOfWord(piece);
    }
    static const QStringList signs{"(",  ")",  ",",  ".", "*", "=", "<", ">",
                                   "<>", "<=", ">=", "+", "-", "/", "&", "?"};
    return piece[0].isDigit() || signs.contains(piece)
               ? QString()
               : QStringLiteral("Access has no such sign: ") + piece;
}

QString AccessSql::faultOfWord(const QString& word) const
{
    const QString lower = word.toLower();
    if (m_names.contains(lower)) {
        return wordsOfAccess().contains(lower) || reservedAsNames().contains(lower)
                   ? QStringLiteral("a name that needs brackets: ") + word
                   : QString();
    }
    return wordsOfAccess().contains(lower) ? QString()
                                           : QStringLiteral("no word of Access, no name: ") + word;
}

QString AccessSql::faultOfBracketed(const QString& name) const
{
    return m_names.contains(name.toLower()) ? QString() : QStringLiteral("no such name: ") + name;
}

} // namespace test
