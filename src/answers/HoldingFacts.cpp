#include "answers/HoldingFacts.h"

namespace answers
{
namespace
{

/// Lets the last two know of each other where they are the two rooms of one part, which follow one
/// another.
void joinPart(std::vector<HoldingFacts>& all)
{
    if (all.size() < 2) {
        return;
    }
    HoldingFacts& last = all.back();
    HoldingFacts& before = all[all.size() - 2];
    if (before.meeting == last.meeting && before.part == last.part) {
        before.roomsInA = last.roomsInA = {before.rooms.front(), last.rooms.front()};
    }
}

} // namespace

std::vector<HoldingFacts> factsOf(const timetable::Occupancy& occupancy)
{
    const timetable::Timetable& timetable = occupancy.timetable();
    std::vector<HoldingFacts> all;
    all.reserve(occupancy.holdings().size());
    for (const timetable::Holding& holding : occupancy.holdings()) {
        const timetable::Meeting& meeting = occupancy.meetingOf(holding);
        const timetable::MeetingPart& part = meeting.part(holding.part);
        HoldingFacts& facts = all.emplace_back();
        facts.meeting = holding.meeting;
        facts.part = holding.part;
        facts.kind = meeting.kind;
        facts.weeks = holding.weeks;
        facts.day = holding.day;
        facts.date = holding.date;
        facts.rooms = facts.roomsInA = holding.rooms;
        if (holding.time) {
            facts.start = holding.time->start;
            facts.end = holding.time->end();
        }
        facts.teacher = timetable.teachers().group(part.teachers.front());
        facts.subject = timetable.subjects().group(part.subject);
        facts.className = timetable.classes().group(meeting.className);
        joinPart(all);
    }
    return all;
}

} // namespace answers
