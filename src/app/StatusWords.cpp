#include "app/StatusWords.h"

#include "runtime/FrenchDate.h"
#include "shell/Shell.h"
#include "timetable/DateRules.h"
#include "timetable/WeekRhythm.h"

namespace app
{

QString weekShownWords(shell::Shell& shell)
{
    const timetable::WeekRhythm rhythm(shell.weekA());
    const QDate date = shell.form().DTPicker1.value();
    if (!rhythm.isKnown() || !date.isValid()) {
        return {};
    }
    return QStringLiteral("Semaine %1 (du %2)")
        .arg(rhythm.weekOf(date) == timetable::Week::A ? QChar(u'A') : QChar(u'B'))
        .arg(timetable::MondayOnOrBefore(date).toString(QStringLiteral("dd/MM")));
}

QString markedDayWords(shell::Shell& shell)
{
    for (const plan::PlanRow& row : shell.engine().content().rows) {
        if (!row.boxes.empty()) {
            const plan::Marqueur& marker = shell.engine().markers().at(row.boxes.front().marker);
            return QStringLiteral("Absences du ") + runtime::frenchDayAndDate(marker.Jour);
        }
    }
    return {};
}

} // namespace app
