#include "db/TextCounts.h"

#include "db/DatabaseError.h"
#include "db/Product.h"
#include "db/Session.h"

#include <QHash>
#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

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

/// Numbers of texts, counted from 0; nothing where one is none.
std::optional<std::vector<std::size_t>> membersIn(const Row& row, qsizetype texts)
{
    std::vector<std::size_t> members;
    for (const QString& member : fieldOf(row, TextCountColumn::Members).toText().split(u',')) {
        const std::size_t number = member.toULongLong();
        if (number < 1 || number > static_cast<std::size_t>(texts)) {
            return std::nullopt;
        }
        members.push_back(number - 1);
    }
    return members;
}

/// Gives equal texts what the one of them finds that the rows spell so. False where several do.
bool share(const std::vector<std::size_t>& equals, std::vector<std::optional<TextCount>>& counts)
{
    const auto isThere = [&counts](std::size_t text) { return counts[text].has_value(); };
    const auto found = std::find_if(equals.begin(), equals.end(), isThere);
    if (std::count_if(equals.begin(), equals.end(), isThere) > 1) {
        return false;
    }
    if (found != equals.end()) {
        const TextCount count = *counts[*found];
        for (const std::size_t text : equals) {
            counts[text] = count;
        }
    }
    return true;
}

using Answers = std::vector<std::vector<TextCount>>;

/// From the quick statement; nothing where a row spells a text otherwise.
std::optional<Answers> bySpelling(const Recordset& groups, std::size_t questions,
                                  const QStringList& texts)
{
    QHash<QString, std::size_t> positions;
    for (const QString& text : texts) {
        positions.insert(text, static_cast<std::size_t>(positions.size()));
    }
    std::vector<std::vector<std::optional<TextCount>>> counts(
        questions, std::vector<std::optional<TextCount>>(static_cast<std::size_t>(texts.size())));
    for (const Row& row : groups.rows()) { // the groups of equal texts come last
        const auto question = static_cast<std::size_t>(numberOf(row, TextCountColumn::Question));
        if (question >= questions) {
            const auto equals = membersIn(row, texts.size());
            if (!equals || !share(*equals, counts.at(question - questions))) {
                return std::nullopt;
            }
            continue;
        }
        const auto spelt = positions.constFind(fieldOf(row, TextCountColumn::Members).toText());
        if (spelt == positions.constEnd() || counts[question][*spelt] ||
            numberOf(row, TextCountColumn::OddRows) != 0) {
            return std::nullopt;
        }
        counts[question][*spelt] = countOf(row);
    }
    Answers answers;
    for (const auto& ofQuestion : counts) {
        std::vector<TextCount>& taken = answers.emplace_back();
        for (const std::optional<TextCount>& count : ofQuestion) {
            taken.push_back(count.value_or(TextCount()));
        }
    }
    return answers;
}

} // namespace

std::vector<std::vector<TextCount>> countTexts(const std::vector<CountQuestion>& questions,
                                               const QStringList& texts, Session& session)
{
    if (texts.isEmpty()) {
        return std::vector<std::vector<TextCount>>(questions.size());
    }
    const SqlDialect dialect = session.dialect();
    QStringList literals;
    for (const QString& text : texts) {
        literals << dialect.literal(text);
    }
    const QString quick = session.product().spelledCountsSql(questions, literals);
    if (!quick.isEmpty() && std::all_of(texts.begin(), texts.end(),
                                        [&](const QString& text) { return dialect.holds(text); })) {
        if (auto answers = bySpelling(session.open(quick), questions.size(), texts)) {
            return *std::move(answers);
        }
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
