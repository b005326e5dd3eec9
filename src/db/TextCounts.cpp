#include "db/TextCounts.h"

#include "db/DatabaseError.h"
#include "db/Product.h"
#include "db/Session.h"

#include <cstddef>
#include <optional>

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
    const Value least = values == 0 ? Value() : fieldOf(row, TextCountColumn::Least);
    count.rowsDiffer =
        values > 0 && (values < count.rows || least != fieldOf(row, TextCountColumn::Greatest));
    if (!count.rowsDiffer) {
        count.value = least;
    }
    return count;
}

/// The answers, as far as they have come.
class Counts
{
public:
    Counts(std::size_t questions, std::size_t texts)
        : m_counts(questions, std::vector<std::optional<TextCount>>(texts))
    {
    }

    /// Keeps what a group's texts find.
    void keep(const Row& row)
    {
        if (numberOf(row, TextCountColumn::OddRows) != 0) {
            throw refused(QStringLiteral("The column does not compare as texts do."));
        }
        auto& ofQuestion =
            m_counts.at(static_cast<std::size_t>(numberOf(row, TextCountColumn::Question)));
        const QString members = fieldOf(row, TextCountColumn::Members).toJoinedText();
        for (const QString& member : members.split(u',', Qt::SkipEmptyParts)) {
            const std::size_t number = member.toULongLong();
            if (number < 1 || number > ofQuestion.size() || ofQuestion[number - 1]) {
                throw incomplete();
            }
            ofQuestion[number - 1] = countOf(row);
        }
    }
    /// Requires each text to have been named once: a server cuts long lists off.
    [[nodiscard]] std::vector<std::vector<TextCount>> take() const
    {
        std::vector<std::vector<TextCount>> counts;
        for (const auto& ofQuestion : m_counts) {
            std::vector<TextCount>& taken = counts.emplace_back();
            for (const std::optional<TextCount>& count : ofQuestion) {
                if (!count) {
                    throw incomplete();
                }
                taken.push_back(*count);
            }
        }
        return counts;
    }

private:
    static DatabaseError incomplete()
    {
        return refused(QStringLiteral("The list of equal names is not complete."));
    }

    std::vector<std::vector<std::optional<TextCount>>> m_counts;
};

} // namespace

std::vector<std::vector<TextCount>> countTexts(const std::vector<CountQuestion>& questions,
                                               const QStringList& texts, Session& session)
{
    if (texts.isEmpty()) {
        return std::vector<std::vector<TextCount>>(questions.size());
    }
    QStringList literals;
    for (const QString& text : texts) {
        literals << session.dialect().literal(text);
    }
    const QString sql = session.product().textCountsSql(questions, literals);
    if (sql.isEmpty()) {
        throw refused(QStringLiteral("The database cannot be asked for names in this way."));
    }
    Counts counts(questions.size(), static_cast<std::size_t>(texts.size()));
    const Recordset groups = session.open(sql);
    for (const Row& row : groups.rows()) {
        counts.keep(row);
    }
    return counts.take();
}

} // namespace db
