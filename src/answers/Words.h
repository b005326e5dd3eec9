#pragma once

#include "answers/RoomFilter.h"
#include "answers/WeekOf.h"
#include "timetable/Occupancy.h"

#include <QString>

/// French words for what is asked and answered.
namespace answers
{

/// "9h30"; of a time beyond midnight "25h00".
[[nodiscard]] QString clockWords(timetable::MinuteOfDay time);
/// "9h30–11h00".
[[nodiscard]] QString spanWords(const timetable::TimeSpan& span);
/// A day of the week, 0 to 6, "mardi"; of a valid date "mardi 24/11/2026".
[[nodiscard]] QString dayWords(int day, QDate date = {});
/// "toute semaine", "semaine A" or "semaine B".
[[nodiscard]] QString weekWords(timetable::Week week);
/// "semaine du 23/11/2026 (semaine A)" or, without a date, as `weekWords`.
[[nodiscard]] QString weekWords(const AskedWeek& week);
/// "zone 3, département INFO"; empty where all rooms are asked about.
[[nodiscard]] QString filterWords(const RoomFilter& filter);
/// The name of whoever has a week, as the rows spell it.
[[nodiscard]] QString nameOf(const timetable::Timetable& timetable, const Subject& subject);
/// What it is: "Salle", "Enseignant", "Classe" or "Matière".
[[nodiscard]] QString kindWords(const Subject& subject);
/// A name with what it is before it, "Salle 205"; once where the name itself begins with that word,
/// as in "Salle 205" or "salle d’or".
[[nodiscard]] QString titled(const QString& kind, const QString& name);
/// "rattrapage", "examen", or nothing for a course.
[[nodiscard]] QString kindWords(timetable::MeetingKind kind);
/// A share from 0 to 1 in whole percent, "62 %" with a narrow no-break space; "< 1 %" for what
/// would be rounded to nothing.
[[nodiscard]] QString percentWords(double share);
/// "2" or "1,5": at most one decimal.
[[nodiscard]] QString numberWords(double number);

} // namespace answers
