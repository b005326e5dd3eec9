#include "timetable/Occupancy.h"

#include "timetable/ReadTimes.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace timetable
{

Occupancy::Occupancy(std::shared_ptr<const Timetable> timetable) : m_timetable(std::move(timetable))
{
    m_holdings.reserve(m_timetable->meetings().size());
    for (std::size_t position = 0; position < m_timetable->meetings().size(); ++position) {
        place(static_cast<int>(position));
    }
    shelve();
}

/// Finds the day of a meeting that names a room.
void Occupancy::place(int position)
{
    const Meeting& meeting = m_timetable->meetings()[static_cast<std::size_t>(position)];
    const bool namesRoom = std::any_of(meeting.parts.begin(), meeting.parts.end(),
                                       [](const MeetingPart& part) { return part.isThere(); });
    if (!namesRoom) {
        return;
    }
    Holding common;
    common.meeting = position;
    switch (meeting.kind) {
    case MeetingKind::Course:
        common.day = meeting.slot.day;
        break;
    case MeetingKind::MakeUp:
        common.date = meeting.date;
        break;
    case MeetingKind::Exam:
        common.date =
            m_timetable->examWeeks().date(meeting.examWeek, meeting.slot.day).value_or(QDate());
        break;
    }
    if (common.date.isValid()) {
        common.day = dayOf(common.date);
    }
    if (common.day != kNoDay) {
        common.time = timeOf(meeting, common.day);
        addParts(meeting, common, m_holdings);
        return;
    }
    constexpr std::array reasons{NoDay::CourseKey, NoDay::Date, NoDay::ExamDay};
    m_unplaced.push_back({position, reasons.at(static_cast<std::size_t>(meeting.kind))});
}

std::optional<TimeSpan> Occupancy::timeOf(const Meeting& meeting, int day) const
{
    std::optional<MinuteOfDay> start = meeting.start;
    if (!start && day != kNoDay) {
        const DaySlot* slot = m_timetable->slot(day, meeting.slot.number);
        start = slot == nullptr ? std::nullopt : slot->start;
    }
    return start ? std::optional(TimeSpan{*start, meeting.length.value_or(kUsualLength)})
                 : std::nullopt;
}

void Occupancy::addParts(const Meeting& meeting, Holding common, std::vector<Holding>& to) const
{
    // What has a date has no week: it holds all that it names.
    const bool hasWeeks = meeting.kind == MeetingKind::Course;
    for (const Part which : kAllParts) {
        const MeetingPart& part = meeting.part(which);
        common.part = which;
        if (hasWeeks && which == Part::A && meeting.alternates) {
            add(common, part.room, {}, Week::A, to);
            add(common, part.otherRoom, {}, Week::Every, to);
        } else {
            const bool isOfWeekB = which == Part::B || which == Part::SecondB;
            add(common, part.room, part.otherRoom, hasWeeks && isOfWeekB ? Week::B : Week::Every,
                to);
        }
    }
}

void Occupancy::add(Holding common, RoomNameId room, RoomNameId otherRoom, Week weeks,
                    std::vector<Holding>& to) const
{
    if (room.isNone()) {
        std::swap(room, otherRoom);
    }
    if (room.isNone()) {
        return;
    }
    const bool isSame = !otherRoom.isNone() &&
                        m_timetable->roomName(room).rooms == m_timetable->roomName(otherRoom).rooms;
    common.rooms = {room, isSame ? RoomNameId() : otherRoom};
    common.weeks = weeks;
    to.push_back(common);
}

std::vector<Holding> Occupancy::holdingsOf(const Unplaced& unplaced) const
{
    Holding common;
    common.meeting = unplaced.meeting;
    const Meeting& meeting = meetingOf(common);
    common.time = timeOf(meeting, meeting.slot.day);
    std::vector<Holding> holdings;
    addParts(meeting, common, holdings);
    return holdings;
}

std::vector<RoomId> Occupancy::roomsOf(const Holding& holding) const
{
    std::vector<RoomId> rooms;
    forEachRoom(holding, [&rooms](RoomId room) { rooms.push_back(room); });
    return rooms;
}

std::size_t Occupancy::shelfNumber(RoomId room, int day) const
{
    return static_cast<std::size_t>(room.index()) * kShelves + static_cast<std::size_t>(day);
}

/// Puts every holding on the shelves of its rooms.
void Occupancy::shelve()
{
    const std::size_t shelves = static_cast<std::size_t>(m_timetable->roomCount()) * kShelves;
    const auto forEach = [this](auto visit) {
        for (std::size_t position = 0; position < m_holdings.size(); ++position) {
            const Holding& holding = m_holdings[position];
            const int day = holding.date.isValid() ? kDated : holding.day;
            forEachRoom(holding, [&](RoomId room) {
                visit(shelfNumber(room, day), HoldingId(static_cast<int>(position)));
            });
        }
    };
    m_shelfStarts.assign(shelves + 1, 0);
    forEach([this](std::size_t shelf, HoldingId /*id*/) { ++m_shelfStarts[shelf + 1]; });
    std::partial_sum(m_shelfStarts.begin(), m_shelfStarts.end(), m_shelfStarts.begin());
    m_shelved.resize(m_shelfStarts.back());
    std::vector<std::size_t> ends(m_shelfStarts.begin(), m_shelfStarts.end() - 1);
    forEach([&](std::size_t shelf, HoldingId id) { m_shelved[ends[shelf]++] = id; });
    for (std::size_t shelf = 0; shelf < shelves; ++shelf) {
        std::stable_sort(m_shelved.begin() + static_cast<std::ptrdiff_t>(m_shelfStarts[shelf]),
                         m_shelved.begin() + static_cast<std::ptrdiff_t>(m_shelfStarts[shelf + 1]),
                         [this](HoldingId left, HoldingId right) {
                             return holding(left).time < holding(right).time;
                         });
    }
}

std::span<const HoldingId> Occupancy::shelf(RoomId room, int day) const
{
    const std::size_t number = shelfNumber(room, day);
    const std::size_t start = m_shelfStarts.at(number);
    return std::span(m_shelved).subspan(start, m_shelfStarts.at(number + 1) - start);
}

bool Occupancy::isOn(const Holding& holding, const When& when) const
{
    if (holding.date.isValid()) {
        return when.isDate() && holding.date == when.date();
    }
    const std::optional<Period>& period = m_timetable->period();
    const bool isTaught = !when.isDate() || !period || period->holds(when.date());
    return isTaught && holding.day == when.day() && shareWeek(holding.weeks, when.week());
}

template <typename Wanted>
std::vector<HoldingId> Occupancy::select(RoomId room, const When& when, Wanted isWanted) const
{
    std::vector<HoldingId> found;
    const auto take = [&](std::span<const HoldingId> ids) {
        std::copy_if(ids.begin(), ids.end(), std::back_inserter(found), [&](HoldingId id) {
            return isWanted(holding(id)) && isOn(holding(id), when);
        });
    };
    take(shelf(room, when.day()));
    const auto courses = static_cast<std::ptrdiff_t>(found.size());
    if (when.isDate()) {
        take(shelf(room, kDated));
        std::inplace_merge(found.begin(), found.begin() + courses, found.end(),
                           [this](HoldingId left, HoldingId right) {
                               return holding(left).time < holding(right).time;
                           });
    }
    return found;
}

std::vector<HoldingId> Occupancy::holders(RoomId room, const When& when) const
{
    return select(room, when, [](const Holding& each) { return each.time.has_value(); });
}

std::vector<HoldingId> Occupancy::holders(RoomId room, const When& when, const TimeSpan& span) const
{
    return select(room, when,
                  [&span](const Holding& each) { return each.time && each.time->meets(span); });
}

std::vector<HoldingId> Occupancy::unknown(RoomId room, const When& when) const
{
    return select(room, when, [](const Holding& each) { return !each.time; });
}

std::vector<HoldingId> Occupancy::everyHolder(RoomId room) const
{
    const std::span<const HoldingId> first = shelf(room, kMonday);
    const std::span<const HoldingId> last = shelf(room, kDated);
    return {first.data(), last.data() + last.size()};
}

NoStart Occupancy::whyUnknown(const Holding& holding) const
{
    return m_timetable->slot(holding.day, meetingOf(holding).slot.number) == nullptr
               ? NoStart::NoSlot
               : NoStart::SlotNoTime;
}

Holder Occupancy::describe(const Holding& holding) const
{
    const Meeting& meeting = meetingOf(holding);
    const MeetingPart& part = meeting.part(holding.part);
    Holder holder;
    holder.kind = meeting.kind;
    holder.part = holding.part;
    for (const RoomNameId room : holding.rooms) {
        if (!room.isNone()) {
            holder.rooms << m_timetable->roomName(room).text;
        }
    }
    holder.className = m_timetable->classes().text(meeting.className);
    for (const TeacherId teacher : part.teachers) {
        if (!teacher.isNone()) {
            holder.teachers << m_timetable->teachers().text(teacher);
        }
    }
    holder.subject = m_timetable->subjects().text(part.subject);
    holder.day = holding.day;
    holder.slot = meeting.slot.number;
    holder.time = holding.time;
    holder.weeks = holding.weeks;
    holder.date = holding.date;
    return holder;
}

} // namespace timetable
