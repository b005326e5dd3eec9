#pragma once

#include "demo/Draw.h"
#include "demo/Timetable.h"

namespace demo
{

/// Places lectures: courses that several classes of a cohort share in one room.
class Lectures
{
public:
    Lectures(const Faculty& faculty, const Period& period, Draw& draw);

    /// Whether a lecture shall be tried in the room: always in an amphitheatre, now and then in a
    /// class room.
    [[nodiscard]] bool suits(const Room& room, Draw& draw) const;

    /// Adds the meetings of one lecture, if there is an audience and a teacher for it.
    bool place(int room, const When& when, Timetable& table, Draw& draw);

private:
    /// Neighbouring classes of one cohort.
    struct Audience {
        std::size_t cohort = 0; ///< Position in m_queue
        std::vector<int> classes;
        int size = 0;
    };
    struct Cohort {
        int number = 0;
        std::vector<int> classes;
        std::vector<int> modules;
        std::size_t nextClass = 0;
        std::size_t nextModule = 0;
    };

    [[nodiscard]] Audience audienceOf(std::size_t position, int places, const When& when,
                                      const WeekBook& book) const;
    [[nodiscard]] Audience bestAudience(const Room& room, const When& when, const WeekBook& book,
                                        Draw& draw) const;

    const Faculty& m_faculty;
    std::vector<Cohort> m_queue; // the one that waited longest first
};

} // namespace demo
