#pragma once

#include <QKeyCombination>
#include <QList>
#include <QObject>
#include <functional>

class QWidget;

namespace form
{
class PlanForm;
}

namespace app
{

/// The keys that do what a control of the window does, from wherever the focus is: days, date,
/// pages and printing.
class WindowKeys : public QObject
{
public:
    /// Runs a user's action on the program.
    using Forward = std::function<void(const std::function<void()>& action)>;

    /// `window` has the controls, the date picker under its name; both live as long as the keys.
    WindowKeys(QWidget& window, form::PlanForm& form, Forward forward);

private:
    void add(const QList<QKeyCombination>& keys, std::function<void()> act);
    void addDays(form::PlanForm& form);
    void enterDate(form::PlanForm& form);

    QWidget& m_window;
    Forward m_forward;
};

} // namespace app
