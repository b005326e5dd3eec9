#pragma once

#include "answers/Clashes.h"
#include "answers/FreeRooms.h"
#include "answers/RoomUse.h"
#include "answers/Whereabouts.h"
#include "form/Colour.h"
#include "timetable/WeekRhythm.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace files
{

/// The week of somebody or something, or of all rooms.
struct WeekAnswer {
    std::optional<answers::Subject> subject; ///< nothing: all rooms
    answers::AskedWeek week;
    std::vector<timetable::HoldingId> items; ///< as `answers::weekOf` orders them
    answers::RoomFilter rooms{};             ///< of all rooms: the ones that have a row
};

using HitList = std::vector<answers::Hit>;
using ClashList = std::vector<answers::Clash>;
/// What was found out.
using Answer = std::variant<answers::FreeRooms, WeekAnswer, HitList, ClashList, answers::RoomUse>;

/// An answer with all that a file tells about it, as values.
struct AnswerDocument {
    std::shared_ptr<const timetable::Occupancy> occupancy;
    QString title;     ///< what was asked: "Salles libres"
    QStringList about; ///< what it holds for, line by line: when, of which rooms, which period
    Answer answer;
    /// By the room's id: that of its row on the plan's pages. Rooms beyond the end have none.
    std::vector<form::Colour> roomColors;
    timetable::WeekRhythm rhythm;
    /// Stands in files that carry a date, so that the same answer gives the same bytes.
    QDate date;

    [[nodiscard]] const timetable::Timetable& timetable() const { return occupancy->timetable(); }
};

} // namespace files
