// The plan's pages as values: the one that the window shows, and all of them.

#include "shell/Shell.h"

#include "shell/PageWalk.h"

namespace shell
{

WalkStart Shell::walkStart()
{
    return {
        m_form,   m_database,         m_periods, m_slots, m_page, m_layout, m_SeanceTypeShortNames,
        m_colors, m_environment.plain};
}

plan::PlanPage Shell::shownPage()
{
    return PageWalk(walkStart()).shownPage();
}

std::vector<plan::PlanPage> Shell::allPages()
{
    return PageWalk(walkStart()).pages();
}

} // namespace shell
