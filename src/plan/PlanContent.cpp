#include "plan/PlanContent.h"

#include <utility>

namespace plan
{

const PlanBox* PlanContent::box(int marker) const
{
    for (const PlanRow& row : rows) {
        for (const PlanBox& box : row.boxes) {
            if (box.marker == marker) {
                return &box;
            }
        }
    }
    return nullptr;
}

PlanBox* PlanContent::box(int marker)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast): this content is not const
    return const_cast<PlanBox*>(std::as_const(*this).box(marker));
}

} // namespace plan
