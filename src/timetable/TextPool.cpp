#include "timetable/TextPool.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace timetable
{
namespace
{

/// Of the text's bytes, eight at a time: Qt's own function takes several times as long for so short
/// texts.
std::uint32_t hashOf(QStringView text)
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
    return static_cast<std::uint32_t>(hash);
}

/// As QStringView compares, without a call for so short texts.
bool areSame(QStringView left, QStringView right)
{
    return std::equal(left.utf16(), left.utf16() + left.size(), right.utf16(),
                      right.utf16() + right.size());
}

} // namespace

std::size_t TextPool::placeOf(QStringView text, std::uint32_t hash) const
{
    const std::size_t mask = m_places.size() - 1;
    std::size_t place = hash & mask;
    while (m_places[place].number >= 0 &&
           (m_places[place].hash != hash ||
            !areSame(m_texts[static_cast<std::size_t>(m_places[place].number)], text))) {
        place = (place + 1) & mask;
    }
    return place;
}

/// Twice as many places. Texts keep their hashes, so none is compared.
void TextPool::grow()
{
    constexpr std::size_t fewest = 16;
    std::vector<Place> places(std::max(fewest, m_places.size() * 2));
    const std::size_t mask = places.size() - 1;
    for (const Place& each : m_places) {
        if (each.number >= 0) {
            std::size_t place = each.hash & mask;
            while (places[place].number >= 0) {
                place = (place + 1) & mask;
            }
            places[place] = each;
        }
    }
    m_places = std::move(places);
}

int TextPool::add(QStringView text)
{
    constexpr std::size_t quarters = 4;
    if ((m_texts.size() + 1) * quarters > m_places.size() * (quarters - 1)) {
        grow();
    }
    const std::uint32_t hash = hashOf(text);
    Place& place = m_places[placeOf(text, hash)];
    if (place.number < 0) {
        place = {hash, count()};
        m_texts.push_back(text.toString());
    }
    return place.number;
}

int TextPool::find(QStringView text) const
{
    return m_places.empty() ? -1 : m_places[placeOf(text, hashOf(text))].number;
}

} // namespace timetable
