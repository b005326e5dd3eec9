#include "paint/WeekLegend.h"

#include <QStringList>
#include <algorithm>

namespace paint
{
namespace
{

/// What there is to explain.
struct Seen {
    bool makeUps = false;
    bool exams = false;
    bool weeks = false;
    bool unknown = false;
};

Seen& operator+=(Seen& seen, const std::vector<answers::WeekBox>& boxes)
{
    for (const answers::WeekBox& box : boxes) {
        seen.makeUps = seen.makeUps || box.kind == timetable::MeetingKind::MakeUp;
        seen.exams = seen.exams || box.kind == timetable::MeetingKind::Exam;
        seen.weeks = seen.weeks || !box.corner.isEmpty();
    }
    return seen;
}

QString legendOf(const Seen& seen, const QString& weeks)
{
    QStringList legend;
    if (seen.makeUps) {
        legend << QStringLiteral("Case hachurée : rattrapage");
    }
    if (seen.exams) {
        legend << QStringLiteral("Cadre épais : examen");
    }
    if (seen.weeks) {
        legend << weeks;
    }
    if (seen.unknown) {
        legend << QStringLiteral("? : heure inconnue");
    }
    return legend.join(QStringLiteral(" · "));
}

} // namespace

QString weekLegend(const answers::WeekGrid& grid)
{
    Seen seen;
    seen += grid.boxes;
    seen.unknown = !grid.unplaced.empty();
    return legendOf(seen, QStringLiteral("A, B : une semaine sur deux"));
}

QString weekLegend(const answers::RoomWeeks& weeks)
{
    Seen seen;
    for (const answers::RoomWeek& row : weeks.rows) {
        seen += row.boxes;
        seen.unknown =
            seen.unknown || std::any_of(row.unknown.begin(), row.unknown.end(),
                                        [](const QString& why) { return !why.isEmpty(); });
    }
    return legendOf(seen, QStringLiteral("Moitié haute : semaine A, moitié basse : semaine B"));
}

} // namespace paint
