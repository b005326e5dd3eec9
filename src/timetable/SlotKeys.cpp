#include "timetable/SlotKeys.h"

#include "runtime/FrenchDate.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

namespace timetable
{
namespace
{

/// The plan's list of days ends with Saturday; a timetable may have a Sunday all the same.
QString dayName(int day)
{
    return day == kSunday ? QStringLiteral("Dimanche")
                          : runtime::frenchDayNames().at(static_cast<std::size_t>(day));
}

QString digitsOf(const QString& key)
{
    QString digits;
    for (const QChar character : key) {
        if (character >= u'0' && character <= u'9') {
            digits += character;
        }
    }
    return digits;
}

int numberIfAny(const QString& key)
{
    int number = 0; // a number that is too large names no slot
    runtime::skipOnError([&] { number = runtime::nearestInt16(slotNumber(key)); });
    return number;
}

} // namespace

double slotNumber(const QString& key)
{
    return runtime::leadingNumber(digitsOf(key));
}

SlotKeys::SlotKeys(const TextPool& texts)
{
    TextPool numbers;
    for (const QString& text : texts.texts()) {
        numbers.add(digitsOf(text));
    }
    for (const QString& number : numbers.texts()) {
        for (int day = kMonday; day < kDaysOfWeek; ++day) {
            m_texts.push_back(dayName(day) + number);
            m_meanings.push_back({day, numberIfAny(number)});
        }
    }
}

} // namespace timetable
