#pragma once

#include "plan/PlanState.h"

#include <QString>
#include <QStringList>

namespace print
{

/// The parts that are not empty, with the separator between them.
[[nodiscard]] QString joined(const QStringList& parts,
                             const QString& separator = QStringLiteral(" · "));

/// What a plan says about itself, part by part: on a wall nobody sees which options were chosen.
/// The window's header, sheets and files compose what they show from these parts.
struct Heading {
    QString title;         ///< "Occupation des Salles du" and the date or the day
    QString establishment; ///< its name
    QString university;    ///< its name
    QString year;          ///< academic year; empty when it is not known
    QString day;           ///< weekday of the date; empty when the title names the day
    QString period;        ///< its name
    QString examWeek;      ///< as the list of exam weeks has it; empty in teaching mode
    QString dates;  ///< first and last day of period or exam week: "Du ... au ..."; empty when the
                    ///< first is not known
    QString choice; ///< week kind, zone, department, subject; empty when all is shown

    [[nodiscard]] QString universityAndYear() const { return joined({university, year}); }
    [[nodiscard]] QString periodAndWeek() const { return joined({period, examWeek}); }
};

[[nodiscard]] Heading headingOf(const plan::PlanState& state);

} // namespace print
