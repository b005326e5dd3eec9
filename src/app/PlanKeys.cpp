#include "app/PlanKeys.h"

#include "app/CellNote.h"
#include "app/PlanView.h"

#include <QKeyEvent>

namespace app
{

using Step = PlanCursor::Step;

PlanKeys::~PlanKeys()
{
    delete m_note;
}

bool PlanKeys::press(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ShiftModifier && event.key() == Qt::Key_F10) {
        openMenu();
        return true;
    }
    if (modifiers == Qt::ControlModifier) {
        switch (event.key()) {
        case Qt::Key_Home:
            return begin() && step(Step::First);
        case Qt::Key_End:
            return begin() && step(Step::Last);
        default:
            return false;
        }
    }
    if (modifiers != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Left:
        return step(Step::Left);
    case Qt::Key_Right:
        return step(Step::Right);
    case Qt::Key_Up:
        return step(Step::Up);
    case Qt::Key_Down:
        return step(Step::Down);
    case Qt::Key_PageUp:
        return m_cursor.isOn() && step(Step::ScreenUp); // else the plan scrolls
    case Qt::Key_PageDown:
        return m_cursor.isOn() && step(Step::ScreenDown);
    case Qt::Key_Home:
        return goOrStep(Step::RowBegin, true);
    case Qt::Key_End:
        return goOrStep(Step::RowEnd, false);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return showText();
    case Qt::Key_Escape:
        return leave();
    default:
        return false;
    }
}

/// Brings the cursor, if it is away. False where there is no cell.
bool PlanKeys::begin()
{
    if (m_cursor.isOn()) {
        return true;
    }
    const PlanTable table = m_view.table();
    if (const auto looked = m_view.framedCell()) {
        m_cursor.put(table, *looked);
    } else if (!m_cursor.putBack(table)) {
        const auto first = m_view.firstInSight();
        if (!first) {
            return false;
        }
        m_cursor.put(table, *first);
    }
    return true;
}

bool PlanKeys::step(Step step)
{
    const bool wasOn = m_cursor.isOn();
    if (!begin()) {
        return false;
    }
    const bool isFarStep = step == Step::First || step == Step::Last;
    if (wasOn || isFarStep) { // the first arrow only brings it
        m_cursor.move(m_view.table(), step, m_view.rowsInSight());
    }
    m_view.showCursor();
    return true;
}

bool PlanKeys::goOrStep(Step step, bool toFirstPage)
{
    if (m_cursor.isOn()) {
        return this->step(step);
    }
    m_view.goToPage(toFirstPage ? &engine::Engine::showFirstPage : &engine::Engine::showLastPage);
    return true;
}

bool PlanKeys::leave()
{
    if (m_cursor.isOn()) {
        m_cursor.putAway();
        m_view.showCursor();
        return true;
    }
    if (m_view.framedRoom().isEmpty()) {
        return false;
    }
    m_view.unframe();
    return true;
}

void PlanKeys::leaveTo(const std::optional<PlanTable::Cell>& cell)
{
    if (cell) {
        m_cursor.remember(m_view.table(), *cell);
    }
    if (m_cursor.isOn()) {
        m_cursor.putAway();
        m_view.showCursor();
    }
}

void PlanKeys::settle()
{
    m_cursor.settle(m_view.table());
}

void PlanKeys::openMenu()
{
    if (!begin()) {
        return;
    }
    m_view.showCursor();
    m_view.openMenu(m_cursor.cell(m_view.table()).value());
}

bool PlanKeys::showText()
{
    const auto cell = m_cursor.cell(m_view.table());
    if (!cell) {
        return false;
    }
    delete m_note;
    m_note = new CellNote(m_view.fullText(*cell), &m_view);
    m_note->showBeside(m_view.onScreen(*cell));
    return true;
}

} // namespace app
