#pragma once

#include "answers/HoldingFacts.h"

namespace answers
{

/// Which two holdings clash that are there at once, in a common week, and have the name of a room,
/// a teacher or a class in common.
class ClashRules
{
public:
    /// The occupancy must outlive the rules.
    explicit ClashRules(const timetable::Occupancy& occupancy)
        : m_occupancy(occupancy), m_facts(factsOf(occupancy))
    {
    }

    [[nodiscard]] const HoldingFacts& facts(timetable::HoldingId id) const
    {
        return m_facts[static_cast<std::size_t>(id.index())];
    }
    /// Of all holdings, by their ids.
    [[nodiscard]] const std::vector<HoldingFacts>& allFacts() const { return m_facts; }

    [[nodiscard]] bool clashOverRoom(timetable::HoldingId left, timetable::HoldingId right) const;
    [[nodiscard]] bool clashOverTeacher(timetable::HoldingId left,
                                        timetable::HoldingId right) const;
    [[nodiscard]] bool clashOverClass(timetable::HoldingId left, timetable::HoldingId right) const;

    /// Whether they begin together with the same first teacher and subject: one course of several
    /// classes. Requires: the times of both are known.
    [[nodiscard]] bool areOneCourse(timetable::HoldingId left, timetable::HoldingId right) const;

private:
    [[nodiscard]] bool shareRoom(timetable::HoldingId left, timetable::HoldingId right) const;

    const timetable::Occupancy& m_occupancy;
    std::vector<HoldingFacts> m_facts;
};

} // namespace answers
