#include "setup/Recommendations.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <QFileInfo>
#include <optional>

namespace setup
{
namespace
{

std::optional<bool> truthOf(const QString& value)
{
    std::optional<bool> truth;
    runtime::skipOnError([&] { truth = runtime::toBoolean(value); });
    return truth;
}

void followWhatIsSet(Recommendation& one, const shell::Settings& settings)
{
    const QString set = settings.get(one.key, QString());
    if (!set.isEmpty() && !meanTheSame(set, one.value)) {
        one.isProposed = false;
        one.refused = set;
    }
}

QString paletteSentence(bool hasAnother)
{
    return hasAnother ? QStringLiteral("La palette « Pastel » ; sans elle la vôtre reste.")
                      : QStringLiteral("La palette « Pastel » ; sans elle les couleurs sont tirées "
                                       "au hasard à chaque ouverture.");
}

} // namespace

bool meanTheSame(const QString& one, const QString& other)
{
    const std::optional<bool> truth = truthOf(one);
    return one == other || (truth && truth == truthOf(other));
}

std::vector<Recommendation> recommendationsFor(const Findings& findings, const QString& styles,
                                               const shell::Settings& settings)
{
    const QString yes = QStringLiteral("True");
    const QString no = QStringLiteral("False");
    std::vector<Recommendation> all{
        {QStringLiteral("Toutes_Salles"), yes, no, QStringLiteral("Montrer toutes les salles"),
         QStringLiteral("Aucune salle n’est laissée de côté d’une page à l’autre."), true},
        {QStringLiteral("Ouvrir_Aujourdhui"), yes, no, QStringLiteral("Ouvrir sur aujourd’hui"),
         QStringLiteral("Le plan s’ouvre sur le jour même, et non sur le lundi."), true},
    };
    const bool isAccepted =
        truthOf(settings.get(QStringLiteral("Apostrophes"), no)).value_or(false);
    if (findings.hasApostrophes || isAccepted) {
        all.push_back(
            {QStringLiteral("Apostrophes"), yes, no,
             QStringLiteral("Accepter les apostrophes dans les noms"),
             findings.hasApostrophes
                 ? QStringLiteral("Votre base a des noms comme « Salle d’informatique » : "
                                  "sans ce réglage ils restent inconnus sur le plan.")
                 : QStringLiteral("Un nom comme « Salle d’informatique » se lit alors "
                                  "comme les autres."),
             true});
    }
    const QString palette = styles + QStringLiteral("/Pastel.mpl");
    if (QFileInfo::exists(palette)) {
        all.push_back({QStringLiteral("Palette"), palette, QString(),
                       QStringLiteral("Couleurs douces"), QString(), true});
    }
    for (Recommendation& one : all) {
        followWhatIsSet(one, settings);
    }
    if (all.back().key == QStringLiteral("Palette")) {
        all.back().sentence = paletteSentence(!all.back().isProposed);
    }
    return all;
}

} // namespace setup
