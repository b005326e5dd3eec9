#include "app/setup/SetupLine.h"

#include "shell/OptionReader.h"

namespace app
{
namespace
{

const std::vector<shell::OptionText>& optionTexts()
{
    static const std::vector<shell::OptionText> options = {
        {"settings", QStringLiteral("FICHIER.ini"),
         QStringLiteral("règle ce fichier au lieu des paramètres de l’utilisateur")},
        {"help", {}, QStringLiteral("affiche cette aide")},
        {"version", {}, QStringLiteral("affiche la version")},
    };
    return options;
}

} // namespace

SetupLine SetupLine::parse(const QStringList& arguments)
{
    const shell::OptionReader reader(arguments, optionTexts());
    return {reader.has("help"), reader.has("version"), reader.text("settings")};
}

QString SetupLine::helpText()
{
    return QStringLiteral("Usage : tempora-setup [options]\n"
                          "Demande où est l’emploi du temps, l’essaie, et règle Tempora en "
                          "conséquence.\n\n") +
           shell::optionTable(optionTexts());
}

} // namespace app
