#include "app/PlanToolTips.h"

#include "plan/BoxLines.h"
#include "plan/BoxWords.h"
#include "plan/ClassList.h"
#include "plan/RoomRows.h"

#include <QStringList>

namespace app
{

namespace
{

/// What the two labels say, and what a click on the counter does.
QStringList groupLines(const plan::PlanRow& row, const plan::PlanBox& box)
{
    const lookup::RoomCell& cell = box.cell;
    QStringList lines;
    if (cell.CellRowCount != 1) {
        lines << box.group->counter + QStringLiteral(" groupes : ") +
                     plan::fewNames(plan::classWords(cell.CellClassList));
    }
    if (box.group->overfull) {
        lines << box.group->sizeLabel + QStringLiteral(" : inscrits %1, prévus %2, places %3")
                                            .arg(cell.CellStudents)
                                            .arg(cell.CellCapacity)
                                            .arg(row.places);
    } else {
        lines << QStringLiteral("Nombre d'étudiants : ") + box.group->sizeLabel;
    }
    return lines
           << QStringLiteral("Compteur %1 : Cliquez Pour Plus de Détails").arg(box.group->counter);
}

QStringList absenceLines(const plan::PlanBox& box)
{
    QStringList lines;
    if (box.classAbsent) {
        lines << QStringLiteral("Classe absente");
    }
    if (box.studentAbsent) {
        lines << QStringLiteral("Étudiants : %1 Absent")
                     .arg(plan::fewNames(plan::classWords(box.cell.CellClassList)));
    }
    return lines;
}

} // namespace

QString boxToolTip(const form::PlanForm& form, const plan::PlanRow& row, const plan::PlanBox& box)
{
    const lookup::RoomCell& cell = box.cell;
    QStringList lines;
    lines << QStringLiteral("%1 – %2, %3 min").arg(row.room, cell.CellStart, cell.CellDuration);
    lines += plan::writtenLines(cell.CellText);
    const QString week = plan::weekLetter(box);
    if (!week.isEmpty()) {
        lines << QStringLiteral("Semaine ") + week;
    }
    if (box.makeUp) {
        lines << QStringLiteral("Rattrapage");
    }
    if (box.group && form.Check3.isChecked()) {
        lines += groupLines(row, box);
    }
    lines += absenceLines(box);
    lines += plan::overlapWords(row, box);
    return lines.join(u'\n');
}

QString groupText(const plan::GroupCounter& group)
{
    QString classes = group.details;
    classes.remove(u'\r');
    return classes.replace(u'\t', QStringLiteral(" – "));
}

QString roomToolTip(const plan::PlanState& state, double top)
{
    const std::optional<int> row = plan::rowAtHeight(state.form, top);
    if (!row) {
        return {};
    }
    const QString& name = state.page.room(*row).name;
    return *row != 0 ? name // the label may be too narrow for it
                     : name + QStringLiteral("\nSalle placée juste avant la première ligne du "
                                             "plan : ses séances ne sont pas dessinées ici.\n"
                                             "Un clic montre sa journée.");
}

QString totalsToolTip(const plan::PlanState& state)
{
    return state.totals.isShown() && state.totals.isOld
               ? QStringLiteral("Places occupées, comptées avant le dernier choix.\n"
                                "Choisir le jour les compte à nouveau.")
               : QString();
}

} // namespace app
