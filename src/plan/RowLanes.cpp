#include "plan/RowLanes.h"

#include <algorithm>

namespace plan
{
namespace
{

// Twips by which the rounding of a start or of an end may err.
constexpr double kRounding = 2;

using Boxes = std::vector<PlanBox*>;

/// Puts each box of a group that hangs together into the first lane that is free when it begins.
void shareHeight(const Boxes& group)
{
    std::vector<double> ends; // of the last box in each lane
    for (PlanBox* box : group) {
        const auto free = std::find_if(ends.begin(), ends.end(),
                                       [box](double end) { return end <= box->x + kRounding; });
        box->lane = static_cast<int>(free - ends.begin());
        if (free == ends.end()) {
            ends.push_back(0);
        }
        ends[static_cast<std::size_t>(box->lane)] = box->x + box->width;
    }
    for (PlanBox* box : group) {
        box->lanes = static_cast<int>(ends.size());
    }
}

} // namespace

bool overlap(const PlanBox& first, const PlanBox& second)
{
    const double from = std::max(first.x, second.x);
    const double to = std::min(first.x + first.width, second.x + second.width);
    return to - from > kRounding;
}

void assignLanes(PlanRow& row)
{
    Boxes boxes;
    for (PlanBox& box : row.boxes) {
        boxes.push_back(&box);
    }
    std::stable_sort(boxes.begin(), boxes.end(),
                     [](const PlanBox* one, const PlanBox* other) { return one->x < other->x; });
    Boxes group;
    double end = 0;
    for (PlanBox* box : boxes) {
        if (!group.empty() && box->x + kRounding >= end) {
            shareHeight(group);
            group.clear();
        }
        end = group.empty() ? box->x + box->width : std::max(end, box->x + box->width);
        group.push_back(box);
    }
    shareHeight(group);
}

std::vector<const PlanBox*> overlapping(const PlanRow& row, const PlanBox& box)
{
    std::vector<const PlanBox*> others;
    for (const PlanBox& other : row.boxes) {
        if (&other != &box && overlap(other, box)) {
            others.push_back(&other);
        }
    }
    return others;
}

} // namespace plan
