#include "demo/Timetable.h"

#include "demo/Cells.h"
#include "demo/GroupCourses.h"
#include "demo/Lectures.h"

#include <algorithm>
#include <tuple>

namespace demo
{
namespace
{

/// How long a séance lasts, by the kind of its room.
int drawMinutes(RoomKind kind, Draw& draw)
{
    const int drawn = draw.below(100);
    switch (kind) {
    case RoomKind::Amphi:
        return drawn < 6 ? 135 : drawn < 8 ? 180 : 90;
    case RoomKind::Practical:
        return drawn < 38 ? 180 : drawn < 44 ? 135 : 90;
    case RoomKind::Classroom:
        return drawn < 6 ? 135 : drawn < 9 ? 180 : drawn < 13 ? 45 : 90;
    case RoomKind::Seminar:
        return drawn < 12 ? 135 : drawn < 24 ? 45 : 90;
    }
    return slotMinutes;
}

/// The drawn length, or one slot where the longer one does not fit.
When drawWhen(const Faculty& faculty, const WeekBook& book, const Cell& cell, Draw& draw)
{
    When when{cell.day, cell.slot, 0, drawMinutes(faculty.room(cell.room).kind, draw), everyWeek};
    const bool evening = cell.slot == slotCount - 2;
    if (when.minutes > slotMinutes &&
        (evening || !fitsHalfDay(cell.slot, when.minutes) || !book.roomFree(cell.room, when))) {
        when.minutes = slotMinutes;
    }
    return when;
}

bool comesBefore(const Meeting& left, const Meeting& right)
{
    return std::tie(left.studentClass, left.day, left.slot, left.start) <
           std::tie(right.studentClass, right.day, right.slot, right.start);
}

} // namespace

Timetable makeTimetable(const Faculty& faculty, const Period& period)
{
    Draw draw(faculty.options.seed, Topic::Timetable, static_cast<std::uint32_t>(period.ident));
    Timetable table{{}, WeekBook(faculty)};
    Lectures lectures(faculty, period, draw);
    GroupCourses groups(faculty, period, draw);
    const auto fill = [&](int room, const When& when) {
        if (!table.book.roomFree(room, when)) {
            return false;
        }
        const bool lecture = lectures.suits(faculty.room(room), draw);
        return (lecture && lectures.place(room, when, table, draw)) ||
               (faculty.room(room).kind != RoomKind::Amphi &&
                groups.place(room, when, table, draw));
    };
    for (const Cell& cell : chooseCells(faculty, draw)) {
        const When when = drawWhen(faculty, table.book, cell, draw);
        const bool placed = fill(cell.room, when);
        if (placed && when.minutes == slotMinutes * 3 / 2) {
            // The half slot left behind it is just long enough for a short séance.
            fill(cell.room, {cell.day, cell.slot + 1, 1, slotMinutes / 2, everyWeek});
        }
    }
    std::stable_sort(table.meetings.begin(), table.meetings.end(), comesBefore);
    return table;
}

} // namespace demo
