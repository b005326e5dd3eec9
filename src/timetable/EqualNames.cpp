#include "timetable/EqualNames.h"

#include "runtime/RunTimeError.h"

#include <QStringList>
#include <algorithm>
#include <iterator>
#include <numeric>

namespace timetable
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

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

/// The texts with their numbers as rows, on SQLite, which takes any number of them.
QString numberedTexts(const std::vector<QString>& texts)
{
    QStringList rows;
    for (const QString& text : texts) {
        const QString literal =
            isOdd(text) ? QStringLiteral("cast(") + hexadecimal(text) + QStringLiteral(" as text)")
                        : quoted(text);
        rows << u'(' + QString::number(rows.size() + 1) + u',' + literal + u')';
    }
    return QStringLiteral("values ") + rows.join(u',');
}

/// The numbers from 1 up to `count` as a query on any server.
QString numbers(std::size_t count)
{
    constexpr int base = 10;
    QString digit = QStringLiteral("(select 0 as d");
    for (int value = 1; value < base; ++value) {
        digit += QStringLiteral(" union all select ") + QString::number(value);
    }
    digit += u')';
    QString sum = QStringLiteral("1");
    QStringList places;
    for (std::size_t unit = 1; unit < std::max<std::size_t>(count, 2); unit *= base) {
        const QString name = QStringLiteral("d") + QString::number(places.size());
        sum += u'+' + QString::number(unit) + u'*' + name + QStringLiteral(".d");
        places << digit + u' ' + name;
    }
    return QStringLiteral("select ") + sum + QStringLiteral(" as n from ") +
           places.join(QStringLiteral(" cross join "));
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
QString comparedEmbedded(const NameQuestion& question, const QString& numberedTexts)
{
    return QStringLiteral("select 0 as n, ") + question.column + QStringLiteral(" as t from ") +
           question.table + QStringLiteral(" where 0=1 union all ") + numberedTexts;
}

/// The same on a server. There the column must stand among the literals of one function: only then
/// are they turned into its character set. Not every server knows rows of values, and a query per
/// text takes MariaDB three times as long.
QString comparedByServer(const NameQuestion& question, const QString& column)
{
    const std::vector<QString>& texts = question.texts.texts();
    // All literals of one kind: two kinds may have two collations, which do not mix.
    const bool hasOdd = std::any_of(texts.begin(), texts.end(), isOdd);
    QStringList literals;
    for (const QString& text : texts) {
        literals << (hasOdd ? QStringLiteral("_utf8mb4 ") + hexadecimal(text) : quoted(text));
    }
    return QStringLiteral("select n, elt(n,") + literals.join(u',') + QStringLiteral(",(select ") +
           column + QStringLiteral(" from ") + question.table +
           QStringLiteral(" where 0=1)) as t from (") + numbers(texts.size()) +
           QStringLiteral(") k where n<=") + QString::number(texts.size());
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

/// Each text on its own.
NameGroups apart(const NameQuestion& question)
{
    NameGroups groups(static_cast<std::size_t>(question.texts.count()));
    std::iota(groups.begin(), groups.end(), 0);
    return groups;
}

void unite(NameGroups& groups, const db::Row& row)
{
    std::vector<std::size_t> members;
    for (const QString& member : row.field(1).toText().split(u',')) {
        members.push_back(static_cast<std::size_t>(member.toULongLong() - 1));
    }
    const bool areAllHere =
        static_cast<int>(members.size()) == row.field(2).toInt32() &&
        std::all_of(members.begin(), members.end(),
                    [&groups](std::size_t member) { return member < groups.size(); });
    if (!areAllHere) { // a server may cut long lists off
        throw RunTimeError(ErrorNumber::DatabaseFailure,
                           QStringLiteral("The list of equal names is not complete."));
    }
    const std::size_t first = *std::min_element(members.begin(), members.end());
    for (const std::size_t member : members) {
        groups[member] = static_cast<int>(first);
    }
}

/// Sends the statement, if there is one. The first column of each row that it returns is the number
/// of a question.
void uniteAll(db::Connection& connection, const QString& sql, std::vector<NameGroups>& answers)
{
    if (sql.isEmpty()) {
        return;
    }
    const db::Recordset groups = connection.open(sql);
    for (const db::Row& row : groups.rows()) {
        unite(answers.at(static_cast<std::size_t>(row.field(0).toInt32())), row);
    }
}

} // namespace

QString equalNamesSql(const std::vector<NameQuestion>& questions, NameComparison comparison)
{
    SharedLists lists;
    QStringList parts;
    for (std::size_t number = 0; number < questions.size(); ++number) {
        const NameQuestion& question = questions[number];
        if (question.texts.count() < 2) {
            continue;
        }
        const QString column = question.column;
        switch (comparison) {
        case NameComparison::Sqlite:
            parts << questionSql(number,
                                 comparedEmbedded(question, lists.query(question.texts.texts())));
            break;
        case NameComparison::Server:
            parts << questionSql(number, comparedByServer(question, column));
            break;
        case NameComparison::ServerUnicode:
            parts << questionSql(number,
                                 comparedByServer(question, QStringLiteral("convert(") + column +
                                                                QStringLiteral(" using utf8mb4)")));
            break;
        }
    }
    const QString sql = parts.join(QStringLiteral(" union all "));
    return comparison == NameComparison::Sqlite && !parts.isEmpty() ? lists.sql() + sql : sql;
}

std::vector<NameGroups> askEqualNames(db::Connection& connection,
                                      const std::vector<NameQuestion>& questions)
{
    std::vector<NameGroups> answers;
    answers.reserve(questions.size());
    std::transform(questions.begin(), questions.end(), std::back_inserter(answers), apart);
    runtime::during(QStringLiteral("Comparaison des noms de l’emploi du temps"), [&] {
        if (connection.isEmbedded()) {
            uniteAll(connection, equalNamesSql(questions, NameComparison::Sqlite), answers);
            return;
        }
        try {
            uniteAll(connection, equalNamesSql(questions, NameComparison::Server), answers);
        } catch (const RunTimeError& error) {
            if (error.number() != ErrorNumber::StatementRefused) {
                throw;
            }
            uniteAll(connection, equalNamesSql(questions, NameComparison::ServerUnicode), answers);
        }
    });
    return answers;
}

} // namespace timetable
