#pragma once

#include "plan/PlanPage.h"

#include <QDate>
#include <vector>

namespace files
{

/// What a file is made of, as values: pages of the plan, at least one.
struct PlanDocument {
    std::vector<plan::PlanPage> pages;
    /// The date that the file carries. Invalid where the plan is titled by its day alone: then it
    /// has the same bytes in every week.
    QDate date;

    /// What the pages have in common: the choices, the establishment, the slots.
    [[nodiscard]] const plan::PlanState& state() const { return pages.front().state; }
};

} // namespace files
