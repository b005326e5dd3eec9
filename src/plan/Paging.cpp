#include "plan/Paging.h"

#include "plan/RoomRows.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <algorithm>
#include <utility>

namespace plan
{

Paging::Paging(PlanState& state, context::RoomSet& rooms, PlanRefresh& refresh,
               std::function<void()> adaptCells)
    : m_state(state), m_rooms(rooms), m_refresh(refresh), m_adaptCells(std::move(adaptCells))
{
}

void Paging::Total_L_P_Change()
{
    m_state.page.RowsShown =
        runtime::during(QStringLiteral("Lecture du nombre de lignes par page (valeur « %1 »)")
                            .arg(m_state.form.Total_L_P.text()),
                        [&] { return runtime::toInt16(m_state.form.Total_L_P.text()); });
    if (m_state.colors.PaletteName.isEmpty()) {
        m_state.colors.RedrawMode = false;
        m_state.colors.reseed();
    }
    m_adaptCells();
    const std::uint64_t refreshes = m_refresh.refreshCount();
    recomputePages();
    if (m_state.form.visible && m_refresh.refreshCount() == refreshes) {
        // All rooms fit on the page, so there was no page to step to: every choice redraws the
        // plan at once all the same.
        m_rooms.FillRoomPage();
        m_refresh.RefreshPlan();
    }
}

void Paging::recomputePages()
{
    PlaceRoomRows(m_state.form);
    if (m_state.form.visible) { // before that there are neither rooms nor pages
        // One step forward and one step back. What comes in between, such as the next digit typed,
        // would find the page of the first step and take it for the one to stay on.
        m_refresh.withoutYielding([this] { Command3_Click(); });
        Command2_Click();
    }
}

void Paging::Command3_Click()
{
    const double lines = context::linesPerPage(m_state.form);
    if (lines + m_state.page.PageStart >= m_state.page.RoomTotal) {
        stopAtLastPage();
        return;
    }
    m_refresh.finishRows(); // the totals of the page that is left count on the next one
    m_refresh.ClearPlanOverlays();
    // From the second page on a page starts one room further: 0, P, 2P + 1, 3P + 2. Row 0 of a
    // page is the room before its first drawn one.
    const int step = m_state.page.PageStart == 0 ? 0 : 1;
    m_state.page.PageOffset = runtime::nearestInteger(m_state.page.PageStart + lines + step);
    m_state.page.PageStart = m_state.page.PageOffset;
    // Before the redraw: a press of the other button in the middle of it knows better.
    m_state.form.Command2.enabled = true;
    showPage(PlanRefresh::TotalsStart::PreviousPages);
    if (m_state.page.PageStart + context::linesPerPage(m_state.form) + 1 >=
        m_state.page.RoomTotal) {
        stopAtLastPage();
    }
}

void Paging::stopAtLastPage()
{
    // The totals line now holds all the rooms; counting on would count rooms twice.
    m_state.totals.CountingOn = false;
    m_state.form.Command3.enabled = false;
}

void Paging::Command2_Click()
{
    const double lines = context::linesPerPage(m_state.form);
    if (m_state.page.PageOffset - lines >= 0) {
        m_refresh.ClearPlanOverlays();
        const int step = lines == m_state.page.PageOffset ? 0 : -1;
        m_state.page.PageOffset = runtime::nearestInteger(m_state.page.PageOffset - lines + step);
        m_state.page.PageStart = runtime::nearestInteger(m_state.page.PageStart - lines + step);
        const auto rows = static_cast<std::size_t>(
            std::clamp(lines + 1, 0.0, static_cast<double>(form::PlanForm::kRows)));
        for (std::size_t row = 0; row < rows; ++row) {
            m_state.form.Salle[row].visible = true;
            m_state.form.Cap[row].visible = true;
        }
        m_state.form.Command3.enabled = true;
        showPage(PlanRefresh::TotalsStart::Zero);
    } else {
        m_state.form.Command2.enabled = false;
    }
    if (m_state.page.PageOffset == 0) {
        m_state.form.Command2.enabled = false;
    }
}

void Paging::showFirstPage()
{
    m_state.page.PageOffset = 0;
    m_state.page.PageStart = 0;
    m_state.form.Command2.enabled = false;
    m_state.form.Command3.enabled = true;
    context::ResetTotals(m_state.form, m_state.totals);
    showPage(PlanRefresh::TotalsStart::Zero);
}

void Paging::showPageOf(int position)
{
    const auto lines = static_cast<int>(context::linesPerPage(m_state.form));
    const int start = m_state.page.PageOffset;
    const int first = start == 0 ? 0 : start + 1; // the room of row 0
    if (position >= first && position <= first + lines) {
        return;
    }
    if (lines < 1) { // no page of such a size holds anything
        showFirstPage();
        return;
    }
    const int page = position / (lines + 1);
    m_refresh.ClearPlanOverlays();
    m_state.page.PageOffset = page == 0 ? 0 : page * (lines + 1) - 1;
    m_state.page.PageStart = m_state.page.PageOffset;
    m_state.form.Command2.enabled = page > 0;
    m_state.form.Command3.enabled = true;
    showPage(PlanRefresh::TotalsStart::Zero);
    if (m_state.page.PageStart + lines + 1 >= m_state.page.RoomTotal) {
        stopAtLastPage();
    }
}

void Paging::showPage(PlanRefresh::TotalsStart totals)
{
    m_rooms.FillRoomPage();
    PlaceRoomRows(m_state.form);
    m_refresh.RefreshPlan(totals);
}

} // namespace plan
