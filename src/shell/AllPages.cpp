// The plan's pages as values: the one that the window shows, and all of them.

#include "shell/Shell.h"

#include "form/FormCopy.h"
#include "shell/PageWalk.h"

namespace shell
{

plan::PlanPage Shell::shownPage() const
{
    return {form::copyOf(m_form), m_refresh.content(), m_layout, m_page.RowsShown};
}

std::vector<plan::PlanPage> Shell::allPages()
{
    PageWalk walk({m_form, m_database, m_periods, m_slots, m_page, m_layout, m_SeanceTypeShortNames,
                   m_colors, m_environment.plain});
    return walk.pages();
}

} // namespace shell
