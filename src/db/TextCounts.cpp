#include "db/TextCounts.h"

#include "db/DatabaseError.h"
#include "db/Product.h"
#include "db/Session.h"

#include <cstddef>

namespace db
{
namespace
{

DatabaseError refused(const QString& why)
{
    return {Failure::Refused, runtime::ErrorNumber::StatementRefused, why};
}

Value fieldOf(const Row& row, TextCountColumn column)
{
    return row.field(static_cast<int>(column));
}

int numberOf(const Row& row, TextCountColumn column)
{
    const Value number = fieldOf(row, column);
    return number.isNull() ? 0 : number.toInt32();
}

TextCount countOf(const Row& row)
{
    TextCount count;
    count.rows = numberOf(row, TextCountColumn::Rows);
    const int values = numberOf(row, TextCountColumn::Values);
    const Value least = fieldOf(row, TextCountColumn::Least);
    count.rowsDiffer =
        values > 0 && (values < count.rows || least != fieldOf(row, TextCountColumn::Greatest));
    if (!count.rowsDiffer) {
        count.value = least;
    }
    return count;
}

/// What the group's texts find.
void keep(const Row& row, std::vector<std::vector<TextCount>>& counts)
{
    if (numberOf(row, TextCountColumn::OddRows) != 0) {
        throw refused(QStringLiteral("The column does not compare as texts do."));
    }
    std::vector<TextCount>& ofQuestion =
        counts.at(static_cast<std::size_t>(numberOf(row, TextCountColumn::Question)));
    const QString members = fieldOf(row, TextCountColumn::Members).toJoinedText();
    const QStringList numbers = members.isEmpty() ? QStringList() : members.split(u',');
    if (numbers.size() != numberOf(row, TextCountColumn::Texts)) { // a server cuts long lists off
        throw refused(QStringLiteral("The list of equal names is not complete."));
    }
    const TextCount count = countOf(row);
    for (const QString& number : numbers) {
        ofQuestion.at(number.toULongLong() - 1) = count;
    }
}

} // namespace

std::vector<std::vector<TextCount>> countTexts(const std::vector<CountQuestion>& questions,
                                               const QStringList& texts, Session& session)
{
    std::vector<std::vector<TextCount>> counts(
        questions.size(), std::vector<TextCount>(static_cast<std::size_t>(texts.size())));
    if (texts.isEmpty()) {
        return counts;
    }
    QStringList literals;
    for (const QString& text : texts) {
        literals << session.dialect().literal(text);
    }
    const QString sql = session.product().textCountsSql(questions, literals);
    if (sql.isEmpty()) {
        throw refused(QStringLiteral("The database cannot be asked for names in this way."));
    }
    const Recordset groups = session.open(sql);
    for (const Row& row : groups.rows()) {
        keep(row, counts);
    }
    return counts;
}

} // namespace db
