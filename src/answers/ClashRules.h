#pragma once

#include "answers/HoldingFacts.h"

#include <array>
#include <optional>
#include <vector>

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

    // The weeks in which they clash; nothing where they clash in none.

    [[nodiscard]] std::optional<timetable::Week> clashOverRoom(timetable::HoldingId left,
                                                               timetable::HoldingId right) const;
    [[nodiscard]] std::optional<timetable::Week> clashOverTeacher(timetable::HoldingId left,
                                                                  timetable::HoldingId right) const;
    [[nodiscard]] std::optional<timetable::Week> clashOverClass(timetable::HoldingId left,
                                                                timetable::HoldingId right) const;

    /// Whether they begin together with the same first teacher and subject: one course of several
    /// classes. Requires: the times of both are known.
    [[nodiscard]] bool areOneCourse(timetable::HoldingId left, timetable::HoldingId right) const;

private:
    using RoomNames = std::array<timetable::RoomNameId, 2>;

    [[nodiscard]] timetable::Week commonWeeks(timetable::HoldingId left,
                                              timetable::HoldingId right) const;
    /// The weeks in which both are there and their parts share no room; nothing for none.
    [[nodiscard]] std::optional<timetable::Week> weeksApart(timetable::HoldingId left,
                                                            timetable::HoldingId right) const;
    [[nodiscard]] bool shareRoom(const RoomNames& ones, const RoomNames& others) const;

    const timetable::Occupancy& m_occupancy;
    std::vector<HoldingFacts> m_facts;
};

} // namespace answers
