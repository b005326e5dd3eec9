#include "app/PlanToolTips.h"

#include "plan/BoxLines.h"
#include "plan/BoxWords.h"
#include "plan/RoomRows.h"

#include <QStringList>

namespace app
{

QString boxToolTip(const form::PlanForm& form, const plan::PlanRow& row, const plan::PlanBox& box)
{
    const lookup::RoomCell& cell = box.cell;
    QStringList lines;
    lines << QStringLiteral("%1 – %2, %3 min").arg(row.room, cell.CellStart, cell.CellDuration);
    lines += plan::writtenLines(cell.CellText);
    lines += plan::remarkWords(form, box);
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
