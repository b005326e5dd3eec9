#include "setup/Recommendations.h"

#include <QFileInfo>

namespace setup
{

std::vector<Recommendation> recommendationsFor(const Findings& findings, const QString& styles)
{
    const QString yes = QStringLiteral("True");
    const QString no = QStringLiteral("False");
    std::vector<Recommendation> all{
        {QStringLiteral("Toutes_Salles"), yes, no, QStringLiteral("Montrer toutes les salles"),
         QStringLiteral("Aucune salle n’est laissée de côté d’une page à l’autre."), true},
        {QStringLiteral("Ouvrir_Aujourdhui"), yes, no, QStringLiteral("Ouvrir sur aujourd’hui"),
         QStringLiteral("Le plan s’ouvre sur le jour même, et non sur le lundi."), true},
        {QStringLiteral("Apostrophes"), yes, no,
         QStringLiteral("Accepter les apostrophes dans les noms"),
         findings.hasApostrophes
             ? QStringLiteral("Votre base a des noms comme « Salle d’informatique » : sans ce "
                              "réglage ils restent inconnus sur le plan.")
             : QStringLiteral("Un nom comme « Salle d’informatique » se lit alors comme les "
                              "autres."),
         true},
    };
    const QString palette = styles + QStringLiteral("/Pastel.mpl");
    if (QFileInfo::exists(palette)) {
        all.push_back({QStringLiteral("Palette"), palette, QString(),
                       QStringLiteral("Couleurs douces"),
                       QStringLiteral("La palette « Pastel » ; sans elle les couleurs sont tirées "
                                      "au hasard à chaque ouverture."),
                       true});
    }
    return all;
}

} // namespace setup
