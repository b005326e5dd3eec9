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

plan::PlanPage PageWalk::shownPage() const
{
    return {form::copyOf(*m_form), m_refresh.content(), m_layout, m_page.RowsShown};
}

std::vector<plan::PlanPage> PageWalk::pages()
{
    std::vector<plan::PlanPage> pages;
    showFirstPage();
    pages.push_back(shownPage());
    // The rooms were counted at start-up, so a smaller room set ends with pages that hold none.
    while (showNextPage()) {
        if (m_page.RowsShown >= 1) {
            pages.push_back(shownPage());
        }
    }
    return pages;
}

} // namespace shell
