#pragma once

#include "timetable/Occupancy.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace answers
{

/// Why holdings belong together.
struct ClashReason {
    timetable::Week weeks = timetable::Week::Every;
    timetable::TimeSpan time;
    int students = 0; ///< where that is the reason
};

/// Holdings that belong together.
struct ClashGroup {
    std::vector<timetable::HoldingId> holders; ///< in the order of the candidates
    ClashReason reason; ///< all weeks, from the first minute to the last, the most students
};

/// Joins holdings that clash, and those that these clash with, into groups.
class ClashGroups
{
public:
    /// They must outlive the groups.
    explicit ClashGroups(std::span<const timetable::HoldingId> candidates);

    /// Positions among the candidates; one candidate may make a group by itself.
    void join(std::size_t left, std::size_t right, const ClashReason& reason);

    /// The groups by their first candidates; who was never joined is in none.
    [[nodiscard]] std::vector<ClashGroup> groups();

private:
    [[nodiscard]] std::size_t rootOf(std::size_t position);

    std::span<const timetable::HoldingId> m_candidates;
    std::vector<std::size_t> m_parents; ///< the root of a group is its first candidate
    std::vector<std::optional<ClashReason>> m_reasons; ///< of the roots
};

} // namespace answers
