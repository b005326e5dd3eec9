#pragma once

#include "timetable/Occupancy.h"

namespace answers
{

/// Which two holdings clash that are there at once, in a common week, and have the name of a room,
/// a teacher or a class in common.
class ClashRules
{
public:
    /// The occupancy must outlive the rules.
    explicit ClashRules(const timetable::Occupancy& occupancy) : m_occupancy(occupancy) {}

    [[nodiscard]] bool clashOverRoom(const timetable::Holding& left,
                                     const timetable::Holding& right) const;
    [[nodiscard]] bool clashOverTeacher(const timetable::Holding& left,
                                        const timetable::Holding& right) const;
    [[nodiscard]] bool clashOverClass(const timetable::Holding& left,
                                      const timetable::Holding& right) const;

    /// Whether they begin together with the same first teacher and subject: one course of several
    /// classes. Requires: the times of both are known.
    [[nodiscard]] bool areOneCourse(const timetable::Holding& left,
                                    const timetable::Holding& right) const;

private:
    [[nodiscard]] bool shareRoom(const timetable::Holding& left,
                                 const timetable::Holding& right) const;

    const timetable::Occupancy& m_occupancy;
};

} // namespace answers
