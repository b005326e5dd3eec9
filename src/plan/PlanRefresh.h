#pragma once

#include "lookup/PageReads.h"
#include "plan/AbsenceSource.h"
#include "plan/MarkerRecords.h"
#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>

namespace plan
{

/// Redraws the plan: works out, row by row, the boxes of every shown room and their counters,
/// markers and totals.
class PlanRefresh
{
public:
    /// Where the totals line starts from.
    enum class TotalsStart {
        Zero,          ///< this page alone
        PreviousPages, ///< "Page Suivante": the new page is added to the pages before it
        AsItStands,    ///< the line stays as it is, and what it tells of, too
    };

    /// Who a refresh asks.
    struct Sources {
        lookup::RowSource& rows;
        AbsenceSource& absences;
        lookup::PageReads& reads; ///< told of what got no answer
    };

    /// `yield` lets waiting events run; it is called once per row. State and sources outlive the
    /// refresh.
    PlanRefresh(PlanState& state, Sources sources, std::function<void()> yield);

    /// Does nothing while the window is not visible. A second refresh may start while this one
    /// yields; it draws the whole plan as it is by then, so the first one ends where it stands.
    /// One that does not count leaves the totals line as it stands.
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
    void abandon() { m_inProgress = 0; }

    [[nodiscard]] const PlanContent& content() const { return m_content; }
    /// How many refreshes have started.
    [[nodiscard]] std::uint64_t refreshCount() const { return m_refreshes; }
    /// When the last one did.
    [[nodiscard]] std::chrono::steady_clock::time_point began() const { return m_began; }

    [[nodiscard]] MarkerRecords& markers() { return m_markers; }
    [[nodiscard]] const MarkerRecords& markers() const { return m_markers; }
    /// The box of a marker; null when the last refresh drew none with this number.
    [[nodiscard]] PlanBox* box(int marker) { return m_content.box(marker); }

    /// The colour that a row has while none are drawn by lot: the table's, or none without
    /// "Couleurs".
    [[nodiscard]] form::Colour tabledColor(int row) const;

private:
    void startTotals(TotalsStart start);
    void startRows();
    void endPage();
    void noteUnknown(PlanRow& planRow, int slot);
    [[nodiscard]] std::optional<UnknownCell> unknownCell(int slot) const;
    void prepareQuestions();
    [[nodiscard]] QString seanceKey(int slot) const;
    void drawRow(int row);
    [[nodiscard]] form::Colour rowColor(int row);
    [[nodiscard]] Asked askedNow() const;
    [[nodiscard]] lookup::RoomCell lookUp(lookup::OccupancyLookup& lookup, PlanRow& row, int slot,
                                          bool& makeUp) const;
    void drawSlot(PlanRow& planRow, int slot, lookup::RoomCell cell, bool makeUp);
    void countSlot(const PlanRow& planRow, int slot, const lookup::RoomCell& cell,
                   const QString& durationBefore);
    [[nodiscard]] std::int16_t seatsOf(const PlanRow& row) const;
    void testAbsences(PlanBox& box);
    [[nodiscard]] bool teachersOnly() const;

    PlanState& m_state;
    Sources m_sources;
    std::function<void()> m_yield;
    bool m_yields = true;
    PlanContent m_content;
    MarkerRecords m_markers;
    /// Whether the refresh in progress counts. Taken from `CountingOn` at its start: the option, or
    /// a press of "Page Suivante" on the last page, must not leave the totals of half a page.
    bool m_counting = false;
    int m_nextRow = 1; ///< row that the refresh in progress comes to next
    int m_lastRow = 0; ///< row that it ends with
    std::uint64_t m_refreshes = 0;
    std::chrono::steady_clock::time_point m_began;
    std::uint64_t m_inProgress = 0; ///< number of the refresh that goes on; 0 for none
};

/// How many persons a text such as "Dupont/Durand" names: 1 to 3, never more.
[[nodiscard]] std::int16_t CountSlashParts(const QString& text);

} // namespace plan
