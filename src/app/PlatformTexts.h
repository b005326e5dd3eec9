#pragma once

#include <QTranslator>

namespace app
{

/// Loads the French texts of the platform's own dialogs (printing, files) into the translator:
/// those of the toolkit's installation, or of the folder `translations` beside a program that
/// brings its toolkit along. False, with the dialogs in English, where there are none. Requires:
/// the application object exists.
bool loadFrenchTexts(QTranslator& translator);

} // namespace app
