#include "answers/ClashGroups.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace answers
{
namespace
{

using timetable::TimeSpan;

ClashReason both(const ClashReason& left, const ClashReason& right)
{
    return {left.weeks == right.weeks ? left.weeks : timetable::Week::Every,
            timetable::between(std::min(left.time.start, right.time.start),
                               std::max(left.time.end(), right.time.end())),
            std::max(left.students, right.students)};
}

} // namespace

ClashGroups::ClashGroups(std::span<const timetable::HoldingId> candidates)
    : m_candidates(candidates), m_parents(candidates.size()), m_reasons(candidates.size())
{
    std::iota(m_parents.begin(), m_parents.end(), std::size_t(0));
}

std::size_t ClashGroups::rootOf(std::size_t position)
{
    while (m_parents[position] != position) {
        m_parents[position] = m_parents[m_parents[position]]; // the way is shorter next time
        position = m_parents[position];
    }
    return position;
}

void ClashGroups::join(std::size_t left, std::size_t right, const ClashReason& reason)
{
    const auto [root, other] = std::minmax({rootOf(left), rootOf(right)});
    std::optional<ClashReason>& joint = m_reasons[root];
    joint = joint ? both(*joint, reason) : reason;
    if (root != other) {
        if (m_reasons[other]) {
            joint = both(*joint, *m_reasons[other]);
        }
        m_parents[other] = root;
    }
}

std::vector<ClashGroup> ClashGroups::groups()
{
    std::vector<ClashGroup> groups;
    std::vector<std::size_t> numbers(m_parents.size());
    for (std::size_t position = 0; position < m_parents.size(); ++position) {
        const std::size_t root = rootOf(position);
        if (!m_reasons[root]) {
            continue;
        }
        if (root == position) {
            numbers[root] = groups.size();
            groups.push_back({{}, *m_reasons[root]});
        }
        groups[numbers[root]].holders.push_back(m_candidates[position]);
    }
    return groups;
}

} // namespace answers
