#include "context/TimeSlots.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

#include <algorithm>

namespace context
{
namespace
{

// Twips between the slot labels and the window's inner bottom when the slots are read.
constexpr int kLoadMargin = 450;

/// Start and end of a slot are written with a lower-case "h", 8h30; one in upper case does as well.
int TimeTextToTime(QString text)
{
    return runtime::during(
        QStringLiteral("Lecture de l’horaire « %1 » d’une séance").arg(text), [&] {
            return runtime::secondsOfDay(runtime::normaliseTimeText(text.replace(u'h', u':')));
        });
}

void refuseTooMany(qsizetype rooms)
{
    if (rooms > TimeSlots::kMaxRooms) {
        runtime::RunTimeError error(runtime::ErrorNumber::SubscriptOutOfRange);
        error.addActivity(QStringLiteral("Lecture des places de %1 salles (%2 au plus)")
                              .arg(rooms)
                              .arg(TimeSlots::kMaxRooms));
        throw error;
    }
}

std::int16_t placesOf(const db::Row& room)
{
    const db::Value places = room.field(QStringLiteral("places"));
    if (places.isNull()) {
        return 0;
    }
    return runtime::during(
        QStringLiteral("Lecture des places de la salle « %1 » (valeur « %2 »)")
            .arg(room.field(QStringLiteral("Nom")).toJoinedText(), places.toJoinedText()),
        [&] { return places.toInt16(); });
}

} // namespace

TimeSlots::TimeSlots(form::PlanForm& form, db::Database& database)
    : m_form(form), m_database(database)
{
}

TimeAxis TimeSlots::axis() const
{
    const form::Label& origin = m_form.Label1.front();
    return {origin.caption, origin.place.left, TimeAxis::kScreenSlotWidth};
}

void TimeSlots::placeTicks()
{
    const TimeAxis screen = axis();
    for (std::size_t tick = 1; tick < m_form.Label1.size(); ++tick) {
        form::Label& label = m_form.Label1.at(tick);
        label.place.left = screen.TimeToX(label.caption);
    }
}

void TimeSlots::placeTotals(int margin)
{
    for (form::Label& total : m_form.Tot) {
        total.place.top = m_form.scaleHeight - total.place.height - margin;
    }
}

void TimeSlots::LoadSlots()
{
    placeTicks();
    m_SlotCount = 0;
    placeTotals(kLoadMargin);
    for (int index = 0; index < form::PlanForm::kSlotLabels; ++index) {
        loadSlot(index);
    }
    loadRoomPlaces();
}

void TimeSlots::loadSlot(int index)
{
    const QString key = QStringLiteral("Lundi") + QString::number(index + 1);
    const auto position = static_cast<std::size_t>(index);
    form::Label& total = m_form.Tot.at(position);
    total.visible = false; // the refresh shows it when it writes counts
    std::optional<Slot>& slot = m_slots.at(position);
    slot = runtime::during(
        QStringLiteral("Lecture de l’horaire de la séance « %1 » (table « seances »)").arg(key),
        [&] { return readSlot(key); });
    if (!slot) {
        total.caption.clear();
        return;
    }
    total.place.left = TimeToX(slot->start);
    total.place.width = runtime::nearestInteger(axis().widthOf(slot->minutes));
    ++m_SlotCount;
}

std::optional<Slot> TimeSlots::readSlot(const QString& key)
{
    const db::Recordset found =
        m_database.Db().open(QStringLiteral("select * from seances  where Seance='%1'").arg(key));
    if (found.isEmpty()) {
        return std::nullopt;
    }
    const QString start = found.first().field(QStringLiteral("Horaire1")).toText();
    const QString end = found.first().field(QStringLiteral("Horaire2")).toText();
    Slot slot{start, TimeTextToTime(start), 0};
    slot.minutes = runtime::minutesBetween(slot.startSeconds, TimeTextToTime(end));
    return slot;
}

void TimeSlots::loadRoomPlaces()
{
    const QString zone = m_form.cb_Locaux.text();
    const QString sql =
        zone != u"0" ? QStringLiteral("select * from salle where Zone=%1  order by Nom ").arg(zone)
                     : QStringLiteral("select * from salle order by Nom ");
    runtime::during(
        QStringLiteral("Lecture des places des salles (table « salle », zone %1)").arg(zone), [&] {
            const db::Recordset rooms = m_database.Db().open(sql);
            refuseTooMany(rooms.recordCount());
            std::transform(rooms.rows().begin(), rooms.rows().end(), m_RoomPlaces.begin(),
                           placesOf);
        });
}

const std::optional<Slot>& TimeSlots::slot(int number) const
{
    return m_slots.at(static_cast<std::size_t>(number - 1));
}

int TimeSlots::axisEnd() const
{
    int end = m_form.Label1.back().place.left;
    for (std::size_t index = 0; index < m_slots.size(); ++index) {
        if (m_slots.at(index)) {
            const form::Place& place = m_form.Tot.at(index).place;
            end = std::max(end, place.left + place.width);
        }
    }
    return end;
}

std::int16_t TimeSlots::RoomPlaces(int index) const
{
    if (index < 0 || index >= kMaxRooms) {
        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
    }
    return m_RoomPlaces.at(static_cast<std::size_t>(index));
}

bool TimeSlots::OverrunsIntoSlot(int slot, int minutes) const
{
    const std::optional<Slot>& before = this->slot(slot - 1);
    const std::optional<Slot>& reached = this->slot(slot);
    if (!before || !reached) {
        return false;
    }
    return minutes > runtime::minutesBetween(before->startSeconds, reached->startSeconds);
}

} // namespace context
