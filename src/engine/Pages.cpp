// The plan's pages as values: the one that is shown, and all of them. They are made by an engine on
// a copy of the state, with the same page buttons, the same refresh and the same database; so the
// pages are the user's by construction, and the window shows what it showed.

#include "engine/Engine.h"

#include "context/PageRule.h"

#include <QHash>
#include <algorithm>
#include <utility>

namespace engine
{

plan::PlanPage Engine::shownPage() const
{
    return Engine(*this, OnCopy()).lookedUpAgain();
}

std::vector<plan::PlanPage> Engine::allPages() const
{
    runtime::skipOnError([this] { m_database->revive(); }); // the walk's reads say what failed
    Engine walk(*this, OnCopy());
    return walk.walkedPages();
}

std::vector<plan::PlanPage> Engine::pagesOfEveryRoom(int most) const
{
    runtime::skipOnError([this] { m_database->revive(); }); // the walk's reads say what failed
    Engine walk(*this, OnCopy());
    form::PlanForm& form = walk.m_state.form;
    form.EveryRoom.design(true);
    form.Chk_Compt.design(false);
    walk.m_state.totals.CountingOn = false;
    walk.m_state.colors.RedrawMode = true; // the colours that the rows have had
    walk.fillRoomPage();
    const int rooms = walk.m_state.page.listed;
    if (rooms < 1) {
        return {};
    }
    const int limit = std::clamp(most, 1, form::PlanForm::kMostRooms);
    const int count = (rooms + limit - 1) / limit;
    form.Total_L_P.setText(QString::number((rooms + count - 1) / count));
    walk.adaptCells();
    return walk.walkedPages();
}

/// From the first page on.
std::vector<plan::PlanPage> Engine::walkedPages()
{
    std::vector<plan::PlanPage> pages;
    showFirstPage();
    pages.push_back(drawnPage());
    // The rooms were counted at start-up, so a smaller room set ends with pages that hold none.
    while (showNextPage()) {
        if (m_state.page.RowsShown >= 1) {
            pages.push_back(drawnPage());
        } else {
            pages.back().leftOut += leftOut(); // of the page that follows none is made
        }
    }
    for (std::size_t index = 0; index < pages.size(); ++index) {
        pages[index].number = static_cast<int>(index) + 1;
        pages[index].count = static_cast<int>(pages.size());
    }
    return pages;
}

plan::PlanPage Engine::lookedUpAgain()
{
    const std::vector<form::Label> shownRooms = m_state.form.Salle;
    m_refresh.RefreshPlan(plan::PlanRefresh::TotalsStart::AsItStands);
    plan::PlanPage page = drawnPage();
    for (plan::PlanRow& row : page.content.rows) {
        const auto index = static_cast<std::size_t>(row.index);
        row.color = shownRooms[index].backColor;
        page.state.form.Salle[index].backColor = row.color;
        page.state.form.Cap[index].backColor = row.color;
    }
    return page;
}

/// The room of row 0.
QStringList Engine::leftOut() const
{
    const bool hasRowZero = !m_state.form.EveryRoom.isChecked() && m_state.page.RowsShown >= 0;
    QStringList rooms{hasRowZero ? m_state.page.room(0).name : QString()};
    rooms.removeAll(QString());
    return rooms;
}

/// "Page Suivante"; false on the last page.
bool Engine::showNextPage()
{
    const std::int32_t before = m_state.page.PageStart;
    m_state.form.Command3.enabled = true;
    m_paging.Command3_Click();
    return m_state.page.PageStart > before;
}

std::vector<form::Colour> Engine::roomColors(const std::vector<QString>& rooms) const
{
    QHash<QString, form::Colour> shown;
    for (const plan::PlanRow& row : content().rows) {
        shown.insert(row.room, row.color);
    }
    const context::PageRule rule(m_state.form);
    std::vector<form::Colour> colors;
    colors.reserve(rooms.size());
    for (std::size_t index = 0; index < rooms.size(); ++index) {
        const auto found = shown.constFind(rooms[index]);
        colors.push_back(found != shown.cend()
                             ? *found
                             : m_refresh.tabledColor(rule.rowOf(static_cast<int>(index))));
    }
    return colors;
}

} // namespace engine
