#include "files/AnswerJson.h"

#include "answers/ClashSentence.h"
#include "answers/HolderWords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <array>

namespace files
{
namespace
{

using Key = QLatin1String;
using timetable::HoldingId;
using timetable::Occupancy;

QString kindName(timetable::MeetingKind kind)
{
    constexpr std::array names{"course", "makeup", "exam"};
    return QLatin1String(names.at(static_cast<std::size_t>(kind)));
}

QString partName(timetable::Part part)
{
    constexpr std::array names{"A", "A2", "B", "B2"};
    return QLatin1String(names.at(static_cast<std::size_t>(part)));
}

QString weeksName(timetable::Week weeks)
{
    constexpr std::array names{"all", "A", "B"};
    return QLatin1String(names.at(static_cast<std::size_t>(weeks)));
}

template <typename Number>
QJsonValue orNull(const std::optional<Number>& number)
{
    return number ? QJsonValue(*number) : QJsonValue();
}

QJsonValue dateValue(QDate date)
{
    return date.isValid() ? QJsonValue(date.toString(Qt::ISODate)) : QJsonValue();
}

QJsonObject holderObject(const Occupancy& occupancy, HoldingId id)
{
    const timetable::Holder holder = occupancy.describe(occupancy.holding(id));
    QJsonArray classes;
    if (!holder.className.isEmpty()) {
        classes.append(holder.className);
    }
    const bool hasTime = holder.time.has_value();
    return {{Key("kind"), kindName(holder.kind)},
            {Key("part"), partName(holder.part)},
            {Key("rooms"), QJsonArray::fromStringList(holder.rooms)},
            {Key("classes"), classes},
            {Key("teachers"), QJsonArray::fromStringList(holder.teachers)},
            {Key("subject"), holder.subject},
            {Key("day"), holder.day},
            {Key("slot"), holder.slot > 0 ? QJsonValue(holder.slot) : QJsonValue()},
            {Key("start"), hasTime ? QJsonValue(holder.time->start.value) : QJsonValue()},
            {Key("minutes"), hasTime ? QJsonValue(holder.time->length.value) : QJsonValue()},
            {Key("weeks"), weeksName(holder.weeks)},
            {Key("date"),
             holder.date.isValid() ? QJsonValue(holder.date.toString(Qt::ISODate)) : QJsonValue()}};
}

QJsonArray holderArray(const Occupancy& occupancy, const std::vector<HoldingId>& ids)
{
    QJsonArray holders;
    for (const HoldingId id : ids) {
        holders.append(holderObject(occupancy, id));
    }
    return holders;
}

QJsonObject freeRoomsObject(const Occupancy& occupancy, const answers::FreeRooms& answer)
{
    QJsonArray rooms;
    for (const answers::FreeRoom& free : answer.rooms) {
        const timetable::Room& room = occupancy.timetable().room(free.room);
        rooms.append(QJsonObject{{Key("room"), room.name},
                                 {Key("places"), room.places},
                                 {Key("zone"), orNull(room.zone)},
                                 {Key("department"), orNull(room.department)},
                                 {Key("free_from"), free.stretch.start.value},
                                 {Key("free_to"), free.stretch.end().value}});
    }
    QJsonArray taken;
    for (const answers::HeldRoom& held : answer.taken) {
        taken.append(QJsonObject{{Key("room"), occupancy.timetable().room(held.room).name},
                                 {Key("by"), holderArray(occupancy, held.by)}});
    }
    QJsonArray unknown;
    for (const answers::HeldRoom& held : answer.unknown) {
        unknown.append(QJsonObject{{Key("room"), occupancy.timetable().room(held.room).name},
                                   {Key("why"), answers::whyUnknown(occupancy, held.by)}});
    }
    return {{Key("rooms"), rooms}, {Key("taken"), taken}, {Key("unknown"), unknown}};
}

QJsonObject weekObject(const Occupancy& occupancy, const WeekAnswer& week)
{
    return {{Key("items"), holderArray(occupancy, week.items)}};
}

QJsonObject hitsObject(const Occupancy& occupancy, const HitList& hits)
{
    constexpr std::array kinds{"room", "teacher", "class", "subject"};
    QJsonArray array;
    for (const answers::Hit& hit : hits) {
        array.append(QJsonObject{{Key("what"), QLatin1String(kinds.at(hit.subject.index()))},
                                 {Key("name"), hit.name},
                                 {Key("items"), holderArray(occupancy, hit.items)}});
    }
    return {{Key("hits"), array}};
}

QJsonObject clashesObject(const Occupancy& occupancy, const ClashList& clashes)
{
    constexpr std::array kinds{"room",         "teacher",      "class",
                               "overfull",     "makeup-room",  "makeup-teacher",
                               "makeup-class", "unknown-room", "no-time"};
    QJsonArray array;
    for (const answers::Clash& clash : clashes) {
        array.append(QJsonObject{
            {Key("kind"), QLatin1String(kinds.at(static_cast<std::size_t>(clash.kind)))},
            {Key("name"), clash.name},
            {Key("day"), clash.day == timetable::kNoDay ? QJsonValue() : QJsonValue(clash.day)},
            {Key("date"), dateValue(clash.date)},
            {Key("weeks"), weeksName(clash.weeks)},
            {Key("holders"), holderArray(occupancy, clash.holders)},
            {Key("sentence"), answers::clashSentence(occupancy, clash)}});
    }
    return {{Key("clashes"), array}};
}

/// Shares of seats that cannot be known are null.
QJsonObject roomUseObject(const Occupancy& occupancy, const answers::RoomUse& use)
{
    const auto seats = [&use](double share) {
        return use.areSeatsKnown ? QJsonValue(share) : QJsonValue();
    };
    QJsonArray rooms;
    for (const answers::UseOfRoom& room : use.rooms) {
        rooms.append(QJsonObject{{Key("room"), occupancy.timetable().room(room.room).name},
                                 {Key("places"), room.places},
                                 {Key("slots"), room.slots},
                                 {Key("held"), room.held},
                                 {Key("share"), room.share},
                                 {Key("seats_share"), seats(room.seatsShare)}});
    }
    QJsonArray slots;
    for (const answers::UseOfSlot& slot : use.slots) {
        slots.append(QJsonObject{{Key("day"), slot.day},
                                 {Key("slot"), slot.slot},
                                 {Key("rooms"), slot.rooms},
                                 {Key("held"), slot.held},
                                 {Key("share"), slot.share}});
    }
    return {{Key("rooms"), rooms},
            {Key("slots"), slots},
            {Key("share"), use.share},
            {Key("seats_share"), seats(use.seatsShare)}};
}

/// An answer of any kind.
struct ObjectOf {
    const Occupancy& occupancy;

    QJsonObject operator()(const answers::FreeRooms& free) const
    {
        return freeRoomsObject(occupancy, free);
    }
    QJsonObject operator()(const WeekAnswer& week) const { return weekObject(occupancy, week); }
    QJsonObject operator()(const HitList& hits) const { return hitsObject(occupancy, hits); }
    QJsonObject operator()(const ClashList& clashes) const
    {
        return clashesObject(occupancy, clashes);
    }
    QJsonObject operator()(const answers::RoomUse& use) const
    {
        return roomUseObject(occupancy, use);
    }
};

} // namespace

QByteArray answerAsJson(const AnswerDocument& document)
{
    const QJsonObject object = std::visit(ObjectOf{*document.occupancy}, document.answer);
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

} // namespace files
