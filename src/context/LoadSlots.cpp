#include "context/LoadSlots.h"

#include "context/AxisLabels.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"
#include "timetable/SchoolColumns.h"

#include <optional>

namespace context
{
namespace
{

// Twips between the slot labels and the window's inner bottom when the slots are read.
constexpr int kLoadMargin = 450;

/// Start and end of a slot are written with a lower-case "h", 8h30; one in upper case does as well.
int TimeTextToTime(const QString& text)
{
    return runtime::during(QStringLiteral("Lecture de l’horaire « %1 » d’une séance").arg(text),
                           [&] { return runtime::secondsOfDay(text); });
}

std::optional<Slot> slotIn(const db::Recordset& found)
{
    if (found.isEmpty()) {
        return std::nullopt;
    }
    const QString start = found.first().field(timetable::column::kHoraire1).toText();
    const QString end = found.first().field(timetable::column::kHoraire2).toText();
    Slot slot{start, TimeTextToTime(start), 0};
    slot.minutes = runtime::minutesBetween(slot.startSeconds, TimeTextToTime(end));
    return slot;
}

void placeTotal(const form::PlanForm& form, form::Label& total, const std::optional<Slot>& slot)
{
    total.visible = false; // the refresh shows it when it writes counts
    if (!slot) {
        total.caption.clear();
        return;
    }
    const TimeAxis axis = screenAxis(form);
    total.place.left = axis.TimeToX(slot->start);
    total.place.width = runtime::nearestInteger(axis.widthOf(slot->minutes));
}

QStringList mondayKeys()
{
    QStringList keys;
    for (int number = 1; number <= DaySlots::kSlots; ++number) {
        keys << QStringLiteral("Lundi") + QString::number(number);
    }
    return keys;
}

/// What is read about one slot, for a message.
QString readingOf(const QString& key)
{
    return QStringLiteral("Lecture de l’horaire de la séance « %1 » (table « seances »)").arg(key);
}

} // namespace

void LoadSlots(form::PlanForm& form, StartReads& reads, DaySlots& slots, RoomPlaces& places)
{
    placeTicks(form);
    placeTotals(form, kLoadMargin);
    const QStringList keys = mondayKeys();
    const std::vector<db::Recordset> found =
        runtime::during(readingOf(keys.first()), [&] { return reads.slotsWithKeys(keys); });
    for (int number = 1; number <= DaySlots::kSlots; ++number) {
        const auto position = static_cast<std::size_t>(number - 1);
        runtime::during(readingOf(keys[number - 1]), [&] {
            slots.set(number, slotIn(found[position]));
            placeTotal(form, form.Tot.at(position), slots.slot(number));
        });
    }
    const QString zone = form.cb_Locaux.text();
    runtime::during(
        QStringLiteral("Lecture des places des salles (table « salle », zone %1)").arg(zone),
        [&] { places.read(reads.roomsByName(zone)); });
}

} // namespace context
