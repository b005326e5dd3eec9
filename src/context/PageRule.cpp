#include "context/PageRule.h"

#include "context/RoomPage.h"

#include <algorithm>

namespace context
{

PageRule::PageRule(double rows, bool everyRoom)
    : m_rows(
          static_cast<int>(std::clamp(rows, 1.0, static_cast<double>(form::PlanForm::kMostRooms)))),
      m_everyRoom(everyRoom)
{
}

PageRule::PageRule(const form::PlanForm& form)
    : PageRule(linesPerPage(form), form.EveryRoom.isChecked())
{
}

int PageRule::startOf(int page) const
{
    return m_everyRoom || page == 0 ? page * roomsOfPage() : page * roomsOfPage() - 1;
}

bool PageRule::isStart(std::int32_t start) const
{
    return start == 0 || (start > 0 && positionOf(start, firstRow()) % roomsOfPage() == 0);
}

int PageRule::positionOf(std::int32_t start, int row) const
{
    // A later page skips one room more than its start says, the one that the start before it has
    // left out; a start before the list, which a negative number of lines leads to, skips nothing.
    const int skipped = m_everyRoom || start == 0 ? start : start + 1;
    return std::max(skipped, 0) + row - firstRow();
}

int PageRule::pageCount(int rooms) const
{
    const int rowsBefore = 1 - firstRow(); // of the first page: a room of that row is not drawn
    return rooms > rowsBefore ? pageOf(rooms - 1 - rowsBefore) + 1 : 1;
}

} // namespace context
