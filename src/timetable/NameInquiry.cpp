#include "timetable/NameInquiry.h"

namespace timetable
{

std::size_t NameInquiry::add(NameQuestion question)
{
    m_questions.push_back(std::move(question));
    return m_questions.size() - 1;
}

void NameInquiry::ask(const AskNames& answer)
{
    m_answers = answer(m_questions);
}

int NameInquiry::groupOf(std::size_t question, QStringView text) const
{
    const int number = m_questions.at(question).texts.find(text);
    return number < 0 ? -1 : m_answers.at(question).at(static_cast<std::size_t>(number));
}

} // namespace timetable
