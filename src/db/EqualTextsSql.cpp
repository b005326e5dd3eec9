#include "db/EqualTextsSql.h"

#include "db/NumberedTexts.h"

#include <QHash>
#include <QStringList>
#include <algorithm>
#include <cstddef>

namespace db
{
namespace
{

/// Whether a backslash could hide something in the text, or a null character end it.
bool isOdd(const QString& text)
{
    return text.contains(u'\\') || text.contains(QChar(u'\0'));
}

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\'';
}

QString hexadecimal(const QString& text)
{
    return QStringLiteral("x'") + QString::fromLatin1(text.toUtf8().toHex()) + u'\'';
}

QString numberedTexts(const std::vector<QString>& texts)
{
    QStringList literals;
    for (const QString& text : texts) {
        literals << (isOdd(text)
                         ? QStringLiteral("cast(") + hexadecimal(text) + QStringLiteral(" as text)")
                         : quoted(text));
    }
    return sqliteNumberedRows(literals);
}

QString questionSql(std::size_t number, const QString& numberedTexts)
{
    const QString name = QString::number(number);
    return QStringLiteral("select ") + name +
           QStringLiteral(" as q, group_concat(n) as members, count(*) as c from (") +
           numberedTexts + QStringLiteral(") u") + name +
           QStringLiteral(" group by t having count(*)>1");
}

/// The texts with their numbers on SQLite: without a single row, the column still gives its
/// collation to the texts behind it.
QString comparedBySqlite(const TextQuestion& question, const QString& numberedTexts)
{
    return QStringLiteral("select 0 as n, ") + question.column + QStringLiteral(" as t from ") +
           question.table + QStringLiteral(" where 0=1 union all ") + numberedTexts;
}

/// The same on a server.
QString comparedByServer(const TextQuestion& question, TextColumns columns)
{
    const QString column =
        columns == TextColumns::InUnicode
            ? QStringLiteral("convert(") + question.column + QStringLiteral(" using utf8mb4)")
            : question.column;
    const std::vector<QString>& texts = question.texts;
    // All literals of one kind: two kinds may have two collations, which do not mix.
    const bool hasOdd = std::any_of(texts.begin(), texts.end(), isOdd);
    QStringList literals;
    for (const QString& text : texts) {
        literals << (hasOdd ? QStringLiteral("_utf8mb4 ") + hexadecimal(text) : quoted(text));
    }
    return serverNumberedRows(literals, column, question.table);
}

/// Lists of texts, each written once in front of the statement: most questions are about the same
/// rooms.
class SharedLists
{
public:
    /// The query that yields the texts. They outlive this list of lists.
    [[nodiscard]] QString query(const std::vector<QString>& texts)
    {
        const auto isSame = [&texts](const auto* each) { return *each == texts; };
        const auto found = std::find_if(m_lists.begin(), m_lists.end(), isSame);
        const QString name = QStringLiteral("l") + QString::number(found - m_lists.begin());
        if (found == m_lists.end()) {
            m_lists.push_back(&texts);
            m_sql << name + QStringLiteral("(n,t) as (") + numberedTexts(texts) + u')';
        }
        return QStringLiteral("select n,t from ") + name;
    }
    /// "with", the lists, and a blank.
    [[nodiscard]] QString sql() const { return QStringLiteral("with ") + m_sql.join(u',') + u' '; }

private:
    std::vector<const std::vector<QString>*> m_lists;
    QStringList m_sql;
};

/// The queries of all questions that have something to compare, `compared` giving the texts of one.
template <typename Compared>
QString joined(const std::vector<TextQuestion>& questions, Compared compared)
{
    QStringList parts;
    for (std::size_t number = 0; number < questions.size(); ++number) {
        if (questions[number].texts.size() > 1) {
            parts << questionSql(number, compared(questions[number]));
        }
    }
    return parts.join(QStringLiteral(" union all "));
}

/// How many queries one statement joins: Access is said to take fifty.
constexpr qsizetype kMostPairs = 30;

/// What is left of a text when case, accents, blanks and signs play no part.
QString likeness(const QString& text)
{
    QString left;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD)) {
        if (character.isLetterOrNumber() || character.isSurrogate()) {
            left += character;
        }
    }
    left = left.toCaseFolded();
    return left.replace(u'œ', QStringLiteral("oe"))
        .replace(u'æ', QStringLiteral("ae"))
        .replace(u'ß', QStringLiteral("ss"));
}

/// The row that says that two of the texts are equal: compared by themselves, or in a row that the
/// column brings.
QString pairSql(const TextQuestion& question, std::size_t number, std::size_t first,
                std::size_t second)
{
    const QString left = quoted(question.texts[first]);
    const QString right = quoted(question.texts[second]);
    return QStringLiteral("select distinct %1,'%2,%3',2 from ")
               .arg(number)
               .arg(first + 1)
               .arg(second + 1) +
           question.table + QStringLiteral(" where ") + left + u'=' + right +
           QStringLiteral(" or (") + question.column + u'=' + left + QStringLiteral(" and ") +
           question.column + u'=' + right + u')';
}

/// The queries for all pairs of a question's texts that are alike.
QStringList pairsOf(const TextQuestion& question, std::size_t number)
{
    QStringList queries;
    QHash<QString, std::vector<std::size_t>> alike;
    for (std::size_t text = 0; text < question.texts.size(); ++text) {
        if (question.texts[text].contains(QChar(u'\0'))) {
            continue;
        }
        std::vector<std::size_t>& others = alike[likeness(question.texts[text])];
        for (const std::size_t other : others) {
            queries << pairSql(question, number, other, text);
        }
        others.push_back(text);
    }
    return queries;
}

} // namespace

QStringList pairedEqualTextsSql(const std::vector<TextQuestion>& questions)
{
    QStringList queries;
    for (std::size_t number = 0; number < questions.size(); ++number) {
        queries << pairsOf(questions[number], number);
    }
    QStringList statements;
    for (qsizetype first = 0; first < queries.size(); first += kMostPairs) {
        statements << queries.mid(first, kMostPairs).join(QStringLiteral(" union all "));
    }
    return statements;
}

QString sqliteEqualTextsSql(const std::vector<TextQuestion>& questions)
{
    SharedLists lists;
    const QString sql = joined(questions, [&lists](const TextQuestion& question) {
        return comparedBySqlite(question, lists.query(question.texts));
    });
    return sql.isEmpty() ? sql : lists.sql() + sql;
}

QString serverEqualTextsSql(const std::vector<TextQuestion>& questions, TextColumns columns)
{
    return joined(questions, [columns](const TextQuestion& question) {
        return comparedByServer(question, columns);
    });
}

} // namespace db
