#pragma once

#include "plan/PlanContent.h"
#include "plan/PlanState.h"

namespace plan
{

/// The stretch of the time axis that has something to show, in twips as the boxes have them.
struct ShownHours {
    double from = 0;
    double to = 0; ///< behind `from`

    friend bool operator==(const ShownHours&, const ShownHours&) = default;
};

/// Finds it: from the earliest box or slot of the pages that it takes to the end of the latest one,
/// and never beyond midnight. The hours that the design marks where there is neither.
class HoursExtent
{
public:
    HoursExtent();
    void take(const PlanState& state, const PlanContent& content);
    [[nodiscard]] ShownHours hours() const;

private:
    void take(double from, double length);

    ShownHours m_hours;  ///< empty as long as nothing was found
    ShownHours m_design; ///< what is marked
    double m_midnight = 0;
};

/// Of a single page.
[[nodiscard]] ShownHours shownHours(const PlanState& state, const PlanContent& content);

} // namespace plan
