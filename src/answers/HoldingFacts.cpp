#include "answers/HoldingFacts.h"

namespace answers
{

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
        facts.rooms = holding.rooms;
        if (holding.time) {
            facts.start = holding.time->start;
            facts.end = holding.time->end();
        }
        facts.teacher = timetable.teachers().group(part.teachers.front());
        facts.subject = timetable.subjects().group(part.subject);
        facts.className = timetable.classes().group(meeting.className);
    }
    return all;
}

} // namespace answers
