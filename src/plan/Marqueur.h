#pragma once

#include <QDate>
#include <QString>
#include <cstdint>

namespace plan
{

/// The séance behind one box's markers, copied from the room cell when the box is drawn. An
/// absence recorded from the box is about exactly this séance.
struct Marqueur {
    QString Classes; ///< class names joined by tabs
    QString Seance;
    std::int16_t Tranche = 0;
    QString Matiere;
    QString Salle;
    QString Enseignant1;
    std::int16_t TypeS1 = 0;
    std::int16_t TypeS3B = 0;
    std::int16_t Duree = 0; ///< minutes
    bool Commune = false;
    QString Debut; ///< start time as stored
    QDate Jour;    ///< date that the picker showed at drawing time
    std::int16_t Choix = 1;
    QString newnature;
    // The last toggle's outcome. A refresh does not touch them: it shows the state by the picture.
    bool AbsClasse = false;
    bool AbsEtud = false;
};

/// The tooltip of `YAbs` over a box whose student absence is recorded.
[[nodiscard]] QString studentAbsentToolTip(const Marqueur& marker);

} // namespace plan
