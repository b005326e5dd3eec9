#include "answers/Crowds.h"

#include <algorithm>

namespace answers
{
namespace
{

using timetable::ClassId;
using timetable::Holding;
using timetable::HoldingId;
using timetable::MinuteOfDay;
using timetable::Occupancy;
using timetable::Week;

/// The times at which somebody comes or goes, each once.
std::vector<MinuteOfDay> momentsOf(const Occupancy& occupancy, std::span<const HoldingId> held)
{
    std::vector<MinuteOfDay> moments;
    for (const HoldingId id : held) {
        moments.push_back(occupancy.holding(id).time->start);
        moments.push_back(occupancy.holding(id).time->end());
    }
    std::sort(moments.begin(), moments.end());
    moments.erase(std::unique(moments.begin(), moments.end()), moments.end());
    return moments;
}

/// Goes through the day of a room in one week.
class Counting
{
public:
    Counting(const Occupancy& occupancy, std::span<const HoldingId> held, Week week)
        : m_occupancy(occupancy), m_held(held), m_week(week)
    {
    }

    /// Must be called with later and later moments.
    void goTo(MinuteOfDay moment)
    {
        std::erase_if(m_present, [&](std::size_t position) {
            return m_occupancy.holding(m_held[position]).time->end() <= moment;
        });
        for (; m_next < m_held.size(); ++m_next) {
            const Holding& holding = m_occupancy.holding(m_held[m_next]);
            if (moment < holding.time->start) {
                break;
            }
            const bool hasClass = !m_occupancy.meetingOf(holding).className.isNone();
            if (hasClass && timetable::shareWeek(holding.weeks, m_week)) {
                m_present.push_back(m_next);
            }
        }
    }
    /// Positions of those who are there with a class.
    [[nodiscard]] const std::vector<std::size_t>& present() const { return m_present; }

    [[nodiscard]] int students()
    {
        const timetable::Timetable& timetable = m_occupancy.timetable();
        std::vector<ClassId>& classes = m_classes;
        classes.clear();
        int students = 0;
        for (const std::size_t position : m_present) {
            const Holding& holding = m_occupancy.holding(m_held[position]);
            const ClassId each =
                timetable.classes().group(m_occupancy.meetingOf(holding).className);
            if (std::find(classes.begin(), classes.end(), each) == classes.end()) {
                classes.push_back(each);
                students += timetable.sizeOf(each).students.value_or(0);
            }
        }
        return students;
    }

private:
    const Occupancy& m_occupancy;
    std::span<const HoldingId> m_held;
    Week m_week;
    std::size_t m_next = 0; ///< who comes next
    std::vector<std::size_t> m_present;
    std::vector<ClassId> m_classes; ///< kept for the next count
};

} // namespace

std::vector<ClashGroup> crowds(const Occupancy& occupancy, std::span<const HoldingId> held,
                               int places)
{
    if (places <= 0 || held.empty()) {
        return {};
    }
    const std::vector<MinuteOfDay> moments = momentsOf(occupancy, held);
    ClashGroups groups(held);
    for (const Week week : {Week::A, Week::B}) {
        Counting room(occupancy, held, week);
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
