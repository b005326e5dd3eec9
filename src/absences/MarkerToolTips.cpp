#include "absences/MarkerToolTips.h"

#include "plan/ClassList.h"
#include "runtime/FrenchDate.h"

namespace absences
{
namespace
{

/// "enregistrer l’absence de la classe L1", "enregistrer ou retirer l’absence de chacune des
/// classes L1, L2".
QString outcome(const QStringList& classes, bool absent, const QString& absence)
{
    if (classes.size() > 1) {
        return QStringLiteral("enregistrer ou retirer ") + absence +
               QStringLiteral(" de chacune des classes ") + classes.join(QStringLiteral(", "));
    }
    return (absent ? QStringLiteral("retirer ") : QStringLiteral("enregistrer ")) + absence +
           QStringLiteral(" de la classe ") + classes.value(0);
}

} // namespace

QString ZAbsToolTip(const plan::PlanBox& box, QDate day)
{
    const QString date = QStringLiteral(" le ") + runtime::frenchDayAndDate(day);
    QStringList classes = plan::classNames(box.cell.CellClassList);
    classes.removeAll(QString());
    return QStringLiteral("Maj + clic : ") +
           outcome(classes, box.classAbsent, QStringLiteral("l’absence")) + date +
           QStringLiteral("\nCtrl + clic : ") +
           outcome(classes, box.studentAbsent, QStringLiteral("l’absence d’étudiants")) + date;
}

QString XAbsToolTip(const plan::PlanBox& box, QDate day)
{
    return (box.classAbsent ? QStringLiteral("Classe absente\n") : QString()) +
           ZAbsToolTip(box, day);
}

} // namespace absences
