#include "absences/MarkerToolTips.h"

#include "absences/Marking.h"

namespace absences
{
namespace
{

/// "enregistrer l’absence de la classe L1", "enregistrer ou retirer l’absence de chaque classe".
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

QString ZAbsToolTip(const plan::PlanBox& box)
{
    QStringList classes = classNames(box.cell.CellClassList);
    classes.removeAll(QString());
    return QStringLiteral("Maj + clic : ") +
           outcome(classes, box.classAbsent, QStringLiteral("l’absence")) +
           QStringLiteral("\nCtrl + clic : ") +
           outcome(classes, box.studentAbsent, QStringLiteral("l’absence d’étudiants"));
}

QString XAbsToolTip(const plan::PlanBox& box)
{
    return (box.classAbsent ? QStringLiteral("Classe absente\n") : QString()) + ZAbsToolTip(box);
}

} // namespace absences
