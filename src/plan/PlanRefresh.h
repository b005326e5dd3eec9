#pragma once

#include "context/Periods.h"
#include "context/RoomPage.h"
#include "context/TimeSlots.h"
#include "context/Totals.h"
#include "form/PlanForm.h"
#include "plan/AbsenceTests.h"
#include "plan/PlanContent.h"
#include "plan/RoomOccupancy.h"
#include "plan/RowColors.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace plan
{

/// What a refresh reads and writes; all of it outlives the refresh.
struct RefreshContext {
    form::PlanForm& form;
    const context::Periods& periods;
    const context::TimeSlots& slots;
    const context::RoomPage& page;
    context::Totals& totals;
    OccupancyLookup& lookup;
    AbsenceTests& absences;
    RowColors& colors;
    const CellLayout& layout;
};

/// Redraws the plan: works out, row by row, the boxes of every shown room and their counters,
/// markers and totals.
class PlanRefresh
{
public:
    /// Where the totals line starts from.
    enum class TotalsStart {
        Zero,          ///< this page alone
        PreviousPages, ///< "Page Suivante": the new page is added to the pages before it
    };

    /// `yield` lets waiting events run; it is called once per row.
    PlanRefresh(RefreshContext context, std::function<void()> yield);

    /// Does nothing while the window is not visible. A second refresh may start while this one
    /// yields; it draws the whole plan as it is by then, so the first one ends where it stands.
    /// Errors: TypeMismatch for a start time that is none, Overflow, SubscriptOutOfRange.
    void RefreshPlan(TotalsStart start = TotalsStart::Zero);
    /// Removes all boxes with their counters and markers.
    void ClearPlanOverlays();
    /// Draws the rows that a refresh in progress has not come to, without yielding: what comes
    /// next builds on its totals.
    void finishRows();
    /// Runs an action whose redraws another one follows at once: they do not yield, so that no
    /// event meets the state in between.
    void withoutYielding(const std::function<void()>& action);
    /// Makes a refresh in progress end where it stands: the window closes.
    void abandon() { ++m_refreshes; }

    [[nodiscard]] const PlanContent& content() const { return m_content; }
    /// How many refreshes have started.
    [[nodiscard]] std::uint64_t refreshCount() const { return m_started; }

    /// Number of boxes drawn.
    [[nodiscard]] int MarkerCount() const { return m_MarkerCount; }
    /// The record of a box, `index` from 1. Error: SubscriptOutOfRange.
    [[nodiscard]] Marqueur& marker(int index);
    [[nodiscard]] const Marqueur& marker(int index) const;
    /// The box of a marker; null when the last refresh drew none with this index.
    [[nodiscard]] PlanBox* box(int marker);

private:
    void prepareQuestions();
    [[nodiscard]] QString seanceKey(int slot) const;
    void drawRow(int row);
    [[nodiscard]] form::Colour rowColor(int row);
    void drawSlot(PlanRow& planRow, int slot);
    [[nodiscard]] PlanBox makeBox(const PlanRow& row, int slot, bool makeUp);
    void fillMarker(PlanBox& box);
    void testAbsences(PlanBox& box);
    [[nodiscard]] std::optional<GroupCounter> groupCounter(const PlanRow& row) const;
    [[nodiscard]] bool teachersOnly() const;
    void addTotals();

    RefreshContext m_c;
    std::function<void()> m_yield;
    bool m_yields = true;
    PlanContent m_content;
    std::vector<Marqueur> m_markers; ///< grows, never shrinks; index 0 is the box of marker 1
    int m_MarkerCount = 0;
    /// Whether the refresh in progress counts. Taken from `CountingOn` at its start: the option, or
    /// a press of "Page Suivante" on the last page, must not leave the totals of half a page.
    bool m_counting = false;
    int m_nextRow = 1; ///< row that the refresh in progress comes to next
    int m_lastRow = 0; ///< row that it ends with
    std::uint64_t m_refreshes = 0;
    std::uint64_t m_started = 0;
};

/// How many persons a text such as "Dupont/Durand" names: 1 to 3, never more.
[[nodiscard]] std::int16_t CountSlashParts(const QString& text);

} // namespace plan
