#pragma once

#include "context/Periods.h"
#include "context/RoomPage.h"
#include "context/StartReads.h"
#include "db/Database.h"
#include "form/PlanForm.h"

#include <QString>
#include <cstdint>

namespace context
{

/// Who the plan belongs to.
struct EstablishmentHeader {
    QString UniversityName;
    QString EstablishmentName;
    std::int16_t AcademicYear = 0;
};

/// Which database the header is read from, and the period that it shows at first.
struct HeaderSource {
    QString databaseName; ///< what a message calls the database by; never a password
    QString ConnectString;
    QString trancheSetting; ///< the setting "Tranche", a period number
};

/// Opens the database and reads what the header shows: establishment, number of rooms, periods,
/// and the period named by the settings with its dates.
/// Errors: any database error, TypeMismatch or Overflow for a value that does not convert.
[[nodiscard]] EstablishmentHeader LoadEstablishment(form::PlanForm& form, db::Database& database,
                                                    StartReads& reads, Periods& periods,
                                                    RoomPage& page, const HeaderSource& source);

} // namespace context
