#include "answers/SearchText.h"

namespace answers
{

QString searchForm(const QString& text)
{
    QString form;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD)) {
        if (!character.isMark()) {
            form += character;
        }
    }
    form = form.toCaseFolded();
    return form.replace(u'œ', QStringLiteral("oe")).replace(u'æ', QStringLiteral("ae"));
}

} // namespace answers
