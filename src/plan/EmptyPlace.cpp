#include "plan/EmptyPlace.h"

#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

#include <algorithm>
#include <vector>

namespace plan
{
namespace
{

constexpr int kHour = 60;
constexpr int kSecondsPerMinute = 60;

QString clockText(int minute)
{
    return QStringLiteral("%1h%2").arg(minute / kHour).arg(minute % kHour, 2, 10, QLatin1Char('0'));
}

DayStretch stretchOf(const context::Slot& slot)
{
    const int start = slot.startSeconds / kSecondsPerMinute;
    return {start, start + slot.minutes};
}

/// What of the day is not empty in this row. Nothing where that cannot be told.
std::optional<std::vector<DayStretch>> takenIn(const PlanRow& row)
{
    std::vector<DayStretch> taken;
    const bool isTold = runtime::skipOnError([&] {
        for (const PlanBox& box : row.boxes) {
            const int start = runtime::secondsOfDay(box.cell.CellStart) / kSecondsPerMinute;
            taken.push_back({start, start + std::max(box.minutes, 0)});
        }
        for (const UnknownCell& cell : row.unknown) {
            const int start = runtime::secondsOfDay(cell.start) / kSecondsPerMinute;
            taken.push_back({start, start + cell.minutes});
        }
        for (const UntoldCell& cell : row.untold) {
            const int start = runtime::secondsOfDay(cell.start) / kSecondsPerMinute;
            taken.push_back({start, start + cell.minutes});
        }
    });
    return isTold ? std::optional(taken) : std::nullopt;
}

QString roomWords(const PlanRow& row)
{
    if (row.places.isEmpty()) {
        return row.room;
    }
    return row.room + QStringLiteral(", ") + row.places +
           (row.places == u"1" ? QStringLiteral(" place") : QStringLiteral(" places"));
}

} // namespace

QString chosenWeekWords(const form::PlanForm& form)
{
    return form.OptA().isSelected()   ? QStringLiteral(" en semaine A")
           : form.OptB().isSelected() ? QStringLiteral(" en semaine B")
                                      : QString();
}

std::optional<DayStretch> emptyStretch(const PlanState& state, const PlanRow& row, int minute)
{
    const auto taken = takenIn(row);
    std::optional<DayStretch> day;
    for (int number = 1; number <= kAskedSlots; ++number) {
        if (const auto& slot = state.slots.slot(number)) {
            const DayStretch stretch = stretchOf(*slot);
            day = day ? DayStretch{std::min(day->from, stretch.from), std::max(day->to, stretch.to)}
                      : stretch;
        }
    }
    if (!taken || !day || minute < day->from || minute >= day->to) {
        return std::nullopt;
    }
    DayStretch empty = *day;
    for (const DayStretch& each : *taken) {
        if (each.from <= minute && minute < each.to) {
            return std::nullopt;
        }
        if (each.from > minute) {
            empty.to = std::min(empty.to, each.from);
        } else {
            empty.from = std::max(empty.from, each.to);
        }
    }
    return empty;
}

QString emptyPlaceWords(const PlanState& state, const PlanRow& row, int minute)
{
    const std::optional<DayStretch> empty = emptyStretch(state, row, minute);
    if (!empty) {
        return roomWords(row);
    }
    const QString when =
        QStringLiteral(" de %1 à %2").arg(clockText(empty->from), clockText(empty->to));
    switch (row.asked) {
    case Asked::Exams:
        return roomWords(row) + QStringLiteral(", pas d’examen") + when +
               QStringLiteral("\nCours et rattrapages non compris");
    case Asked::Courses:
        return roomWords(row) + QStringLiteral(", libre") + when + chosenWeekWords(state.form) +
               QStringLiteral("\nRattrapages et examens non compris");
    case Asked::CoursesAndMakeUps:
        return roomWords(row) + QStringLiteral(", libre") + when + chosenWeekWords(state.form) +
               QStringLiteral("\nExamens non compris");
    }
    return roomWords(row);
}

} // namespace plan
