#include "shell/PageWalk.h"

#include "form/FormCopy.h"
#include "plan/RoomRows.h"

#include <utility>

namespace shell
{

PageWalk::PageWalk(const WalkStart& start)
    : m_form(form::copyOf(start.form)), m_layout(start.layout), m_page(start.page),
      m_colors(start.colors), m_plainRows(start.database), m_pageRows(start.database, m_plainRows),
      m_lookup(*m_form, start.plain ? static_cast<plan::RowSource&>(m_plainRows) : m_pageRows,
               m_layout, start.typeNames),
      m_absences(start.database), m_pageAbsences(start.database, m_absences),
      m_rooms(*m_form, start.database, m_page, *this),
      m_refresh({*m_form, start.periods, start.slots, m_page, m_totals, m_lookup,
                 start.plain ? static_cast<plan::AbsenceTests&>(m_absences) : m_pageAbsences,
                 m_colors, m_layout},
                [] {}),
      m_paging(*m_form, m_page, m_totals, m_rooms, m_colors, m_refresh, [] {})
{
    m_form->visible = true;
}

void PageWalk::PlaceRoomRows()
{
    plan::PlaceRoomRows(*m_form);
}

void PageWalk::showFirstPage()
{
    m_page.PageOffset = 0;
    m_page.PageStart = 0;
    m_form->Command2.enabled = false;
    m_form->Command3.enabled = true;
    ResetTotals(*m_form, m_totals);
    m_rooms.FillRoomPage();
    PlaceRoomRows();
    m_refresh.RefreshPlan();
}

/// "Page Suivante"; false on the last page.
bool PageWalk::showNextPage()
{
    const std::int32_t before = m_page.PageStart;
    m_form->Command3.enabled = true;
    m_paging.Command3_Click();
    return m_page.PageStart > before;
}

plan::PlanPage PageWalk::page(plan::PlanContent content) const
{
    return {form::copyOf(*m_form), std::move(content), m_layout, m_page.RowsShown};
}

plan::PlanPage PageWalk::shownPage()
{
    const std::vector<form::Label> shownRooms = m_form->Salle;
    // The totals line is printed as it stands: on later pages it holds what earlier ones counted.
    m_totals.CountingOn = false;
    m_refresh.RefreshPlan(plan::PlanRefresh::TotalsStart::PreviousPages);
    plan::PlanContent content = m_refresh.content();
    for (plan::PlanRow& row : content.rows) {
        const auto index = static_cast<std::size_t>(row.index);
        row.color = shownRooms[index].backColor;
        m_form->Salle[index].backColor = row.color;
        m_form->Cap[index].backColor = row.color;
    }
    return page(std::move(content));
}

std::vector<plan::PlanPage> PageWalk::pages()
{
    std::vector<plan::PlanPage> pages;
    showFirstPage();
    pages.push_back(page(m_refresh.content()));
    // The rooms were counted at start-up, so a smaller room set ends with pages that hold none.
    while (showNextPage()) {
        if (m_page.RowsShown >= 1) {
            pages.push_back(page(m_refresh.content()));
        }
    }
    for (std::size_t index = 0; index < pages.size(); ++index) {
        pages[index].number = static_cast<int>(index) + 1;
        pages[index].count = static_cast<int>(pages.size());
    }
    return pages;
}

} // namespace shell
