#pragma once

#include "timetable/DaySlot.h"
#include "timetable/Id.h"
#include "timetable/TimeSpan.h"

#include <QDate>
#include <array>
#include <cstddef>
#include <optional>

namespace timetable
{

/// Which table a meeting is a row of.
enum class MeetingKind {
    Course, ///< `emplois`: every week of the period, or every other
    MakeUp, ///< `ratrap`: on its date
    Exam,   ///< `examen`: on a day of its exam week
};
inline constexpr std::size_t kMeetingKinds = 3;

/// What one row can hold beside each other, each with rooms, teachers and a subject of its own.
enum class Part {
    A,       ///< `Salle`, with `YSalle`
    SecondA, ///< `XSalle`
    B,       ///< `SalleB`, with `YSalleB`
    SecondB, ///< `XSalleB`
};
inline constexpr std::size_t kParts = 4;
inline constexpr std::array kAllParts{Part::A, Part::SecondA, Part::B, Part::SecondB};

/// A part of a meeting. It is there when it names a room.
struct MeetingPart {
    RoomNameId room;                   ///< nothing where the row names none
    RoomNameId otherRoom;              ///< the Y room; of the second parts always nothing
    std::array<TeacherId, 3> teachers; ///< in the row's order, with gaps where it has gaps
    SubjectId subject;

    [[nodiscard]] bool isThere() const { return !room.isNone() || !otherRoom.isNone(); }

    friend bool operator==(const MeetingPart&, const MeetingPart&) = default;
};

/// A row of the timetable: one class in one slot. A course of several classes is several rows.
struct Meeting {
    MeetingKind kind = MeetingKind::Course;
    std::array<MeetingPart, kParts> parts; ///< in the order of `Part`
    ClassId className;
    SlotKey slot;                     ///< what its key means; no day where it means none
    std::optional<MinuteOfDay> start; ///< `Debut`; nothing where it cannot be read
    std::optional<Minutes> length;    ///< `Durée`; nothing where it cannot be read
    bool alternates = false;          ///< the rooms of week A and of week B take turns
    int examWeek = 0;                 ///< 1 to 3; 0 for what is no exam, or of no such week
    QDate date;                       ///< of a make-up; no valid date where it cannot be read
    // As stored; nothing for a null.
    TextId slotText;
    TextId startText;
    TextId lengthText;
    TextId nature;

    [[nodiscard]] const MeetingPart& part(Part which) const
    {
        return parts.at(static_cast<std::size_t>(which));
    }

    friend bool operator==(const Meeting&, const Meeting&) = default;
};

} // namespace timetable
