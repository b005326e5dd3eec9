#include "timetable/TextPool.h"

namespace timetable
{

int TextPool::add(QStringView text)
{
    const int known = find(text);
    if (known >= 0) {
        return known;
    }
    const int number = count();
    m_texts.push_back(text.toString());
    m_numbers.emplace(m_texts.back(), number);
    return number;
}

int TextPool::find(QStringView text) const
{
    const auto found = m_numbers.find(text);
    return found == m_numbers.end() ? -1 : found->second;
}

} // namespace timetable
