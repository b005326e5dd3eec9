#include "demo/Courses.h"

#include <map>
#include <tuple>

namespace demo
{

std::vector<Course> weeklyCourses(const Timetable& table)
{
    using Place = std::tuple<int, int, int>; // day, start, room
    std::map<Place, std::size_t> known;
    std::vector<Course> courses;
    for (const Meeting& meeting : table.meetings) {
        if (meeting.alternating) {
            continue;
        }
        const Place place(meeting.day, meeting.start, meeting.a.room);
        const auto [position, added] = known.try_emplace(place, courses.size());
        if (added) {
            courses.emplace_back();
        }
        courses.at(position->second).push_back(meeting);
    }
    return courses;
}

} // namespace demo
