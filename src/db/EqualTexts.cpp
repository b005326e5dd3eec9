#include "db/EqualTexts.h"

#include "db/Product.h"
#include "db/Session.h"
#include "runtime/RunTimeError.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace db
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

/// Each text on its own.
TextGroups apart(const TextQuestion& question)
{
    TextGroups groups(question.texts.size());
    std::iota(groups.begin(), groups.end(), 0);
    return groups;
}

void unite(TextGroups& groups, const Row& row)
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
    // Rows may tell of the same texts: what is equal to one of them is equal to all.
    const auto byGroup = [&groups](std::size_t left, std::size_t right) {
        return groups[left] < groups[right];
    };
    const int first = groups[*std::min_element(members.begin(), members.end(), byGroup)];
    for (const std::size_t member : members) {
        std::replace(groups.begin(), groups.end(), int{groups[member]}, first);
    }
}

/// Asks about the columns as they are, and of texts that their character sets cannot hold once more
/// in Unicode.
std::vector<Recordset> equalGroups(const std::vector<TextQuestion>& questions, Session& session)
{
    const auto opened = [&session](const QStringList& statements) {
        std::vector<Recordset> groups;
        for (const QString& sql : statements) {
            groups.push_back(session.open(sql));
        }
        return groups;
    };
    const Product& product = session.product();
    try {
        return opened(product.equalTextsSql(questions, TextColumns::AsTheyAre).value());
    } catch (const RunTimeError& error) {
        const auto inUnicode = error.number() == ErrorNumber::StatementRefused
                                   ? product.equalTextsSql(questions, TextColumns::InUnicode)
                                   : std::nullopt;
        if (!inUnicode) {
            throw;
        }
        return opened(*inUnicode);
    }
}

} // namespace

std::vector<TextGroups> equalTexts(const std::vector<TextQuestion>& questions, Session& session)
{
    std::vector<TextGroups> answers;
    answers.reserve(questions.size());
    for (const TextQuestion& question : questions) {
        answers.push_back(apart(question));
    }
    if (std::any_of(questions.begin(), questions.end(),
                    [](const TextQuestion& each) { return each.texts.size() > 1; })) {
        for (const Recordset& groups : equalGroups(questions, session)) {
            for (const Row& row : groups.rows()) {
                unite(answers.at(static_cast<std::size_t>(row.field(0).toInt32())), row);
            }
        }
    }
    return answers;
}

} // namespace db
