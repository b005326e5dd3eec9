#pragma once

#include "db/Connection.h"
#include "timetable/Timetable.h"

#include <QString>
#include <vector>

namespace timetable
{

// What a name that somebody asks for means in a timetable. The database decides, as for the names
// of the rows: one statement each, and none for a teacher, a class or a subject that is spelt like
// one in the rows. Errors: any of the database.

/// The rooms of that name, those that only rows name included.
[[nodiscard]] std::vector<RoomId> findRooms(db::Connection& connection, const Timetable& timetable,
                                            const QString& name);
/// The rooms of a department.
[[nodiscard]] std::vector<RoomId>
findRoomsOf(db::Connection& connection, const Timetable& timetable, const QString& department);
/// The group (see Names) of that name; nothing where no row has it.
[[nodiscard]] TeacherId findTeacher(db::Connection& connection, const Timetable& timetable,
                                    const QString& name);
[[nodiscard]] ClassId findClass(db::Connection& connection, const Timetable& timetable,
                                const QString& name);
[[nodiscard]] SubjectId findSubject(db::Connection& connection, const Timetable& timetable,
                                    const QString& name);

} // namespace timetable
