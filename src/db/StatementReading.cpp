#include "db/StatementReading.h"

#include <QRegularExpression>
#include <algorithm>
#include <initializer_list>

namespace db
{
namespace
{

using Words = std::initializer_list<QStringView>;

bool isOneOf(QStringView word, Words words)
{
    return std::any_of(words.begin(), words.end(), [word](QStringView each) {
        return word.compare(each, Qt::CaseInsensitive) == 0;
    });
}

/// Whether a condition, or the statement behind it, may go on with the word after a literal.
bool goesOn(QStringView word)
{
    return isOneOf(
        word,
        {u"and",    u"or",        u"xor",    u"not",    u"is",      u"isnull",    u"notnull",
         u"in",     u"like",      u"ilike",  u"alike",  u"rlike",   u"regexp",    u"glob",
         u"match",  u"similar",   u"sounds", u"member", u"between", u"collate",   u"escape",
         u"div",    u"mod",       u"eqv",    u"imp",    u"at",      u"overlaps",  u"group",
         u"having", u"order",     u"limit",  u"offset", u"fetch",   u"union",     u"intersect",
         u"except", u"minus",     u"window", u"for",    u"lock",    u"procedure", u"into",
         u"with",   u"returning", u"on",     u"as",     u"rows",    u"n",         u"x",
         u"b",      u"then",      u"when",   u"else",   u"end",     u"asc",       u"desc"});
}

/// Whether the text, where it stands in no literal, may put a literal elsewhere than into the
/// condition, end the statement, or hide its rest.
bool leadsElsewhere(const QString& text)
{
    if (!std::all_of(text.begin(), text.end(), isHarmless) ||
        std::any_of(
            text.begin(), text.end(),
            [](QChar character) { return QStringView(u"\"`[];()?#").contains(character); }) ||
        text.contains(QStringLiteral("--")) || text.contains(QStringLiteral("/*"))) {
        return true;
    }
    static const QRegularExpression word(QStringLiteral("[\\p{L}\\p{N}]+"));
    for (const QRegularExpressionMatch& each : word.globalMatch(text)) {
        if (isOneOf(each.capturedView(),
                    {u"select", u"union",    u"except", u"intersect", u"minus", u"values",
                     u"into",   u"from",     u"using",  u"case",      u"when",  u"then",
                     u"else",   u"interval", u"group",  u"having",    u"order", u"limit",
                     u"offset", u"fetch",    u"window", u"for",       u"lock",  u"procedure",
                     u"with",   u"returning"})) {
            return true;
        }
    }
    return false;
}

/// Where the literal ends that begins before the text: at its quote; -1 where there is none.
qsizetype closingQuote(QStringView text, bool backslashEscapes)
{
    for (qsizetype position = 0; position < text.size(); ++position) {
        if (backslashEscapes && text[position] == u'\\') {
            ++position;
        } else if (text[position] == u'\'') {
            if (position + 1 == text.size() || text[position + 1] != u'\'') {
                return position;
            }
            ++position;
        }
    }
    return -1;
}

/// The last letters and digits before the place, or the last character that is neither.
QStringView lastWord(QStringView text)
{
    const QStringView before = text.trimmed();
    qsizetype start = before.size();
    while (start > 0 && (before[start - 1].isLetterOrNumber() || before[start - 1] == u'_')) {
        --start;
    }
    return start < before.size() ? before.mid(start)
                                 : before.last(std::min<qsizetype>(before.size(), 1));
}

/// Whether a literal can stand behind this part of a statement.
bool leadsToLiteral(QStringView code)
{
    return isOneOf(lastWord(code),
                   {u"=", u"(", u",", u"<", u">", u"|", u"and", u"or", u"like", u"in", u"then",
                    u"else", u"when", u"select", u"separator", u"between"});
}

/// Whether this part of a statement can stand behind a literal.
bool followsLiteral(QStringView code)
{
    const QStringView rest = code.trimmed();
    const QStringView word = firstWord(rest);
    return rest.isEmpty() || QStringView(u"),=<>|").contains(rest.front()) || goesOn(word) ||
           isOneOf(word, {u"from", u"where", u"using", u"separator"});
}

} // namespace

bool isHarmless(QChar character)
{
    return character != u'\\' && character != u'\0' && character != u'{' && character != u'}';
}

QStringView firstWord(QStringView text)
{
    const QStringView behind = text.trimmed();
    const auto* const end = std::find_if_not(
        behind.begin(), behind.end(), [](QChar character) { return character.isLetterOrNumber(); });
    return behind.first(end - behind.begin());
}

bool breaksOff(QStringView word)
{
    return !word.isEmpty() && word.front().isLetter() && !goesOn(word);
}

bool isCertainlyRefused(const QString& sql, const QStringList& texts)
{
    if (std::any_of(texts.begin(), texts.end(), leadsElsewhere)) {
        return false;
    }
    QStringView rest = sql;
    for (qsizetype quote = rest.indexOf(u'\''); quote >= 0; quote = rest.indexOf(u'\'')) {
        rest = rest.mid(quote + 1);
        const qsizetype end = closingQuote(rest, false); // they hold no backslash
        if (end < 0) {
            return true;
        }
        rest = rest.mid(end + 1);
        const QStringView word = firstWord(rest);
        if (breaksOff(word)) {
            return true;
        }
        if (goesOn(word) && !isOneOf(word, {u"and", u"or", u"xor"})) {
            return false;
        }
    }
    return false;
}

bool keepsToItsLiterals(const QString& sql, bool backslashEscapes)
{
    QStringView rest = sql;
    bool isBehindLiteral = false;
    for (;;) {
        const qsizetype quote = rest.indexOf(u'\'');
        const QStringView code = quote < 0 ? rest : rest.first(quote);
        if (code.contains(u'%') || (isBehindLiteral && !followsLiteral(code))) {
            return false;
        }
        if (quote < 0) {
            return true;
        }
        if (!leadsToLiteral(code)) {
            return false;
        }
        rest = rest.mid(quote + 1);
        const qsizetype end = closingQuote(rest, backslashEscapes);
        if (end < 0) {
            return false;
        }
        rest = rest.mid(end + 1);
        isBehindLiteral = true;
    }
}

} // namespace db
