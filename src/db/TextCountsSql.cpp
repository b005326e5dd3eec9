#include "db/TextCountsSql.h"

#include "db/NumberedTexts.h"

namespace db
{
namespace
{

/// The table's rows that equal one of the texts, a group for each text that the column tells from
/// the others. `odd`: what tells of a group that the column does not compare as texts do.
QString foundRows(const CountQuestion& question, const QStringList& literals, const QString& odd)
{
    const QString& value = question.valueColumn;
    const QString values =
        value.isEmpty() ? QStringLiteral("0 as lo, 0 as hi, 0 as v")
                        : QStringLiteral("min(") + value + QStringLiteral(") as lo, max(") + value +
                              QStringLiteral(") as hi, count(") + value + QStringLiteral(") as v");
    return QStringLiteral("select ") + question.column +
           QStringLiteral(" as t, null as n, count(*) as r, ") + values + QStringLiteral(", ") +
           odd + QStringLiteral(" as o from ") + question.table + QStringLiteral(" where ") +
           question.column + QStringLiteral(" in (") + literals.join(u',') +
           QStringLiteral(") group by ") + question.column;
}

/// One question: its rows and the texts themselves, by what the column takes for equal. The column
/// comes first, whose collation then serves for both.
QString questionSql(std::size_t number, const QString& rows, const QString& texts)
{
    return QStringLiteral("select ") + QString::number(number) +
           QStringLiteral(" as q, group_concat(n) as members, sum(r) as r, "
                          "min(lo) as lo, max(hi) as hi, sum(v) as v, max(o) as o from (") +
           rows + QStringLiteral(" union all select t, n, 0, null, null, 0, 0 from (") + texts +
           QStringLiteral(") l) u group by t");
}

/// Holds where the column does not compare as texts do. Of the rows of a group all are texts or
/// none is, so SQLite may look at any of them; looking at each would take a sixth longer.
QString sqliteOdd(const CountQuestion& question)
{
    return QStringLiteral("typeof(") + question.column + QStringLiteral(")<>'text'");
}

/// The texts in front of a statement.
QString sqliteTexts(const QStringList& literals)
{
    return QStringLiteral("with texts(n,t) as (") + sqliteNumberedRows(literals) +
           QStringLiteral(") ");
}

} // namespace

QString sqliteSpelledCountsSql(const std::vector<CountQuestion>& questions,
                               const QStringList& literals)
{
    QStringList groups;
    QStringList equals;
    for (const CountQuestion& question : questions) {
        const auto number = static_cast<int>(groups.size());
        groups << QStringLiteral("select ") + QString::number(number) +
                      QStringLiteral(" as q, t as members, r, lo, hi, v, o from (") +
                      foundRows(question, literals, sqliteOdd(question)) + u')';
        equals << QStringLiteral("select ") +
                      QString::number(static_cast<int>(questions.size()) + number) +
                      QStringLiteral(
                          " as q, group_concat(n) as members, 0, 0, 0, 0, 0 from (select ") +
                      question.column + QStringLiteral(" as t, null as n from ") + question.table +
                      QStringLiteral(" where 0=1 union all select t, n from texts) group by t "
                                     "having count(*)>1");
    }
    return sqliteTexts(literals) + (groups + equals).join(QStringLiteral(" union all "));
}

QString sqliteTextCountsSql(const std::vector<CountQuestion>& questions,
                            const QStringList& literals)
{
    QStringList parts;
    for (const CountQuestion& question : questions) {
        parts << questionSql(static_cast<std::size_t>(parts.size()),
                             foundRows(question, literals, sqliteOdd(question)),
                             QStringLiteral("select n, t from texts"));
    }
    return sqliteTexts(literals) + parts.join(QStringLiteral(" union all "));
}

QString serverTextCountsSql(const std::vector<CountQuestion>& questions,
                            const QStringList& literals)
{
    QStringList parts;
    for (const CountQuestion& question : questions) {
        const QString odd =
            QStringLiteral("max(collation(") + question.column + QStringLiteral(")='binary')");
        parts << questionSql(static_cast<std::size_t>(parts.size()),
                             foundRows(question, literals, odd),
                             serverNumberedRows(literals, question.column, question.table));
    }
    return parts.join(QStringLiteral(" union all "));
}

} // namespace db
