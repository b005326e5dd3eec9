#pragma once

#include "timetable/SqlName.h"

/// The two tables of absences and their columns: the one place that spells them. Identifiers are
/// the names themselves without their accents.
namespace absences
{

namespace table
{
inline constexpr timetable::SqlName kAbscence{u"abscence"}; ///< classes that were absent
inline constexpr timetable::SqlName kEtudAbs{u"etud_abs"};  ///< students that were
} // namespace table

namespace column
{

// Of both tables.
inline constexpr timetable::SqlName kClasse{u"Classe"};
inline constexpr timetable::SqlName kSeance{u"Seance"};
inline constexpr timetable::SqlName kTranche{u"Tranche"};
inline constexpr timetable::SqlName kMatiere{u"matière"};

// Of `abscence`.
inline constexpr timetable::SqlName kDatex{u"Datex"}; ///< day of the séance
inline constexpr timetable::SqlName kDebut{u"Debut"}; ///< its start, for example 8h30
inline constexpr timetable::SqlName kDuree{u"Durée"}; ///< minutes
inline constexpr timetable::SqlName kSalle{u"Salle"};
inline constexpr timetable::SqlName kEnseignant1{u"Enseignant1"};
inline constexpr timetable::SqlName kNewNature{u"newnature"};
inline constexpr timetable::SqlName kTypeS1{u"TypeS1"};
inline constexpr timetable::SqlName kTypeS2{u"TypeS2"};
inline constexpr timetable::SqlName kTypeS3{u"TypeS3"};
inline constexpr timetable::SqlName kTypeS1B{u"TypeS1B"};
inline constexpr timetable::SqlName kTypeS2B{u"TypeS2B"};
inline constexpr timetable::SqlName kTypeS3B{u"TypeS3B"};
inline constexpr timetable::SqlName kCommune{u"Commune"};
inline constexpr timetable::SqlName kChoix{u"Choix"};

// Of `etud_abs`.
inline constexpr timetable::SqlName kNom{u"Nom"};
inline constexpr timetable::SqlName kJour{u"Jour"};     ///< day of the séance
inline constexpr timetable::SqlName kHeureD{u"HeureD"}; ///< its start, for example 8h30
inline constexpr timetable::SqlName kHeureF{u"HeureF"}; ///< its end, for example 10:00
inline constexpr timetable::SqlName kIdent{u"Ident"};   ///< the beginning of the name

} // namespace column

} // namespace absences
