#include "app/PlanToolTips.h"

#include "plan/BoxLines.h"
#include "plan/BoxWords.h"

#include <QStringList>
#include <algorithm>

namespace app
{

QString boxToolTip(const form::PlanForm& form, const plan::PlanRow& row, const plan::PlanBox& box)
{
    const lookup::RoomCell& cell = box.cell;
    QStringList lines;
    lines << QStringLiteral("%1 – %2, %3 min").arg(row.room, cell.CellStart, cell.CellDuration);
    for (const QString& line : cell.CellText.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts)) {
        lines << line.simplified();
    }
    lines += plan::remarkWords(form, box);
    return lines.join(u'\n');
}

QString roomToolTip(const form::PlanForm& form, double top)
{
    const std::vector<form::Label>& rooms = form.Salle;
    const auto room = std::find_if(rooms.begin(), rooms.end(), [top](const form::Label& label) {
        return label.visible && top >= label.place.top &&
               top < label.place.top + label.place.height;
    });
    if (room == rooms.end()) {
        return {};
    }
    return room != rooms.begin()
               ? room->caption // the label may be too narrow for it
               : room->caption + QStringLiteral("\nSalle placée juste avant la première ligne du "
                                                "plan : ses séances ne sont pas dessinées ici");
}

QString totalsToolTip(const plan::PlanState& state)
{
    return state.totals.isOld ? QStringLiteral("Places occupées, comptées avant le dernier choix.\n"
                                               "Choisir le jour les compte à nouveau.")
                              : QString();
}

} // namespace app
