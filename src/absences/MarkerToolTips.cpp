#include "absences/MarkerToolTips.h"

#include "plan/ClassList.h"
#include "runtime/FrenchDate.h"

#include <limits>

namespace absences
{
namespace
{

/// "enregistrer l’absence de la classe L1", "enregistrer ou retirer l’absence de chacune des
/// classes L1, L2".
QString outcome(const QStringList& classes, bool absent, const QString& absence,
                qsizetype mostNamed)
{
    if (classes.size() > mostNamed) {
        return QStringLiteral("enregistrer ou retirer %1 de chacune des %2 classes")
            .arg(absence)
            .arg(classes.size());
    }
    if (classes.size() > 1) {
        return QStringLiteral("enregistrer ou retirer ") + absence +
               QStringLiteral(" de chacune des classes ") + plan::fewNames(classes);
    }
    return (absent ? QStringLiteral("retirer ") : QStringLiteral("enregistrer ")) + absence +
           QStringLiteral(" de la classe ") + classes.value(0);
}

} // namespace

QString gestureWords(VirtualKey key, const plan::PlanBox& box, QDate day, qsizetype mostNamed)
{
    QStringList classes = plan::classNames(box.cell.CellClassList);
    classes.removeAll(QString());
    const bool isOfClass = key == VirtualKey::Shift;
    return outcome(classes, isOfClass ? box.classAbsent : box.studentAbsent,
                   isOfClass ? QStringLiteral("l’absence")
                             : QStringLiteral("l’absence d’étudiants"),
                   mostNamed) +
           QStringLiteral(" le ") + runtime::frenchDayAndDate(day);
}

QString ZAbsToolTip(const plan::PlanBox& box, QDate day)
{
    constexpr qsizetype all = std::numeric_limits<qsizetype>::max();
    return QStringLiteral("Maj + clic : ") + gestureWords(VirtualKey::Shift, box, day, all) +
           QStringLiteral("\nCtrl + clic : ") + gestureWords(VirtualKey::Ctrl, box, day, all);
}

} // namespace absences
