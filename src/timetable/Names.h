#pragma once

#include "timetable/NameQuestion.h"
#include "timetable/TextPool.h"

#include <QString>
#include <QStringView>
#include <cstddef>
#include <optional>
#include <utility>

namespace timetable
{

/// The names of one kind - all teachers, say -, in each spelling that the rows have. Which
/// spellings are one name the database has told.
template <typename NameId>
class Names
{
public:
    Names() = default;
    /// `groups` answers the question.
    Names(NameQuestion question, NameGroups groups)
        : m_question(std::move(question)), m_groups(std::move(groups))
    {
    }

    /// How many spellings there are; their ids count from 0.
    [[nodiscard]] int count() const { return static_cast<int>(m_groups.size()); }
    /// The name as stored; empty for nothing.
    [[nodiscard]] QString text(NameId id) const
    {
        return id.isNone() ? QString() : m_question->texts.text(id.index());
    }
    /// The spelling with exactly these characters; nothing where no row has it.
    [[nodiscard]] NameId find(QStringView spelling) const
    {
        return m_question ? NameId(m_question->texts.find(spelling)) : NameId();
    }
    /// The first of the spellings that are equal to this one. Nothing for nothing.
    [[nodiscard]] NameId group(NameId id) const
    {
        return id.isNone() ? id : NameId(m_groups.at(static_cast<std::size_t>(id.index())));
    }
    /// Whether both are one name, or both nothing.
    [[nodiscard]] bool areEqual(NameId left, NameId right) const
    {
        return group(left) == group(right);
    }
    /// What the database was asked, for whoever wants to know what else is equal; null without
    /// names.
    [[nodiscard]] const NameQuestion* question() const
    {
        return m_question ? &*m_question : nullptr;
    }

private:
    std::optional<NameQuestion> m_question;
    NameGroups m_groups;
};

} // namespace timetable
