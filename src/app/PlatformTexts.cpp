#include "app/PlatformTexts.h"

#include <QLibraryInfo>
#include <QLocale>

namespace app
{

bool loadFrenchTexts(QTranslator& translator)
{
    return translator.load(QLocale(QLocale::French), QStringLiteral("qtbase"), QStringLiteral("_"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace app
