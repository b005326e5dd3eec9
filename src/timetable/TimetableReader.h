#pragma once

#include "db/Connection.h"
#include "timetable/Timetable.h"

#include <cstdint>

namespace timetable
{

/// Reads the period with this number and everything that belongs to it, with at most twelve
/// statements, however many rooms, rows, classes or spellings there are; ten where the tables have
/// all their columns.
///
/// A column that is missing, null or of another type gives an empty part. A table that an answer
/// can do without - `ratrap`, `examen`, `dat_exam`, `etudiant`, `classe` - is told among `unread`
/// when the database refuses to read it; make-ups, exams or sizes are not known then.
/// Errors: whatever fails about the rooms, the slots, the periods, `emplois` or the comparison of
/// names; and a connection that fails, whatever it was to read.
[[nodiscard]] Timetable readTimetable(db::Connection& connection, std::int32_t period);

} // namespace timetable
