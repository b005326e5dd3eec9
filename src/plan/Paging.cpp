#include "plan/Paging.h"

#include "plan/RoomRows.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <algorithm>
#include <utility>

namespace plan
{

Paging::Paging(form::PlanForm& form, context::RoomPage& page, context::Totals& totals,
               context::RoomSet& rooms, RowColors& colors, PlanRefresh& refresh,
               std::function<void()> adaptCells)
    : m_form(form), m_page(page), m_totals(totals), m_rooms(rooms), m_colors(colors),
      m_refresh(refresh), m_adaptCells(std::move(adaptCells))
{
}

double Paging::linesPerPage() const
{
    return runtime::leadingNumber(m_form.Total_L_P.text());
}

void Paging::Total_L_P_Change()
{
    m_page.RowsShown =
        runtime::during(QStringLiteral("Lecture du nombre de lignes par page (valeur « %1 »)")
                            .arg(m_form.Total_L_P.text()),
                        [&] { return runtime::toInt16(m_form.Total_L_P.text()); });
    if (m_colors.PaletteName.isEmpty()) {
        m_colors.RedrawMode = false;
        m_colors.reseed();
    }
    m_adaptCells();
    const std::uint64_t refreshes = m_refresh.refreshCount();
    recomputePages();
    if (m_form.visible && m_refresh.refreshCount() == refreshes) {
        // All rooms fit on the page, so there was no page to step to: every choice redraws the
        // plan at once all the same.
        m_rooms.FillRoomPage();
        m_refresh.RefreshPlan();
    }
}

void Paging::recomputePages()
{
    PlaceRoomRows(m_form);
    if (m_form.visible) { // before that there are neither rooms nor pages
        // One step forward and one step back. What comes in between, such as the next digit typed,
        // would find the page of the first step and take it for the one to stay on.
        m_refresh.withoutYielding([this] { Command3_Click(); });
        Command2_Click();
    }
}

void Paging::Command3_Click()
{
    const double lines = linesPerPage();
    if (lines + m_page.PageStart >= m_page.RoomTotal) {
        stopAtLastPage();
        return;
    }
    m_refresh.finishRows(); // the totals of the page that is left count on the next one
    m_refresh.ClearPlanOverlays();
    // From the second page on a page starts one room further: 0, P, 2P + 1, 3P + 2. Row 0 of a
    // page is the room before its first drawn one.
    const int step = m_page.PageStart == 0 ? 0 : 1;
    m_page.PageOffset = runtime::nearestInteger(m_page.PageStart + lines + step);
    m_page.PageStart = m_page.PageOffset;
    // Before the redraw: a press of the other button in the middle of it knows better.
    m_form.Command2.enabled = true;
    showPage(PlanRefresh::TotalsStart::PreviousPages);
    if (m_page.PageStart + linesPerPage() + 1 >= m_page.RoomTotal) {
        stopAtLastPage();
    }
}

void Paging::stopAtLastPage()
{
    // The totals line now holds all the rooms; counting on would count rooms twice.
    m_totals.CountingOn = false;
    m_form.Command3.enabled = false;
}

void Paging::Command2_Click()
{
    const double lines = linesPerPage();
    if (m_page.PageOffset - lines >= 0) {
        m_refresh.ClearPlanOverlays();
        const int step = lines == m_page.PageOffset ? 0 : -1;
        m_page.PageOffset = runtime::nearestInteger(m_page.PageOffset - lines + step);
        m_page.PageStart = runtime::nearestInteger(m_page.PageStart - lines + step);
        const auto rows = static_cast<std::size_t>(
            std::clamp(lines + 1, 0.0, static_cast<double>(form::PlanForm::kRows)));
        for (std::size_t row = 0; row < rows; ++row) {
            m_form.Salle[row].visible = true;
            m_form.Cap[row].visible = true;
        }
        m_form.Command3.enabled = true;
        showPage(PlanRefresh::TotalsStart::Zero);
    } else {
        m_form.Command2.enabled = false;
    }
    if (m_page.PageOffset == 0) {
        m_form.Command2.enabled = false;
    }
}

void Paging::showPage(PlanRefresh::TotalsStart totals)
{
    m_rooms.FillRoomPage();
    PlaceRoomRows(m_form);
    m_refresh.RefreshPlan(totals);
}

} // namespace plan
