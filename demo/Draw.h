#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace demo
{

/// What a sequence of draws is for. Each topic has a sequence of its own, so that a faculty with
/// other rooms keeps its teachers and students.
enum class Topic : std::uint32_t {
    Classes,
    Teachers,
    Students,
    Timetable,
    Exams,
    MakeUps,
    Absences
};

/// Random draws that are the same on every platform: the engine's numbers are fixed by the
/// language standard, those of the standard's distributions and of std::shuffle are not.
class Draw
{
public:
    Draw(std::uint32_t seed, Topic topic, std::uint32_t part = 0);

    /// A number in 0 .. bound − 1. Requires: bound > 0.
    [[nodiscard]] int below(int bound);
    /// A number in first .. last.
    [[nodiscard]] int between(int first, int last) { return first + below(last - first + 1); }
    /// True in so many of a hundred cases.
    [[nodiscard]] bool percent(int chance) { return below(100) < chance; }
    /// One of the items. Requires: there is one.
    template <typename Items>
    [[nodiscard]] const auto& pick(const Items& items)
    {
        return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))];
    }
    template <typename Item>
    void shuffle(std::vector<Item>& items)
    {
        for (std::size_t left = items.size(); left > 1; --left) {
            std::swap(items[left - 1],
                      items[static_cast<std::size_t>(below(static_cast<int>(left)))]);
        }
    }

private:
    std::mt19937 m_engine;
};

} // namespace demo
