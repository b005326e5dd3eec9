#include "plan/Paging.h"

#include "context/PageRule.h"
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
    if (m_state.form.visible && m_state.form.EveryRoom.isChecked()) {
        // The page that holds the room which stood first.
        const context::PageRule rule(m_state.form);
        const int page = rule.pageOf(std::max(m_state.page.PageOffset, 0));
        m_state.page.PageOffset = rule.startOf(page);
        m_state.page.PageStart = m_state.page.PageOffset;
        showPage(PlanRefresh::TotalsStart::Zero);
    } else if (m_state.form.visible) { // before that there are neither rooms nor pages
        // One step forward and one step back. What comes in between, such as the next digit typed,
        // would find the page of the first step and take it for the one to stay on.
        m_refresh.withoutYielding([this] { Command3_Click(); });
        Command2_Click();
    }
}

void Paging::Command3_Click()
{
    if (m_state.form.EveryRoom.isChecked()) {
        showNextOfEvery();
        return;
    }
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
    if (isLastPage()) {
        stopAtLastPage();
    }
}

bool Paging::isLastPage() const
{
    const context::RoomPage& page = m_state.page;
    return m_state.form.EveryRoom.isChecked()
               ? page.PageStart + context::PageRule(m_state.form).rows() >= page.listed
               : page.PageStart + context::linesPerPage(m_state.form) + 1 >= page.RoomTotal;
}

void Paging::stopAtLastPage()
{
    // The totals line now holds all the rooms; counting on would count rooms twice.
    m_state.totals.CountingOn = false;
    m_state.form.Command3.enabled = false;
}

void Paging::showNextOfEvery()
{
    if (isLastPage()) {
        stopAtLastPage();
        return;
    }
    m_refresh.finishRows(); // their totals count on the next page
    m_refresh.ClearPlanOverlays();
    m_state.page.PageOffset += context::PageRule(m_state.form).rows();
    m_state.page.PageStart = m_state.page.PageOffset;
    showPage(PlanRefresh::TotalsStart::PreviousPages);
    if (isLastPage()) {
        stopAtLastPage();
    }
}

void Paging::showPreviousOfEvery()
{
    if (m_state.page.PageOffset <= 0) {
        m_state.form.Command2.enabled = false;
        return;
    }
    m_refresh.ClearPlanOverlays();
    m_state.page.PageOffset =
        std::max(m_state.page.PageOffset - context::PageRule(m_state.form).rows(), 0);
    m_state.page.PageStart = m_state.page.PageOffset;
    showPage(PlanRefresh::TotalsStart::Zero);
}

void Paging::Command2_Click()
{
    if (m_state.form.EveryRoom.isChecked()) {
        showPreviousOfEvery();
        return;
    }
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
    m_state.form.Command3.enabled = context::linesPerPage(m_state.form) < m_state.page.RoomTotal;
    context::ResetTotals(m_state.form, m_state.totals);
    showPage(PlanRefresh::TotalsStart::Zero);
}

void Paging::showPageOf(int position)
{
    const auto lines = static_cast<int>(context::linesPerPage(m_state.form));
    const context::PageRule rule(m_state.form);
    const std::int32_t start = m_state.page.PageOffset;
    if (position >= rule.positionOf(start, rule.firstRow()) &&
        position <= rule.positionOf(start, lines)) {
        return;
    }
    if (lines < 1) { // no page of such a size holds anything
        showFirstPage();
        return;
    }
    goTo(rule.startOf(rule.pageOf(position)));
}

void Paging::showLastPage()
{
    const context::PageRule rule(m_state.form);
    context::ResetTotals(m_state.form, m_state.totals);
    goTo(rule.startOf(rule.pageCount(m_state.page.listed) - 1));
}

void Paging::EveryRoom_Click()
{
    PlaceRoomRows(m_state.form);
    if (!m_state.form.visible) { // there are no rooms yet
        return;
    }
    const context::PageRule rule(m_state.form);
    const context::PageRule before(rule.rows(), !m_state.form.EveryRoom.isChecked());
    const int first = before.positionOf(m_state.page.PageOffset, before.firstRow());
    context::ResetTotals(m_state.form, m_state.totals);
    goTo(rule.startOf(rule.pageOf(first)));
}

void Paging::goTo(std::int32_t start)
{
    m_refresh.ClearPlanOverlays();
    m_state.page.PageOffset = start;
    m_state.page.PageStart = start;
    m_state.form.Command2.enabled = start > 0;
    m_state.form.Command3.enabled = true;
    showPage(PlanRefresh::TotalsStart::Zero);
    if (isLastPage()) {
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
