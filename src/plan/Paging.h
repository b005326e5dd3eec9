#pragma once

#include "context/RoomPage.h"
#include "context/RoomSet.h"
#include "context/Totals.h"
#include "form/PlanForm.h"
#include "plan/PlanRefresh.h"
#include "plan/RowColors.h"

#include <functional>

namespace plan
{

/// Steps through the list of rooms one page at a time.
class Paging
{
public:
    /// `adaptCells` fits the row height and the box layout to the number of rooms per page.
    Paging(form::PlanForm& form, context::RoomPage& page, context::Totals& totals,
           context::RoomSet& rooms, RowColors& colors, PlanRefresh& refresh,
           std::function<void()> adaptCells);

    /// Errors: TypeMismatch or Overflow for a text that is no 16-bit number; database errors.
    void Total_L_P_Change();
    /// "Page Suivante". Error: any database error.
    void Command3_Click();
    /// "Page Précédente". Error: any database error.
    void Command2_Click();
    /// Brings the page boundaries into agreement with the rooms per page.
    void recomputePages();

private:
    [[nodiscard]] double linesPerPage() const;
    void stopAtLastPage();
    void showPage(PlanRefresh::TotalsStart totals);

    form::PlanForm& m_form;
    context::RoomPage& m_page;
    context::Totals& m_totals;
    context::RoomSet& m_rooms;
    RowColors& m_colors;
    PlanRefresh& m_refresh;
    std::function<void()> m_adaptCells;
};

} // namespace plan
