#pragma once

#include <QString>

namespace app
{

/// The letters that reach the window's controls together with Alt, all in one list, so that none is
/// given twice.
///
/// There are more controls than letters in their captions: what has another key (Imprimer: Ctrl+P)
/// goes without, and so do Responsable, Changer de Palette, Aperçu de toutes les pages and Police,
/// to which F6 and Tab lead. Three letters are those of a French keyboard, which has a key for
/// each: é, è, ç.

/// The caption with a `&` before the letter of the control of that object name; as it is where the
/// control has none, or the caption lacks it. A `&` of the caption's own is doubled.
[[nodiscard]] QString withMnemonic(const QString& caption, const QString& control);

} // namespace app
