#include "files/AnswerJson.h"

#include "answers/ClashSentence.h"
#include "answers/HolderWords.h"
#include "files/JsonWriter.h"

#include <array>
#include <utility>

namespace files
{
namespace
{

using timetable::HoldingId;

// The names of values, in the order of the types.
constexpr std::array kKinds{u"course", u"makeup", u"exam"};
constexpr std::array kParts{u"A", u"A2", u"B", u"B2"};
constexpr std::array kWeeks{u"all", u"A", u"B"};
constexpr std::array kSubjects{u"room", u"teacher", u"class", u"subject"};
constexpr std::array kClashes{u"room",         u"teacher",      u"class",
                              u"overfull",     u"makeup-room",  u"makeup-teacher",
                              u"makeup-class", u"unknown-room", u"no-time"};

template <typename Names, typename Enumerator>
QStringView nameOf(const Names& names, Enumerator value)
{
    return names.at(static_cast<std::size_t>(value));
}

/// Writes answers of all kinds. Keys stand in the order of their characters.
class Writing
{
public:
    explicit Writing(const timetable::Occupancy& occupancy)
        : m_occupancy(occupancy), m_written(occupancy.holdings().size())
    {
    }

    void operator()(const answers::FreeRooms& answer);
    void operator()(const WeekAnswer& week) { holders("items", week.items); }
    void operator()(const HitList& hits);
    void operator()(const ClashList& clashes);
    void operator()(const answers::RoomUse& use);

    [[nodiscard]] JsonWriter& json() { return m_json; }

private:
    void text(const char* key, QStringView text)
    {
        m_json.key(key);
        m_json.text(text);
    }
    void optionalText(const char* key, const std::optional<QString>& value);
    void texts(const char* key, const QStringList& texts);
    template <typename Number>
    void number(const char* key, Number value)
    {
        m_json.key(key);
        m_json.number(value);
    }
    template <typename Number>
    void optional(const char* key, const std::optional<Number>& value)
    {
        m_json.key(key);
        m_json.orNull(value);
    }
    void date(const char* key, QDate date);
    void day(int day)
    {
        optional("day", day == timetable::kNoDay ? std::nullopt : std::optional(day));
    }
    void roomName(timetable::RoomId room) { text("room", m_occupancy.timetable().room(room).name); }
    void holder(const timetable::Holding& holding);
    void holdersOf(const answers::Clash& clash);
    void holders(const char* key, const std::vector<HoldingId>& ids);

