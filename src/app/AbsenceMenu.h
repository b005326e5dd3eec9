#pragma once

#include "absences/AsyncKeyState.h"
#include "app/PlanView.h"

#include <functional>

class QMenu;

namespace app
{

/// The two gestures on a box as entries of its menu: what the click does with Shift or with Ctrl
/// held, for hands that cannot hold a key, or have no mouse.
class AbsenceMenu
{
public:
    /// A click on a box's marker images, by its marker; `keys` are as the entry says. The click may
    /// be put off until later.
    using Click = std::function<void(int marker, absences::VirtualKey key)>;

    /// `engine` and `view` live as long as the menus do.
    AbsenceMenu(const engine::Engine& engine, const PlanView& view, Click click);

    /// Adds both to the menu of a spot. Where the click would do nothing they are greyed, and say
    /// why.
    void addTo(QMenu& menu, const PlanView::Spot& spot) const;

private:
    [[nodiscard]] QString whyNot(const PlanView::Spot& spot) const;
    void add(QMenu& menu, const plan::PlanBox& box, absences::VirtualKey key) const;

    const engine::Engine& m_engine;
    const PlanView& m_view;
    Click m_click;
};

} // namespace app
