#pragma once

#include "form/PlanForm.h"

#include <cstdint>

namespace context
{

/// Where the pages of a list of rooms begin, for a number of rows per page. A page starts with its
/// `PageOffset`; positions in the list count from 0, rows and pages as the window numbers them:
/// rows from 1 on, row 0 above them, pages from 0.
///
/// Row 0 holds the room before the first drawn one, so P rows take P + 1 rooms of the list, and
/// the starts are 0, P, 2P + 1, 3P + 2. With "Toutes les salles" there is no row 0: every room has
/// a row, and the starts are 0, P, 2P.
class PageRule
{
public:
    /// Fewer rows than one count as one, more than a page can hold as these.
    PageRule(double rows, bool everyRoom);
    /// As the controls ask for it.
    explicit PageRule(const form::PlanForm& form);

    [[nodiscard]] int rows() const { return m_rows; }
    /// The row of a page that its first room stands in.
    [[nodiscard]] int firstRow() const { return m_everyRoom ? 1 : 0; }

    [[nodiscard]] int startOf(int page) const;
    /// Whether one of the pages begins there.
    [[nodiscard]] bool isStart(std::int32_t start) const;
    /// The page that holds the room of that position.
    [[nodiscard]] int pageOf(int position) const { return position / roomsOfPage(); }
    /// The row of that page which the room has.
    [[nodiscard]] int rowOf(int position) const { return position % roomsOfPage() + firstRow(); }
    /// The room that a row of a page that starts there holds, wherever that is.
    [[nodiscard]] int positionOf(std::int32_t start, int row) const;
    /// Pages that draw a room; 1 at least.
    [[nodiscard]] int pageCount(int rooms) const;

private:
    [[nodiscard]] int roomsOfPage() const { return m_everyRoom ? m_rows : m_rows + 1; }

    int m_rows;
    bool m_everyRoom;
};

} // namespace context