    const timetable::Occupancy& m_occupancy;
    JsonWriter m_json;
    /// Where a holding was written, from and to: in a list of hits it stands with its room, its
    /// teachers, its class and its subject. All holdings of an answer are equally deep.
    std::vector<std::pair<qsizetype, qsizetype>> m_written;
};

void Writing::optionalText(const char* key, const std::optional<QString>& value)
{
    m_json.key(key);
    value ? m_json.text(*value) : m_json.null();
}

void Writing::texts(const char* key, const QStringList& texts)
{
    m_json.key(key);
    m_json.beginArray();
    for (const QString& each : texts) {
        m_json.text(each);
    }
    m_json.endArray();
}

void Writing::date(const char* key, QDate date)
{
    optionalText(key, date.isValid() ? std::optional(date.toString(Qt::ISODate)) : std::nullopt);
}

void Writing::holder(const timetable::Holding& holding)
{
    const timetable::Holder holder = m_occupancy.describe(holding);
    m_json.beginObject();
    texts("classes", holder.className.isEmpty() ? QStringList() : QStringList(holder.className));
    date("date", holder.date);
    day(holder.day);
    text("kind", nameOf(kKinds, holder.kind));
    optional("minutes", holder.time ? std::optional(holder.time->length.value) : std::nullopt);
    text("part", nameOf(kParts, holder.part));
    texts("rooms", holder.rooms);
    optional("slot", holder.slot > 0 ? std::optional(holder.slot) : std::nullopt);
    optional("start", holder.time ? std::optional(holder.time->start.value) : std::nullopt);
    text("subject", holder.subject);
    texts("teachers", holder.teachers);
    text("weeks", nameOf(kWeeks, holder.weeks));
    m_json.endObject();
}

void Writing::holders(const char* key, const std::vector<HoldingId>& ids)
{
    m_json.key(key);
    m_json.beginArray();
    for (const HoldingId id : ids) {
        auto& [begin, end] = m_written.at(static_cast<std::size_t>(id.index()));
        if (end > 0) {
            m_json.repeatElement(begin, end);
        } else {
            begin = m_json.beginOfElement();
            holder(m_occupancy.holding(id));
            end = m_json.size();
        }
    }
    m_json.endArray();
}

void Writing::holdersOf(const answers::Clash& clash)
{
    if (!clash.unplaced) {
        holders("holders", clash.holders);
        return;
    }
    m_json.key("holders");
    m_json.beginArray();
    for (const timetable::Holding& holding : answers::holdersOf(m_occupancy, clash)) {
        holder(holding);
    }
    m_json.endArray();
}

void Writing::operator()(const answers::FreeRooms& answer)
{
    m_json.key("rooms");
    m_json.beginArray();
    for (const answers::FreeRoom& free : answer.rooms) {
        const timetable::Room& room = m_occupancy.timetable().room(free.room);
        m_json.beginObject();
        optionalText("department", room.department);
        number("free_from", free.stretch.start.value);
        number("free_to", free.stretch.end().value);
        number("places", room.places);
        text("room", room.name);
        optional("zone", room.zone);
        m_json.endObject();
    }
    m_json.endArray();
    m_json.key("taken");
    m_json.beginArray();
    for (const answers::HeldRoom& held : answer.taken) {
        m_json.beginObject();
        holders("by", held.by);
        roomName(held.room);
        m_json.endObject();
    }
    m_json.endArray();
    m_json.key("unknown");
    m_json.beginArray();
    for (const answers::HeldRoom& held : answer.unknown) {
        m_json.beginObject();
        roomName(held.room);
        text("why", answers::whyUnknown(m_occupancy, held.by));
        m_json.endObject();
    }
    m_json.endArray();
}

void Writing::operator()(const HitList& hits)
{
    m_json.key("hits");
    m_json.beginArray();
    for (const answers::Hit& hit : hits) {
        m_json.beginObject();
        holders("items", hit.items);
        text("name", hit.name);
        text("what", kSubjects.at(hit.subject.index()));
        m_json.endObject();
    }
    m_json.endArray();
}

void Writing::operator()(const ClashList& clashes)
{
    m_json.key("clashes");
    m_json.beginArray();
    for (const answers::Clash& clash : clashes) {
        m_json.beginObject();
        date("date", clash.date);
        day(clash.day);
        holdersOf(clash);
        text("kind", nameOf(kClashes, clash.kind));
        text("name", clash.name);
        text("sentence", answers::clashSentence(m_occupancy, clash));
        text("weeks", nameOf(kWeeks, clash.weeks));
        m_json.endObject();
    }
    m_json.endArray();
}

/// Shares of seats that cannot be known are null.
void Writing::operator()(const answers::RoomUse& use)
{
    const auto seats = [&](double share) {
        optional("seats_share", use.areSeatsKnown ? std::optional(share) : std::nullopt);
    };
    m_json.key("rooms");
    m_json.beginArray();
    for (const answers::UseOfRoom& room : use.rooms) {
        m_json.beginObject();
        number("held", room.held);
        number("places", room.places);
        roomName(room.room);
        seats(room.seatsShare);
        number("share", room.share);
        number("slots", room.slots);
        m_json.endObject();
    }
    m_json.endArray();
    seats(use.seatsShare);
    number("share", use.share);
    m_json.key("slots");
    m_json.beginArray();
    for (const answers::UseOfSlot& slot : use.slots) {
        m_json.beginObject();
        number("day", slot.day);
        number("held", slot.held);
        number("rooms", slot.rooms);
        number("share", slot.share);
        number("slot", slot.slot);
        m_json.endObject();
    }
    m_json.endArray();
}

} // namespace

QByteArray answerAsJson(const AnswerDocument& document)
{
    Writing writing(*document.occupancy);
    writing.json().beginObject();
    std::visit(writing, document.answer);
    writing.json().endObject();
    return writing.json().take();
}

} // namespace files
