#pragma once

#include "timetable/SqlName.h"

#include <array>

/// The tables of meetings and their columns: the one place that spells them. Identifiers are the
/// names themselves without their accents.
namespace timetable
{

namespace table
{
inline constexpr SqlName kEmplois{u"emplois"}; ///< the weekly timetable
inline constexpr SqlName kRatrap{u"ratrap"};   ///< make-up classes of a date
inline constexpr SqlName kExamen{u"examen"};   ///< exams of an exam week
} // namespace table

namespace column
{

inline constexpr SqlName kTranche{u"Tranche"}; ///< period number
inline constexpr SqlName kSeance{u"Seance"};   ///< slot key, for example Lundi1
inline constexpr SqlName kSemaine{u"Semaine"}; ///< exam week number, `examen` only
inline constexpr SqlName kDateX{u"DateX"};     ///< day of the make-up, `ratrap` only

inline constexpr SqlName kClasse{u"Classe"};
inline constexpr SqlName kNewNature{u"newnature"}; ///< week rule: see `nature`
inline constexpr SqlName kDebut{u"Debut"};         ///< start, for example 8h30
inline constexpr SqlName kDuree{u"Durée"};         ///< minutes
inline constexpr SqlName kTypeS1{u"TypeS1"};       ///< type of the A course
inline constexpr SqlName kTypeS3B{u"TypeS3B"};     ///< third type of the week-B course
inline constexpr SqlName kCommune{u"Commune"};     ///< whether the course is shared

// The A course; `examen` has no other.
inline constexpr SqlName kSalle{u"Salle"};
inline constexpr SqlName kYSalle{u"YSalle"};
inline constexpr SqlName kEnseignant1{u"Enseignant1"};
inline constexpr SqlName kEnseignant2{u"Enseignant2"};
inline constexpr SqlName kEnseignant3{u"Enseignant3"};
inline constexpr SqlName kMatiere{u"matière"};

// Its part that is held in a second room.
inline constexpr SqlName kXSalle{u"XSalle"};
inline constexpr SqlName kXEnseignant1{u"XEnseignant1"};
inline constexpr SqlName kXEnseignant2{u"XEnseignant2"};
inline constexpr SqlName kXEnseignant3{u"XEnseignant3"};
inline constexpr SqlName kXMatiere{u"XMatière"};

// The week-B course.
inline constexpr SqlName kSalleB{u"SalleB"};
inline constexpr SqlName kYSalleB{u"YSalleB"};
inline constexpr SqlName kEnseignant1b{u"Enseignant1b"};
inline constexpr SqlName kEnseignant2b{u"Enseignant2b"};
inline constexpr SqlName kEnseignant3b{u"Enseignant3b"};
inline constexpr SqlName kMatiereb{u"Matièreb"};

// Its part that is held in a second room.
inline constexpr SqlName kXSalleB{u"XSalleB"};
inline constexpr SqlName kXEnseignant1B{u"XEnseignant1B"};
inline constexpr SqlName kXEnseignant2B{u"XEnseignant2B"};
inline constexpr SqlName kXEnseignant3B{u"XEnseignant3B"};
inline constexpr SqlName kXMatiereB{u"XMatièreB"};

// Who watches an exam; `examen` only.
inline constexpr SqlName kResp1{u"Resp1"};
inline constexpr SqlName kResp2{u"Resp2"};
inline constexpr SqlName kResp3{u"Resp3"};

/// The columns in which `emplois` and `ratrap` name a room, in the order in which the plan asks.
inline constexpr std::array kRooms{kSalle, kXSalle, kYSalle, kSalleB, kXSalleB, kYSalleB};
/// The one in which `examen` does.
inline constexpr std::array kExamRooms{kSalle};

} // namespace column

/// What `newnature` holds. Its values are compared letter by letter, here and not by the database.
namespace nature
{
inline constexpr QStringView kEveryWeek = u"00";
inline constexpr QStringView kAlternating = u"10/20"; ///< week A and week B take turns
} // namespace nature

} // namespace timetable
