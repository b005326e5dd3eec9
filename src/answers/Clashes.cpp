#include "answers/Clashes.h"

#include "answers/ClashGroups.h"
#include "answers/ClashRules.h"
#include "answers/Crowds.h"
#include "answers/Diary.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace answers
{
namespace
{

using timetable::Holding;
using timetable::HoldingId;
using timetable::MeetingKind;
using timetable::Names;
using timetable::Occupancy;
using timetable::RoomId;
using timetable::RoomNameId;
using timetable::TimeSpan;
using timetable::Week;

/// Of a room, teacher or class.
struct Kinds {
    ClashKind usual;
    ClashKind withMakeUp;
};

/// Those that clash in pairs by `rule`, which tells in which weeks. The candidates are of one day,
/// by start.
template <typename Rule>
std::vector<ClashGroup> clashing(const ClashRules& rules, std::span<const HoldingId> candidates,
                                 Rule rule)
{
    if (candidates.size() < 2) {
        return {};
    }
    std::optional<ClashGroups> groups; // few days have any
    std::vector<std::size_t> present;
    present.reserve(candidates.size());
    for (std::size_t next = 0; next < candidates.size(); ++next) {
        const HoldingFacts& coming = rules.facts(candidates[next]);
        std::erase_if(present, [&](std::size_t position) {
            return rules.facts(candidates[position]).end <= coming.start;
        });
        for (const std::size_t position : present) {
            const HoldingFacts& there = rules.facts(candidates[position]);
            if (!timetable::shareWeek(there.weeks, coming.weeks)) {
                continue;
            }
            const std::optional<Week> weeks = rule(candidates[position], candidates[next]);
            if (!weeks) {
                continue;
            }
            if (!groups) {
                groups.emplace(candidates);
            }
            groups->join(
                position, next,
                {*weeks, timetable::between(coming.start, std::min(there.end, coming.end))});
        }
        present.push_back(next);
    }
    return groups ? groups->groups() : std::vector<ClashGroup>();
}

/// The candidates of a make-up's date, by start.
std::vector<HoldingId> allOf(const Occupancy& occupancy, const DiaryDay& day)
{
    std::vector<HoldingId> all;
    for (const std::vector<HoldingId>* list : {&day.courses, &day.makeUps, &day.exams}) {
        all.insert(all.end(), list->begin(), list->end());
    }
    std::sort(all.begin(), all.end(), [&](HoldingId left, HoldingId right) {
        return std::tuple(occupancy.holding(left).time, left) <
               std::tuple(occupancy.holding(right).time, right);
    });
    return all;
}

/// The week of all of them; every week where they differ, or are none.
Week commonWeeks(const std::vector<Holding>& holders)
{
    if (holders.empty()) {
        return Week::Every;
    }
    const Week first = holders.front().weeks;
    const bool isAll = std::all_of(holders.begin(), holders.end(),
                                   [&](const Holding& holder) { return holder.weeks == first; });
    return isAll ? first : Week::Every;
}

/// Collects the clashes, kind by kind.
class Search
{
public:
    explicit Search(const Occupancy& occupancy)
        : m_occupancy(occupancy), m_rules(occupancy), m_order(inDiaryOrder(occupancy))
    {
    }

    void searchRooms();
    void searchTeachers();
    void searchClasses();
    void searchUnknownRooms();
    void searchTimes();
    [[nodiscard]] std::vector<Clash> take();

private:
    template <typename NameId, typename Rule>
    void searchNames(const Names<NameId>& names, const std::vector<std::vector<HoldingId>>& lists,
                     const Kinds& kinds, Rule rule);
    template <typename Rule>
    void searchDiary(const QString& name, const std::vector<DiaryDay>& diary, const Kinds& kinds,
                     Rule rule);
    void searchCrowds(const timetable::Room& room, const std::vector<DiaryDay>& diary);
    [[nodiscard]] bool isHeldAsAnEqualOne(RoomId room, const std::vector<HoldingId>& holders) const;
    void addTimeless(std::vector<HoldingId> holders, std::optional<timetable::Unplaced> unplaced);
    [[nodiscard]] bool isMakeUp(HoldingId id) const
    {
        return m_rules.facts(id).kind == MeetingKind::MakeUp;
    }
    void add(ClashKind kind, const QString& name, const DiaryDay& day,
             std::vector<ClashGroup> groups, int places = 0);

    const Occupancy& m_occupancy;
    ClashRules m_rules;
    std::vector<HoldingId> m_order; ///< all with a known time, as diaries order them
    std::vector<Clash> m_found;
};

void Search::add(ClashKind kind, const QString& name, const DiaryDay& day,
                 std::vector<ClashGroup> groups, int places)
{
    for (ClashGroup& group : groups) {
        m_found.push_back({kind,
                           name,
                           day.day,
                           day.date,
                           group.reason.weeks,
                           std::move(group.holders),
                           {},
                           group.reason.time,
                           group.reason.students,
                           places});
    }
}

template <typename Rule>
void Search::searchDiary(const QString& name, const std::vector<DiaryDay>& diary,
                         const Kinds& kinds, Rule rule)
{
    const auto withMakeUp = [&](HoldingId left, HoldingId right) {
        return isMakeUp(left) || isMakeUp(right) ? rule(left, right) : std::nullopt;
    };
    for (const DiaryDay& day : diary) {
        const bool isDate = day.date.isValid();
        add(kinds.usual, name, day, clashing(m_rules, isDate ? day.exams : day.courses, rule));
        if (!day.makeUps.empty()) {
            add(kinds.withMakeUp, name, day,
                clashing(m_rules, allOf(m_occupancy, day), withMakeUp));
        }
    }
}

void Search::searchCrowds(const timetable::Room& room, const std::vector<DiaryDay>& diary)
{
    for (const DiaryDay& day : diary) {
        if (!day.date.isValid()) {
            add(ClashKind::Overfull, room.name, day,
                crowds(m_occupancy, m_rules.allFacts(), day.courses, room.places), room.places);
            continue;
        }
        for (const std::vector<HoldingId>& held : {day.makeUps, day.exams}) {
            add(ClashKind::Overfull, room.name, day,
                crowds(m_occupancy, m_rules.allFacts(), held, room.places), room.places);
        }
    }
}

/// Whether an earlier room has an equal name and the same holders.
bool Search::isHeldAsAnEqualOne(RoomId room, const std::vector<HoldingId>& holders) const
{
    for (const RoomNameId name : m_occupancy.holding(holders.front()).rooms) {
        if (name.isNone()) {
            continue;
        }
        const std::vector<RoomId>& equal = m_occupancy.timetable().roomName(name).rooms;
        const bool isNamed = std::find(equal.begin(), equal.end(), room) != equal.end();
        if (isNamed && std::any_of(equal.begin(), equal.end(), [&](RoomId other) {
                return other < room && m_occupancy.everyHolder(other) == holders;
            })) {
            return true;
        }
    }
    return false;
}

void Search::searchRooms()
{
    const auto rooms = m_occupancy.timetable().rooms();
    std::vector<std::vector<HoldingId>> lists(
        static_cast<std::size_t>(m_occupancy.timetable().roomCount()));
    for (const HoldingId id : m_order) {
        m_occupancy.forEachRoom(m_occupancy.holding(id), [&](RoomId room) {
            lists[static_cast<std::size_t>(room.index())].push_back(id);
        });
    }
    for (std::size_t index = 0; index < rooms.size(); ++index) {
        const RoomId id(static_cast<int>(index));
        const std::vector<HoldingId> holders = m_occupancy.everyHolder(id);
        if (holders.empty() || isHeldAsAnEqualOne(id, holders)) {
            continue;
        }
        const std::vector<DiaryDay> diary = diaryOf(m_occupancy, m_rules.allFacts(), lists[index]);
        searchDiary(
            rooms[index].name, diary, {ClashKind::Room, ClashKind::MakeupRoom},
            [this](HoldingId left, HoldingId right) { return m_rules.clashOverRoom(left, right); });
        searchCrowds(rooms[index], diary);
    }
}

template <typename NameId, typename Rule>
void Search::searchNames(const Names<NameId>& names,
                         const std::vector<std::vector<HoldingId>>& lists, const Kinds& kinds,
                         Rule rule)
{
    for (std::size_t index = 0; index < lists.size(); ++index) {
        searchDiary(names.text(NameId(static_cast<int>(index))),
                    diaryOf(m_occupancy, m_rules.allFacts(), lists[index]), kinds, rule);
    }
}

void Search::searchTeachers()
{
    const auto& teachers = m_occupancy.timetable().teachers();
    std::vector<std::vector<HoldingId>> lists(static_cast<std::size_t>(teachers.count()));
    for (const HoldingId id : m_order) {
        const Holding& holding = m_occupancy.holding(id);
        for (const timetable::TeacherId each :
             m_occupancy.meetingOf(holding).part(holding.part).teachers) {
            if (each.isNone()) {
                continue;
            }
            auto& list = lists[static_cast<std::size_t>(teachers.group(each).index())];
            if (list.empty() || list.back() != id) { // a part may name somebody twice
                list.push_back(id);
            }
        }
    }
    searchNames(
        teachers, lists, {ClashKind::Teacher, ClashKind::MakeupTeacher},
        [this](HoldingId left, HoldingId right) { return m_rules.clashOverTeacher(left, right); });
}

void Search::searchClasses()
{
    const auto& classes = m_occupancy.timetable().classes();
    std::vector<std::vector<HoldingId>> lists(static_cast<std::size_t>(classes.count()));
    for (const HoldingId id : m_order) {
        const timetable::ClassId each = m_rules.facts(id).className;
        if (!each.isNone()) {
            lists[static_cast<std::size_t>(each.index())].push_back(id);
        }
    }
    searchNames(
        classes, lists, {ClashKind::Class, ClashKind::MakeupClass},
        [this](HoldingId left, HoldingId right) { return m_rules.clashOverClass(left, right); });
}

void Search::searchUnknownRooms()
{
    const timetable::Timetable& timetable = m_occupancy.timetable();
    for (int index = static_cast<int>(timetable.rooms().size()); index < timetable.roomCount();
         ++index) {
        std::vector<HoldingId> holders = m_occupancy.everyHolder(RoomId(index));
        std::sort(holders.begin(), holders.end(), [&](HoldingId left, HoldingId right) {
            return comesBefore(m_occupancy, left, right);
        });
        Clash clash;
        clash.kind = ClashKind::UnknownRoom;
        clash.name = timetable.room(RoomId(index)).name;
        clash.holders = std::move(holders);
        clash.weeks = commonWeeks(holdersOf(m_occupancy, clash));
        m_found.push_back(std::move(clash));
    }
}

void Search::addTimeless(std::vector<HoldingId> holders,
                         std::optional<timetable::Unplaced> unplaced)
{
    const timetable::Timetable& timetable = m_occupancy.timetable();
    Clash clash;
    clash.kind = ClashKind::NoTime;
    clash.holders = std::move(holders);
    clash.unplaced = unplaced;
    const std::vector<Holding> all = holdersOf(m_occupancy, clash);
    const Holding& first = all.front();
    clash.name = timetable.room(timetable.roomName(first.rooms.front()).rooms.front()).name;
    clash.day = first.day;
    clash.date = first.date;
    clash.weeks = commonWeeks(all);
    m_found.push_back(std::move(clash));
}

/// One clash for each row: its holdings follow each other.
void Search::searchTimes()
{
    const std::vector<Holding>& holdings = m_occupancy.holdings();
    std::size_t end = 0;
    for (std::size_t index = 0; index < holdings.size(); index = end) {
        const Holding& first = holdings[index];
        std::vector<HoldingId> holders;
        for (end = index; end < holdings.size() && holdings[end].meeting == first.meeting; ++end) {
            holders.emplace_back(static_cast<int>(end));
        }
        if (!first.time) {
            addTimeless(std::move(holders), {});
        }
    }
    for (const timetable::Unplaced& row : m_occupancy.unplaced()) {
        if (!m_occupancy.holdingsOf(row).front().time) {
            addTimeless({}, row);
        }
    }
}

std::vector<Clash> Search::take()
{
    std::stable_sort(m_found.begin(), m_found.end(), [](const Clash& left, const Clash& right) {
        const auto key = [](const Clash& clash) {
            const bool isDate = clash.date.isValid();
            return std::tuple(clash.kind, clash.unplaced.has_value(), isDate,
                              isDate ? clash.date.toJulianDay() : clash.day, clash.time);
        };
        const auto one = key(left);
        const auto other = key(right);
        return one != other ? one < other : left.name < right.name;
    });
    return std::move(m_found);
}

} // namespace

std::vector<Clash> clashes(const Occupancy& occupancy)
{
    Search search(occupancy);
    search.searchRooms();
    search.searchTeachers();
    search.searchClasses();
    search.searchUnknownRooms();
    search.searchTimes();
    return search.take();
}

std::vector<Holding> holdersOf(const Occupancy& occupancy, const Clash& clash)
{
    if (clash.unplaced) {
        return occupancy.holdingsOf(*clash.unplaced);
    }
    std::vector<Holding> holders;
    holders.reserve(clash.holders.size());
    for (const HoldingId id : clash.holders) {
        holders.push_back(occupancy.holding(id));
    }
    return holders;
}

} // namespace answers
