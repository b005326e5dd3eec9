#include "shell/DatabaseChoice.h"

#include "runtime/RunTimeError.h"

namespace shell
{

QString DatabaseChoice::nameInMessages() const
{
    return BaseName.section(u';', 0, 0).trimmed();
}

DatabaseChoice chooseDatabase(const Settings& settings, bool useMySql,
                              const db::ConfigurationFolders& folders)
{
    DatabaseChoice choice;
    if (useMySql) {
        choice.BaseName = settings.get(QStringLiteral("Base_Sql"), QStringLiteral("SaKalo"));
        choice.DbPath = choice.BaseName;
    } else {
        choice.BaseName = settings.get(QStringLiteral("Base"), QStringLiteral("MonKalo"));
        choice.DbPath = settings.get(QStringLiteral("Path"),
                                     folders.application + QStringLiteral("\\Kalo.mdb"));
    }
    choice.strings = runtime::during(
        QStringLiteral("Préparation de la connexion à la base « %1 »").arg(choice.nameInMessages()),
        [&] { return db::BuildConnectString(choice.BaseName, useMySql, folders); });
    return choice;
}

} // namespace shell
