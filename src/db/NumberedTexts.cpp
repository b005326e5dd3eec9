#include "db/NumberedTexts.h"

#include <algorithm>

namespace db
{
namespace
{

/// The numbers from 1 up to `count`, and perhaps some more, as a query on any server.
QString numbers(qsizetype count)
{
    constexpr int base = 10;
    QString digit = QStringLiteral("(select 0 as d");
    for (int value = 1; value < base; ++value) {
        digit += QStringLiteral(" union all select ") + QString::number(value);
    }
    digit += u')';
    QString sum = QStringLiteral("1");
    QStringList places;
    for (qsizetype unit = 1; unit < std::max<qsizetype>(count, 2); unit *= base) {
        const QString name = QStringLiteral("d") + QString::number(places.size());
        sum += u'+' + QString::number(unit) + u'*' + name + QStringLiteral(".d");
        places << digit + u' ' + name;
    }
    return QStringLiteral("select ") + sum + QStringLiteral(" as n from ") +
           places.join(QStringLiteral(" cross join "));
}

} // namespace

QString sqliteNumberedRows(const QStringList& literals)
{
    QStringList rows;
    for (const QString& literal : literals) {
        rows << u'(' + QString::number(rows.size() + 1) + u',' + literal + u')';
    }
    return QStringLiteral("values ") + rows.join(u',');
}

QString serverNumberedRows(const QStringList& literals, const QString& column, const QString& table)
{
    return QStringLiteral("select n, elt(n,") + literals.join(u',') + QStringLiteral(",(select ") +
           column + QStringLiteral(" from ") + table + QStringLiteral(" where 0=1)) as t from (") +
           numbers(literals.size()) + QStringLiteral(") k where n<=") +
           QString::number(literals.size());
}

} // namespace db
