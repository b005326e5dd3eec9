#pragma once

#include "answers/RoomWeeks.h"
#include "answers/WeekGrid.h"

#include <QString>
#include <QStringList>

namespace test
{

/// Six days with two slots, from 8h00 to 10h00 and from 10h00 to 12h00.
inline answers::WeekDays plainDays()
{
    constexpr timetable::TimeSpan first{{480}, {120}};
    constexpr timetable::TimeSpan second{{600}, {120}};
    answers::WeekDays days;
    for (answers::WeekDay& day : days) {
        day = {QStringLiteral("Jour"), {first, second}, {{480}, {240}}};
    }
    return days;
}

/// A week of these days without anything.
inline answers::WeekGrid plainGrid()
{
    return {plainDays(), {{480}, {240}}, {}, {}};
}

/// A box of room 0.
inline answers::WeekBox boxAt(int day, int start, int minutes, const QStringList& lines = {})
{
    answers::WeekBox box;
    box.day = day;
    box.time = {{start}, {minutes}};
    box.lines = lines;
    box.shortText = lines.value(0);
    box.room = timetable::RoomId(0);
    return box;
}

/// So many rooms of the plain days, without anything.
inline answers::RoomWeeks plainRooms(int count)
{
    answers::RoomWeeks weeks{plainDays(), {}};
    for (int room = 0; room < count; ++room) {
        weeks.rows.push_back(
            {timetable::RoomId(room), QStringLiteral("R%1").arg(room), 30, {}, {}});
    }
    return weeks;
}

} // namespace test
