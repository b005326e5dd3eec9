// Texts that become numbers, times of day and dates.
#include "runtime/Numbers.h"

#include "db/DialectDate.h"
#include "db/SqlDialect.h"
#include "db/Value.h"
#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "plan/BoxWords.h"
#include "runtime/FrenchDate.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"
#include "timetable/ReadTimes.h"
#include "timetable/SlotKeys.h"

#include <cmath>
#include <optional>

using fuzz::require;

namespace
{

/// What `read` returns; nothing where it raises a run-time error.
template <typename Read>
auto unlessRefused(Read read) -> std::optional<decltype(read())>
{
    std::optional<decltype(read())> value;
    runtime::skipOnError([&] { value = read(); });
    return value;
}

void checkNumbers(const QString& text)
{
    const QString trimmed = runtime::trimBlanks(text);
    require(runtime::trimBlanks(trimmed) == trimmed, "there is nothing left to trim", text);
    require(!std::isnan(runtime::leadingNumber(text)), "a text begins with a number", text);
    const auto number = unlessRefused([&] { return runtime::toNumber(text); });
    const auto wide = unlessRefused([&] { return runtime::toInt32(text); });
    const auto narrow = unlessRefused([&] { return runtime::toInt16(text); });
    require(!number || std::isfinite(*number), "a number is finite", text);
    require(!wide || (number && std::abs(*number - *wide) <= 0.5), "an integer is near", text);
    require(!narrow || wide == *narrow, "16 bits and 32 agree", text);
    require(!wide || runtime::toInt32(QString::number(*wide)) == *wide, "an integer is read again",
            text);
    require(!wide || narrow || *wide > INT16_MAX || *wide < INT16_MIN,
            "what 16 bits hold is read in 16 bits", text);
    const auto boolean = unlessRefused([&] { return runtime::toBoolean(text); });
    require(!number || boolean == (*number != 0.0), "only 0 is false", text);
}

/// A field of text means what the text means.
void checkValue(const QString& text)
{
    const db::Value value(text);
    require(value.toText() == text && value.toJoinedText() == text, "a text is a text", text);
    require(unlessRefused([&] { return value.toInt32(); }) ==
                unlessRefused([&] { return runtime::toInt32(text); }),
            "a field's number is its text's", text);
    const auto date = unlessRefused([&] { return value.toDate(); });
    require(!date || (date->isValid() && db::Value(date->toString(Qt::ISODate)).toDate() == *date),
            "a date is read again", text);
    const auto length = timetable::readLength(text);
    require(!length || length->value > 0, "a meeting lasts", text);
    require(timetable::slotNumber(text) >= 0.0, "slots count from 0", text);
}

void checkTimes(const QString& text, int minutes)
{
    const QString normalised = runtime::normaliseTimeText(text);
    const auto seconds = unlessRefused([&] { return runtime::secondsOfDay(normalised); });
    const auto minute = timetable::readTime(text);
    require(minute.has_value() == (seconds.has_value() && !text.isNull()),
            "a time is read in one way", text);
    if (!seconds) {
        require(plan::stretchWords(text, QStringLiteral(" à "), minutes) == text,
                "what is no time stands alone", text);
        return;
    }
    constexpr int perMinute = 60;
    require(*seconds >= 0 && *seconds < runtime::kMinutesOfDay * perMinute, "a day has 24 hours",
            text);
    const QString written = QStringLiteral("%1h%2:%3")
                                .arg(*seconds / (perMinute * perMinute))
                                .arg(*seconds / perMinute % perMinute)
                                .arg(*seconds % perMinute);
    require(runtime::secondsOfDay(written) == *seconds, "a time is read again", text, written);
    require(runtime::endMinute(text, minutes) - *seconds / perMinute == minutes,
            "it ends when it is over", text);
    static_cast<void>(plan::stretchWords(text, QStringLiteral(" à "), minutes));
}

void checkDates(const QString& text)
{
    const QDate shown(2026, 11, 24);
    const QDate typed = runtime::fromTypedDate(text, shown);
    if (typed.isValid()) {
        const QString written = typed.toString(QStringLiteral("dd/MM/yyyy"));
        require(runtime::fromTypedDate(written, QDate()) == typed, "a typed date is read again",
                text, written);
        require(!runtime::frenchLongDate(typed).isEmpty() &&
                    runtime::frenchDayAndDate(typed).endsWith(written),
                "a date is written", text);
    }
    for (const int firstYear : {db::kSqliteFirstYear, db::kAccessFirstYear}) {
        const auto date = db::dialectDate(text, firstYear);
        if (!date) {
            continue;
        }
        constexpr int century = 100;
        const bool inTwoDigits = date->year() >= firstYear && date->year() < firstYear + century;
        require(db::dialectDate(db::SqlDialect(true).dateText(*date), firstYear) == date,
                "a server's date is read again", text);
        require(!inTwoDigits ||
                    db::dialectDate(db::SqlDialect(false).dateText(*date), firstYear) == date,
                "a date of Access is read again", text);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Input input(data, size);
    const QString text = input.text();
    checkNumbers(text);
    checkValue(text);
    checkTimes(text, input.number(INT16_MIN, INT16_MAX));
    checkDates(text);
    return 0;
}
