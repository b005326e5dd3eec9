#pragma once

#include "context/Establishment.h"
#include "form/PlanForm.h"

#include <QString>
#include <QStringList>

namespace print
{

/// What a plan that leaves the window says about itself: on a wall nobody sees which options were
/// chosen.
struct Heading {
    QString title;         ///< "Occupation des Salles du" and the date or the day
    QString establishment; ///< its name, as in `Label4`(4)
    QString university;    ///< university and academic year
    QString day;           ///< weekday of the date; empty when the title names the day
    QString period;        ///< period and, in exam mode, the exam week
    QString dates;         ///< first and last day of the period: "Du ... au ..."
    QString choice;        ///< week kind, zone, department, subject; empty when all is shown
};

/// The parts that are not empty, with dots between them.
[[nodiscard]] QString joined(const QStringList& parts);

[[nodiscard]] Heading headingOf(const form::PlanForm& form,
                                const context::EstablishmentHeader& establishment);

} // namespace print
