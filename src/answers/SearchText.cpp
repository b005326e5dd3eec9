#include "answers/SearchText.h"

#include <algorithm>

namespace answers
{
namespace
{

/// The apostrophes that word processors and keyboards write.
QChar plainApostrophe(QChar character)
{
    switch (character.unicode()) {
    case u'\u2018':
    case u'\u2019':
    case u'\u02bc':
        return u'\'';
    default:
        return character;
    }
}

} // namespace

QString searchForm(const QString& text)
{
    const auto isPlain = [](QChar character) { return character < QChar(0x80); };
    if (std::all_of(text.begin(), text.end(), isPlain)) { // as most names are
        return text.toCaseFolded();
    }
    QString form;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD)) {
        if (!character.isMark()) {
            form += plainApostrophe(character);
        }
    }
    form = form.toCaseFolded();
    return form.replace(u'œ', QStringLiteral("oe")).replace(u'æ', QStringLiteral("ae"));
}

} // namespace answers
