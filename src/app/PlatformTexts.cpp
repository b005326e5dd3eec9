#include "app/PlatformTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace app
{

bool loadFrenchTexts(QTranslator& translator)
{
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/translations");
    for (const QString& folder : {QLibraryInfo::path(QLibraryInfo::TranslationsPath), beside}) {
        if (translator.load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                            folder)) {
            return true;
        }
    }
    return false;
}

} // namespace app
