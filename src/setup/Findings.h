#pragma once

#include "db/Connection.h"

#include <QDate>
#include <QString>

namespace setup
{

/// What a look into a timetable database has found.
struct Findings {
    int rooms = 0;
    int periods = 0;
    int courses = 0;             ///< rows of the timetable, of all periods
    QDate lastDay;               ///< of the period that ends last; no valid date where none tells
    bool marksAbsences = false;  ///< whether the account may add and remove them
    bool hasApostrophes = false; ///< in the name of a room or a class
};

/// Looks into the database; nothing in it is changed. Errors: those of the connection; TableMissing
/// for a database that holds no timetable.
[[nodiscard]] Findings lookInto(db::Connection& connection);

/// "64 salles, 2 périodes, 2 144 séances ; droits : lecture et absences".
[[nodiscard]] QString inWords(const Findings& findings);

} // namespace setup
