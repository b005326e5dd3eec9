#include "answers/Diary.h"

#include <algorithm>
#include <compare>
#include <iterator>
#include <optional>

namespace answers
{
namespace
{

using timetable::Holding;
using timetable::HoldingId;
using timetable::MeetingKind;
using timetable::Occupancy;

/// What tells days apart, in their order: 0 to 6 for the teaching weeks, more for any date.
template <typename Held>
qint64 dayKey(const Held& holding)
{
    constexpr qint64 dates = qint64(1) << 40; // more than any date's distance from day 0
    return holding.date.isValid() ? dates + holding.date.toJulianDay() : holding.day;
}

/// Where a holding stands in a diary.
struct Entry {
    qint64 day = 0;
    std::optional<timetable::TimeSpan> time;
    HoldingId id;

    friend auto operator<=>(const Entry&,
                            const Entry&) = default; // NOLINT(modernize-use-nullptr)
};

Entry entryOf(const Occupancy& occupancy, HoldingId id)
{
    const Holding& holding = occupancy.holding(id);
    return {dayKey(holding), holding.time, id};
}

std::vector<HoldingId>& listOf(DiaryDay& day, MeetingKind kind)
{
    return kind == MeetingKind::Course   ? day.courses
           : kind == MeetingKind::MakeUp ? day.makeUps
                                         : day.exams;
}

/// Gives dates with make-ups the courses of their weekday, as far as these are held then.
void addCourses(const Occupancy& occupancy, std::vector<DiaryDay>& diary)
{
    const auto firstDate = std::find_if(diary.begin(), diary.end(),
                                        [](const DiaryDay& each) { return each.date.isValid(); });
    for (auto date = firstDate; date != diary.end(); ++date) {
        const auto weekday = std::find_if(
            diary.begin(), firstDate, [&](const DiaryDay& each) { return each.day == date->day; });
        if (!date->makeUps.empty() && weekday != firstDate) {
            const timetable::When when = timetable::When::date(date->date);
            std::copy_if(weekday->courses.begin(), weekday->courses.end(),
                         std::back_inserter(date->courses),
                         [&](HoldingId id) { return occupancy.isOn(occupancy.holding(id), when); });
        }
    }
}

} // namespace

bool comesBefore(const Occupancy& occupancy, HoldingId left, HoldingId right)
{
    return entryOf(occupancy, left) < entryOf(occupancy, right);
}

std::vector<HoldingId> inDiaryOrder(const Occupancy& occupancy)
{
    std::vector<Entry> entries;
    entries.reserve(occupancy.holdings().size());
    for (std::size_t index = 0; index < occupancy.holdings().size(); ++index) {
        if (occupancy.holdings()[index].time) {
            entries.push_back(entryOf(occupancy, HoldingId(static_cast<int>(index))));
        }
    }
    std::sort(entries.begin(), entries.end());
    std::vector<HoldingId> order;
    order.reserve(entries.size());
    std::transform(entries.begin(), entries.end(), std::back_inserter(order),
                   [](const Entry& entry) { return entry.id; });
    return order;
}

std::vector<DiaryDay> diaryOf(const Occupancy& occupancy, const std::vector<HoldingFacts>& facts,
                              const std::vector<HoldingId>& holdings)
{
    std::vector<DiaryDay> diary;
    qint64 latest = -1;
    for (const HoldingId id : holdings) {
        const HoldingFacts& holding = facts[static_cast<std::size_t>(id.index())];
        if (const qint64 day = dayKey(holding); day != latest) {
            latest = day;
            const bool isDate = holding.date.isValid();
            diary.push_back(
                {isDate ? timetable::dayOf(holding.date) : holding.day, holding.date, {}, {}, {}});
        }
        listOf(diary.back(), holding.kind).push_back(id);
    }
    addCourses(occupancy, diary);
    return diary;
}

} // namespace answers
