#pragma once

#include "timetable/NameQuestion.h"

#include <QStringView>
#include <cstddef>
#include <vector>

namespace timetable
{

/// Questions about names, collected so that all are asked at once, and their answers.
class NameInquiry
{
public:
    /// Adds a question and returns its place.
    std::size_t add(NameQuestion question);
    /// Has all of them answered.
    void ask(const AskNames& answer);

    [[nodiscard]] const NameQuestion& question(std::size_t question) const
    {
        return m_questions.at(question);
    }
    /// The groups of a question's texts. Requires: asked.
    [[nodiscard]] const NameGroups& groups(std::size_t question) const
    {
        return m_answers.at(question);
    }
    /// The group of one text; -1 for a text that the question does not hold. Requires: asked.
    [[nodiscard]] int groupOf(std::size_t question, QStringView text) const;

private:
    std::vector<NameQuestion> m_questions;
    std::vector<NameGroups> m_answers;
};

} // namespace timetable
