#include "answers/WeekOf.h"

#include <algorithm>
#include <compare>
#include <optional>
#include <utility>

namespace answers
{
namespace
{

using timetable::Holding;
using timetable::HoldingId;
using timetable::Occupancy;
using timetable::RoomNameId;

/// Whether a holding is about the subject.
class IsAbout
{
public:
    IsAbout(const Occupancy& occupancy, const Holding& holding)
        : m_occupancy(occupancy), m_holding(holding), m_meeting(occupancy.meetingOf(holding))
    {
    }

    bool operator()(timetable::RoomId room) const
    {
        const std::vector<timetable::RoomId> rooms = m_occupancy.roomsOf(m_holding);
        return std::find(rooms.begin(), rooms.end(), room) != rooms.end();
    }
    bool operator()(timetable::TeacherId teacher) const
    {
        const auto& teachers = m_meeting.part(m_holding.part).teachers;
        return std::any_of(teachers.begin(), teachers.end(), [&](timetable::TeacherId each) {
            return !each.isNone() && m_occupancy.timetable().teachers().areEqual(each, teacher);
        });
    }
    bool operator()(timetable::ClassId className) const
    {
        return m_occupancy.timetable().classes().areEqual(m_meeting.className, className);
    }
    bool operator()(timetable::SubjectId subject) const
    {
        return m_occupancy.timetable().subjects().areEqual(m_meeting.part(m_holding.part).subject,
                                                           subject);
    }

private:
    const Occupancy& m_occupancy;
    const Holding& m_holding;
    const timetable::Meeting& m_meeting;
};

/// What holds a room in the week, as it was read.
std::vector<HoldingId> heldIn(const Occupancy& occupancy, const AskedWeek& week)
{
    const std::vector<timetable::When> days = week.days();
    std::vector<HoldingId> found;
    const std::vector<Holding>& holdings = occupancy.holdings();
    for (std::size_t index = 0; index < holdings.size(); ++index) {
        if (std::any_of(days.begin(), days.end(), [&](const timetable::When& day) {
                return occupancy.isOn(holdings[index], day);
            })) {
            found.push_back(HoldingId(static_cast<int>(index)));
        }
    }
    return found;
}

/// The first room of each holding as a number, in the order of the names. Whole weeks are sorted by
/// them while somebody types, and there are far fewer names than holdings.
class RoomRanks
{
public:
    RoomRanks(const Occupancy& occupancy, const std::vector<HoldingId>& ids)
    {
        std::vector<RoomNameId> names;
        for (const HoldingId id : ids) {
            const RoomNameId name = occupancy.holding(id).rooms.front();
            const auto position = static_cast<std::size_t>(name.index());
            if (position >= m_ranks.size()) {
                m_ranks.resize(position + 1, kNone);
            }
            if (m_ranks[position] == kNone) {
                m_ranks[position] = 0;
                names.push_back(name);
            }
        }
        const auto text = [&](RoomNameId name) -> const QString& {
            return occupancy.timetable().roomName(name).text;
        };
        std::sort(names.begin(), names.end(),
                  [&text](RoomNameId left, RoomNameId right) { return text(left) < text(right); });
        int rank = 0;
        for (std::size_t index = 0; index < names.size(); ++index) {
            const bool isNew = index > 0 && text(names[index - 1]) != text(names[index]);
            rank += isNew ? 1 : 0;
            m_ranks[static_cast<std::size_t>(names[index].index())] = rank;
        }
    }

    /// Of one of the holdings. Equal texts have one rank.
    [[nodiscard]] int of(const Holding& holding) const
    {
        return m_ranks[static_cast<std::size_t>(holding.rooms.front().index())];
    }

private:
    static constexpr int kNone = -1;
    std::vector<int> m_ranks; ///< by the ids of the names
};

/// Where a holding stands in a week.
struct Place {
    int day = timetable::kNoDay;
    std::optional<timetable::TimeSpan> time;
    int room = 0;
    HoldingId id;

    friend auto operator<=>(const Place&,
                            const Place&) = default; // NOLINT(modernize-use-nullptr)
};

/// Sorts holdings by day, start and room; those that have all in common stay as they were read.
/// Requires: ids that rise.
std::vector<HoldingId> inOrder(const Occupancy& occupancy, std::vector<HoldingId> ids)
{
    const RoomRanks ranks(occupancy, ids);
    std::vector<Place> places;
    places.reserve(ids.size());
    for (const HoldingId id : ids) {
        const Holding& holding = occupancy.holding(id);
        places.push_back({holding.day, holding.time, ranks.of(holding), id});
    }
    std::sort(places.begin(), places.end());
    std::transform(places.begin(), places.end(), ids.begin(),
                   [](const Place& place) { return place.id; });
    return ids;
}

} // namespace

bool isAbout(const Occupancy& occupancy, const Holding& holding, const Subject& subject)
{
    return std::visit(IsAbout(occupancy, holding), subject);
}

std::vector<timetable::When> AskedWeek::days() const
{
    constexpr int daysOfWeek = 6;
    std::vector<timetable::When> days;
    for (int day = timetable::kMonday; day < daysOfWeek; ++day) {
        days.push_back(date.isValid()
                           ? timetable::When::date(date.addDays(day - timetable::dayOf(date)), week)
                           : timetable::When::weekday(day, week));
    }
    return days;
}

std::vector<HoldingId> weekOfAll(const Occupancy& occupancy, const AskedWeek& week)
{
    return inOrder(occupancy, heldIn(occupancy, week));
}

std::vector<HoldingId> weekOf(const Occupancy& occupancy, const Subject& subject,
                              const AskedWeek& week)
{
    std::vector<HoldingId> items = heldIn(occupancy, week);
    std::erase_if(
        items, [&](HoldingId id) { return !isAbout(occupancy, occupancy.holding(id), subject); });
    return inOrder(occupancy, std::move(items));
}

} // namespace answers
