#pragma once

#include "plan/PlanPage.h"

#include <QDate>
#include <QDateTime>
#include <optional>
#include <vector>

namespace files
{

/// What a file is made of, as values: pages of the plan, at least one.
struct PlanDocument {
    /// A web page that stays open, on a screen in a hall, and fetches itself anew. On the day that
    /// it shows, what has ended is paled, and the slot that is under way is marked; what is held in
    /// one week alone says in which.
    struct SelfRefresh {
        int seconds = 0;     ///< from one loading to the next
        QDateTime writtenAt; ///< which the page tells: whoever looks sees how old it is
    };

    std::vector<plan::PlanPage> pages;
    /// The date that the file carries. Invalid where the plan is titled by its day alone: then it
    /// has the same bytes in every week.
    QDate date;
    /// Nothing: the page stands still, and its bytes tell no time.
    std::optional<SelfRefresh> refresh = std::nullopt;

    /// What the pages have in common: the choices, the establishment, the slots.
    [[nodiscard]] const plan::PlanState& state() const { return pages.front().state; }
};

} // namespace files
