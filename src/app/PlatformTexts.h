#pragma once

#include <QTranslator>

namespace app
{

/// Loads the French texts of the platform's own dialogs (printing, files) into the translator.
/// False, with the dialogs in English, where they are not installed.
bool loadFrenchTexts(QTranslator& translator);

} // namespace app
