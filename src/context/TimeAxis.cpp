#include "context/TimeAxis.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

namespace context
{
namespace
{

int secondsOf(const QString& text)
{
    return runtime::during(QStringLiteral("Lecture de l’heure « %1 »").arg(text),
                           [&] { return runtime::secondsOfDay(text); });
}

} // namespace

int TimeAxis::TimeToX(const QString& text) const
{
    const int seconds = secondsOf(text);
    const int minutes = runtime::minutesBetween(secondsOf(originTime), seconds);
    return runtime::nearestInteger(originLeft + widthOf(minutes));
}

} // namespace context
