#include "answers/Crowds.h"

#include <algorithm>

namespace answers
{
namespace
{

using timetable::ClassId;
using timetable::HoldingId;
using timetable::MinuteOfDay;
using timetable::Occupancy;
using timetable::Week;

/// The times at which somebody comes or goes, each once.
std::vector<MinuteOfDay> momentsOf(const std::vector<HoldingFacts>& facts,
                                   std::span<const HoldingId> held)
{
    std::vector<MinuteOfDay> moments;
    for (const HoldingId id : held) {
        const HoldingFacts& holding = facts[static_cast<std::size_t>(id.index())];
        moments.push_back(holding.start);
        moments.push_back(holding.end);
    }
    std::sort(moments.begin(), moments.end());
    moments.erase(std::unique(moments.begin(), moments.end()), moments.end());
    return moments;
}

/// Goes through the day of a room in one week.
class Counting
{
public:
    Counting(const timetable::Timetable& timetable, const std::vector<HoldingFacts>& facts,
             std::span<const HoldingId> held, Week week)
        : m_timetable(timetable), m_facts(facts), m_held(held), m_week(week)
    {
    }

    /// Must be called with later and later moments.
    void goTo(MinuteOfDay moment)
    {
        std::erase_if(m_present,
                      [&](std::size_t position) { return factsAt(position).end <= moment; });
        for (; m_next < m_held.size(); ++m_next) {
            const HoldingFacts& holding = factsAt(m_next);
            if (moment < holding.start) {
                break;
            }
            if (!holding.className.isNone() && timetable::shareWeek(holding.weeks, m_week)) {
                m_present.push_back(m_next);
            }
        }
    }
    /// Positions of those who are there with a class.
    [[nodiscard]] const std::vector<std::size_t>& present() const { return m_present; }

    [[nodiscard]] int students()
    {
        std::vector<ClassId>& classes = m_classes;
        classes.clear();
        int students = 0;
        for (const std::size_t position : m_present) {
            const ClassId each = factsAt(position).className;
            if (std::find(classes.begin(), classes.end(), each) == classes.end()) {
                classes.push_back(each);
                students += m_timetable.sizeOf(each).students.value_or(0);
            }
        }
        return students;
    }

private:
    [[nodiscard]] const HoldingFacts& factsAt(std::size_t position) const
    {
        return m_facts[static_cast<std::size_t>(m_held[position].index())];
    }

    const timetable::Timetable& m_timetable;
    const std::vector<HoldingFacts>& m_facts;
    std::span<const HoldingId> m_held;
    Week m_week;
    std::size_t m_next = 0; ///< who comes next
    std::vector<std::size_t> m_present;
    std::vector<ClassId> m_classes; ///< kept for the next count
};

} // namespace

std::vector<ClashGroup> crowds(const Occupancy& occupancy, const std::vector<HoldingFacts>& facts,
                               std::span<const HoldingId> held, int places)
{
    if (places <= 0 || held.empty()) {
        return {};
    }
    const std::vector<MinuteOfDay> moments = momentsOf(facts, held);
    ClashGroups groups(held);
    for (const Week week : {Week::A, Week::B}) {
        Counting room(occupancy.timetable(), facts, held, week);
        for (std::size_t index = 0; index + 1 < moments.size(); ++index) {
            room.goTo(moments[index]);
            const int students = room.students();
            if (students > places) {
                const timetable::TimeSpan time =
                    timetable::between(moments[index], moments[index + 1]);
                for (const std::size_t position : room.present()) {
                    groups.join(room.present().front(), position, {week, time, students});
                }
            }
        }
    }
    return groups.groups();
}

} // namespace answers
