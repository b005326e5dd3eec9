#include "app/WindowKeys.h"

#include "form/PlanForm.h"

#include <QAction>
#include <QWidget>
#include <array>
#include <utility>

namespace app
{

WindowKeys::WindowKeys(QWidget& window, form::PlanForm& form, Forward forward)
    : QObject(&window), m_window(window), m_forward(std::move(forward))
{
    const auto press = [&](QKeyCombination keys, const form::Button& button) {
        add({keys}, [this, &button] { m_forward([&button] { button.press(); }); });
    };
    press(Qt::CTRL | Qt::Key_T, form.Today);
    press(Qt::ALT | Qt::Key_Left, form.DayBefore);
    press(Qt::ALT | Qt::Key_Right, form.DayAfter);
    press(Qt::CTRL | Qt::Key_PageUp, form.Command2);
    press(Qt::CTRL | Qt::Key_PageDown, form.Command3);
    press(Qt::CTRL | Qt::Key_P, form.Command1);
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_P, form.PrintAllPages);
    addDays(form);
    add({Qt::CTRL | Qt::Key_D}, [this, &form] { enterDate(form); });
}

void WindowKeys::add(const QList<QKeyCombination>& keys, std::function<void()> act)
{
    auto* action = new QAction(this);
    action->setShortcuts(QList<QKeySequence>(keys.begin(), keys.end()));
    connect(action, &QAction::triggered, this, std::move(act));
    m_window.addAction(action);
}

/// Ctrl with the digit of the day, and with the sign that a French keyboard has on the digit's key.
void WindowKeys::addDays(form::PlanForm& form)
{
    constexpr std::array frenchKeys{Qt::Key_Ampersand,  Qt::Key_Eacute,    Qt::Key_QuoteDbl,
                                    Qt::Key_Apostrophe, Qt::Key_ParenLeft, Qt::Key_Minus};
    for (int day = 0; day < static_cast<int>(frenchKeys.size()); ++day) {
        const auto digit = static_cast<Qt::Key>(Qt::Key_1 + day);
        const Qt::Key sign = frenchKeys.at(static_cast<std::size_t>(day));
        add({Qt::CTRL | digit, Qt::CTRL | sign}, [this, &form, day] {
            if (day < form.CbJour.items().size()) {
                m_forward([&form, day] { form.CbJour.setListIndex(day); });
            }
        });
    }
}

/// Ticks "Date", if it is not, and leads to the date.
void WindowKeys::enterDate(form::PlanForm& form)
{
    m_forward([&form] { form.Check2.setChecked(true); });
    auto* picker = m_window.findChild<QWidget*>(QStringLiteral("DTPicker1"));
    if (picker != nullptr && picker->isVisible()) {
        picker->setFocus(Qt::ShortcutFocusReason);
    }
}

} // namespace app
