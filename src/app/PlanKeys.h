#pragma once

#include "app/PlanCursor.h"

#include <QPointer>

class QKeyEvent;

namespace app
{

class CellNote;
class PlanView;

/// What the keys do in the plan. An arrow key brings the cursor to it, where it was last or at the
/// first cell in sight; from then on the arrows move it from cell to cell. Escape puts it away.
///
/// Home and End are both the page's and the row's. While the cursor is away they lead to the first
/// and the last page; once it is there they lead to the row's first and last cell, and with Ctrl to
/// those of the page. So whoever never uses the arrows has the pages under these keys, and pages
/// are always under Ctrl+PgUp and Ctrl+PgDn.
class PlanKeys
{
public:
    explicit PlanKeys(PlanView& view) : m_view(view) {}
    ~PlanKeys();
    PlanKeys(const PlanKeys&) = delete;
    PlanKeys& operator=(const PlanKeys&) = delete;

    /// False when the key is none of the plan's own.
    [[nodiscard]] bool press(const QKeyEvent& event);
    /// The menu of the cursor's cell, by a key.
    void openMenu();
    /// The mouse goes on: the cursor is put away, and comes back to this cell, if it is one.
    void leaveTo(const std::optional<PlanTable::Cell>& cell);
    /// The plan has been drawn to its end.
    void settle();

    [[nodiscard]] const PlanCursor& cursor() const { return m_cursor; }

private:
    [[nodiscard]] bool begin();
    [[nodiscard]] bool leave();
    [[nodiscard]] bool step(PlanCursor::Step step);
    [[nodiscard]] bool goOrStep(PlanCursor::Step step, bool toFirstPage);
    [[nodiscard]] bool showText();

    PlanView& m_view;
    PlanCursor m_cursor;
    QPointer<CellNote> m_note; ///< while it is open
};

} // namespace app
