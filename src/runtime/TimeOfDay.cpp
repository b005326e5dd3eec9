#include "runtime/TimeOfDay.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <QRegularExpression>

namespace runtime
{

QString normaliseTimeText(const QString& text)
{
    QString normalised = text.toUpper();
    return normalised.replace(u'H', u':');
}

int secondsOfDay(const QString& text)
{
    static const QRegularExpression form(
        QStringLiteral("^([0-9]{1,2}) *: *(?:([0-9]{1,2})(?: *: *([0-9]{1,2}))?)?\\z"));
    const QRegularExpressionMatch match = form.match(trimBlanks(normaliseTimeText(text)));
    const int hours = match.captured(1).toInt();
    const int minutes = match.captured(2).toInt();
    const int seconds = match.captured(3).toInt();
    if (!match.hasMatch() || hours > 23 || minutes > 59 || seconds > 59) {
        throw RunTimeError(ErrorNumber::TypeMismatch);
    }
    return (hours * 60 + minutes) * 60 + seconds;
}

int minutesBetween(int fromSeconds, int toSeconds)
{
    return toSeconds / 60 - fromSeconds / 60;
}

int endMinute(const QString& start, int minutes)
{
    return secondsOfDay(start) / 60 + minutes;
}

} // namespace runtime
