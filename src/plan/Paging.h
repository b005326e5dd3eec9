#pragma once

#include "context/RoomSet.h"
#include "plan/PlanRefresh.h"
#include "plan/PlanState.h"

#include <functional>

namespace plan
{

/// Steps through the list of rooms one page at a time.
class Paging
{
public:
    /// `adaptCells` fits the row height and the box layout to the number of rooms per page.
    Paging(PlanState& state, context::RoomSet& rooms, PlanRefresh& refresh,
           std::function<void()> adaptCells);

    /// Errors: TypeMismatch or Overflow for a text that is no 16-bit number; database errors.
    void Total_L_P_Change();
    /// "Page Suivante". Error: any database error.
    void Command3_Click();
    /// "Page Précédente". Error: any database error.
    void Command2_Click();
    /// Goes to the first page, whatever the buttons' state, and counts from there.
    /// Error: any database error.
    void showFirstPage();
    /// Goes to the page that holds this position in the list of rooms (0 upward), as the buttons
    /// would from the first page on; a page that holds it already stays. Counting begins with that
    /// page, as after a step back. Error: any database error.
    void showPageOf(int position);
    /// Goes to the last page that draws a room, as the buttons would from the first page on, and
    /// counts that page alone. Error: any database error.
    void showLastPage();
    /// "Toutes les salles" was ticked or not: goes to the page that holds the room which stood
    /// first, and counts from there. Error: any database error.
    void EveryRoom_Click();
    /// Brings the page boundaries into agreement with the rooms per page.
    void recomputePages();

private:
    /// Page Suivante and Page Précédente where every room has a row.
    void showNextOfEvery();
    void showPreviousOfEvery();
    void goTo(std::int32_t start);
    [[nodiscard]] bool isLastPage() const;
    void stopAtLastPage();
    void showPage(PlanRefresh::TotalsStart totals);

    PlanState& m_state;
    context::RoomSet& m_rooms;
    PlanRefresh& m_refresh;
    std::function<void()> m_adaptCells;
};

} // namespace plan
