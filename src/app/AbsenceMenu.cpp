#include "app/AbsenceMenu.h"

#include "absences/MarkerToolTips.h"

#include <QMenu>
#include <utility>

namespace app
{
namespace
{

using absences::VirtualKey;

// More would make the menu wider than the plan.
constexpr qsizetype kMostNamed = 3;

/// As an entry that has this letter of its words under a key.
QString asEntry(QString words, const QString& part, const QString& marked)
{
    words.front() = words.front().toUpper();
    words.replace(u'&', QStringLiteral("&&")); // of a class's name
    const auto at = words.indexOf(part);
    return at < 0 ? words : words.replace(at, part.size(), marked);
}

} // namespace

AbsenceMenu::AbsenceMenu(const engine::Engine& engine, const PlanView& view, Click click)
    : m_engine(engine), m_view(view), m_click(std::move(click))
{
}

void AbsenceMenu::addTo(QMenu& menu, const PlanView::Spot& spot) const
{
    menu.addSeparator();
    const QString reason = whyNot(spot);
    if (reason.isEmpty()) {
        add(menu, *spot.box, VirtualKey::Shift);
        add(menu, *spot.box, VirtualKey::Ctrl);
        return;
    }
    for (const QString& gesture :
         {QStringLiteral("Absence de la classe"), QStringLiteral("Absence d’étudiants")}) {
        menu.addAction(gesture + QStringLiteral(" : ") + reason)->setEnabled(false);
    }
}

/// Empty where the click does something.
QString AbsenceMenu::whyNot(const PlanView::Spot& spot) const
{
    if (spot.box == nullptr) {
        return spot.slot == 0 ? QStringLiteral("choisissez une séance")
                              : QStringLiteral("pas de séance ici");
    }
    return m_view.takesClicks() ? QString() : QStringLiteral("le plan est en cours de lecture");
}

void AbsenceMenu::add(QMenu& menu, const plan::PlanBox& box, VirtualKey key) const
{
    const QString words =
        absences::gestureWords(key, box, m_engine.markers().at(box.marker).Jour, kMostNamed);
    const bool isOfClass = key == VirtualKey::Shift;
    const QString text =
        isOfClass ? asEntry(words, QStringLiteral("classe"), QStringLiteral("&classe"))
                  : asEntry(words, QStringLiteral("étudiants"), QStringLiteral("étu&diants"));
    QAction* action = menu.addAction(
        text + (isOfClass ? QStringLiteral("\tMaj+clic") : QStringLiteral("\tCtrl+clic")));
    QObject::connect(action, &QAction::triggered, &menu,
                     [this, key, marker = box.marker, refresh = m_engine.refreshCount()] {
                         // By now another plan may stand there, and the number for another box.
                         if (refresh == m_engine.refreshCount() && m_view.takesClicks()) {
                             m_click(marker, key);
                         }
                     });
}

} // namespace app
