#include "plan/BoxWords.h"

#include "plan/BoxLines.h"
#include "plan/ClassList.h"
#include "plan/RowLanes.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

namespace plan
{

QString endText(const QString& start, int minutes)
{
    QString text;
    runtime::skipOnError([&] {
        const int end = runtime::endMinute(start, minutes);
        text = QStringLiteral("%1h%2").arg(end / 60).arg(end % 60, 2, 10, QLatin1Char('0'));
    });
    return text;
}

QString stretchWords(const QString& start, const QString& between, int minutes)
{
    const QString end = endText(start, minutes);
    return end.isEmpty() ? start : start + between + end;
}

QStringList groupWords(const form::PlanForm& form, const PlanBox& box)
{
    QStringList words;
    if (!box.group || !form.Check3.isChecked()) {
        return words;
    }
    if (box.cell.CellRowCount != 1) {
        QStringList names = classWords(box.cell.CellClassList);
        names.replaceInStrings(QStringLiteral(" "), QString(QChar::Nbsp));
        words << box.group->counter + QStringLiteral(" groupes : ") +
                     names.join(QStringLiteral(", "));
    }
    if (!box.group->overfull) {
        words << box.group->sizeLabel + QStringLiteral("\u00a0étudiants");
    }
    return words;
}

QString weekLetter(const PlanBox& box)
{
    if (box.cell.week == timetable::Week::Every || box.cell.CellRowCount != 1 || box.makeUp) {
        return {};
    }
    return box.cell.week == timetable::Week::A ? QStringLiteral("A") : QStringLiteral("B");
}

QStringList overlapWords(const PlanRow& row, const PlanBox& box)
{
    QStringList words;
    for (const PlanBox* other : overlapping(row, box)) {
        QStringList parts{
            stretchWords(other->cell.CellStart, QStringLiteral(" à "), other->minutes)};
        parts += writtenLines(other->cell.CellText).mid(0, 1);
        words << QStringLiteral("En même temps : ") + parts.join(QStringLiteral(", "));
    }
    return words;
}

QStringList remarkWords(const form::PlanForm& form, const PlanBox& box)
{
    QStringList words;
    if (box.makeUp) {
        words << QStringLiteral("Rattrapage");
    }
    if (box.group && box.group->overfull && form.Check3.isChecked()) {
        words << box.group->sizeLabel;
    }
    if (box.classAbsent) {
        words << QStringLiteral("Classe absente");
    }
    if (box.studentAbsent) {
        words << QStringLiteral("Étudiants absents");
    }
    return words;
}

} // namespace plan
