#include "timetable/ReadTimes.h"

#include "db/Value.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

namespace timetable
{
namespace
{

constexpr int kSecondsPerMinute = 60;

/// What `read` makes of the text; nothing where it fails.
template <typename Read>
auto unlessItFails(QStringView text, Read read) -> std::optional<decltype(read(QString()))>
{
    std::optional<decltype(read(QString()))> value;
    if (!text.isNull()) {
        runtime::skipOnError([&] { value = read(text.toString()); });
    }
    return value;
}

} // namespace

std::optional<MinuteOfDay> readTime(QStringView text)
{
    return unlessItFails(text, [](const QString& time) {
        return MinuteOfDay{runtime::secondsOfDay(time) / kSecondsPerMinute};
    });
}

std::optional<Minutes> readLength(QStringView text)
{
    const auto length = unlessItFails(text, [](const QString& minutes) {
        return Minutes{runtime::nearestInt16(runtime::leadingNumber(minutes))};
    });
    return length && length->value > 0 ? length : std::nullopt;
}

std::optional<QDate> readDate(QStringView text)
{
    return unlessItFails(text, [](const QString& date) { return db::Value(date).toDate(); });
}

std::optional<int> readNumber(QStringView text)
{
    return unlessItFails(text, [](const QString& number) { return runtime::toInt32(number); });
}

} // namespace timetable
