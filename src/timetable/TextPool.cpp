#include "timetable/TextPool.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace timetable
{

std::size_t TextPool::Hash::operator()(QStringView text) const
{
    constexpr std::uint64_t odd = 0x9e3779b97f4a7c15;
    constexpr int half = 32;
    constexpr qsizetype block = sizeof(std::uint64_t) / sizeof(char16_t);
    std::uint64_t hash = static_cast<std::uint64_t>(text.size());
    const auto mix = [&hash](std::uint64_t bits) {
        hash = (hash ^ bits) * odd;
        hash ^= hash >> half;
    };
    qsizetype done = 0;
    for (; done + block <= text.size(); done += block) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, text.utf16() + done, sizeof(bits));
        mix(bits);
    }
    for (; done < text.size(); ++done) {
        mix(text.utf16()[done]);
    }
    return static_cast<std::size_t>(hash);
}

bool TextPool::Same::operator()(QStringView left, QStringView right) const
{
    return std::equal(left.utf16(), left.utf16() + left.size(), right.utf16(),
                      right.utf16() + right.size());
}

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
