#pragma once

#include "timetable/SqlName.h"

/// The tables beside those of the meetings (MeetingColumns.h), as far as they are read by column.
namespace timetable
{

namespace table
{
inline constexpr SqlName kSalle{u"salle"};
inline constexpr SqlName kSeances{u"seances"};
inline constexpr SqlName kTrancheTable{u"tranche"};
inline constexpr SqlName kDatExam{u"dat_exam"};
inline constexpr SqlName kClasseTable{u"classe"};
inline constexpr SqlName kEtudiant{u"etudiant"};
} // namespace table

namespace column
{
inline constexpr SqlName kNom{u"Nom"};                 ///< of a room, of a class
inline constexpr SqlName kZone{u"Zone"};               ///< number
inline constexpr SqlName kDepartement{u"Département"}; ///< null: open to all
inline constexpr SqlName kPlaces{u"places"};
inline constexpr SqlName kHoraire1{u"Horaire1"}; ///< start of a slot, for example 8h30
inline constexpr SqlName kHoraire2{u"Horaire2"}; ///< its end
inline constexpr SqlName kCapacite{u"Capacite"};
inline constexpr SqlName kClasseOfStudent{u"classe"};
} // namespace column

/// `tranche` and `dat_exam` are read by position: what their columns are called is not known.
namespace position
{
// tranche
inline constexpr int kPeriodIdent = 0;
inline constexpr int kPeriodName = 1;
inline constexpr int kFirstDay = 2;
inline constexpr int kLastDay = 3;
// dat_exam
inline constexpr int kPeriodOfExams = 0;
inline constexpr int kFirstExamWeek = 1; ///< the other exam week and the control week follow
} // namespace position

} // namespace timetable
