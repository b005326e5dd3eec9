#include "answers/Whereabouts.h"

#include "answers/SearchText.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace answers
{
namespace
{

using timetable::Occupancy;
using timetable::RoomId;

/// Calls `visit` with the id and the name of each room.
template <typename Visit>
void forEachRoom(const Occupancy& occupancy, Visit visit)
{
    const timetable::Timetable& timetable = occupancy.timetable();
    for (int index = 0; index < timetable.roomCount(); ++index) {
        visit(RoomId(index), timetable.room(RoomId(index)).name);
    }
}

/// The same with each spelling of a list of names, and the first one that is equal to it.
template <typename NameId, typename Visit>
void forEachName(const timetable::Names<NameId>& names, Visit visit)
{
    for (int index = 0; index < names.count(); ++index) {
        const NameId id(index);
        visit(names.group(id), names.text(id));
    }
}

/// Collects those whose name is looked for, each once.
class Hits
{
public:
    explicit Hits(const QString& text) : m_wanted(searchForm(text)) {}

    template <typename Id>
    void add(Id id, const QString& spelling, const QString& name)
    {
        const bool isWanted = !spelling.isEmpty() && searchForm(spelling).contains(m_wanted);
        if (isWanted && m_known.insert(id).second) {
            m_hits.push_back({id, name, {}});
        }
    }
    /// Puts those that have come since the last call into the order of their names.
    void sortLatest()
    {
        std::stable_sort(m_hits.begin() + m_sorted, m_hits.end(),
                         [](const Hit& left, const Hit& right) {
                             return searchForm(left.name) < searchForm(right.name);
                         });
        m_sorted = static_cast<std::ptrdiff_t>(m_hits.size());
    }
    [[nodiscard]] std::vector<Hit> take() { return std::move(m_hits); }

private:
    QString m_wanted;
    std::vector<Hit> m_hits;
    std::set<Subject> m_known; ///< theirs
    std::ptrdiff_t m_sorted = 0;
};

/// Whose week a holding belongs to, names by the first of their spellings.
std::set<Subject> subjectsOf(const Occupancy& occupancy, timetable::HoldingId id)
{
    const timetable::Timetable& timetable = occupancy.timetable();
    const timetable::Holding& holding = occupancy.holding(id);
    const timetable::Meeting& meeting = occupancy.meetingOf(holding);
    const timetable::MeetingPart& part = meeting.part(holding.part);
    std::set<Subject> subjects{timetable.classes().group(meeting.className),
                               timetable.subjects().group(part.subject)};
    for (const timetable::TeacherId teacher : part.teachers) {
        subjects.insert(timetable.teachers().group(teacher));
    }
    for (const RoomId room : occupancy.roomsOf(holding)) {
        subjects.insert(room);
    }
    return subjects;
}

/// Gives each hit its week, in one walk through all of it.
void addItems(const Occupancy& occupancy, const AskedWeek& week, std::vector<Hit>& hits)
{
    std::map<Subject, Hit*> bySubject;
    for (Hit& hit : hits) {
        bySubject.emplace(hit.subject, &hit);
    }
    for (const timetable::HoldingId id : weekOfAll(occupancy, week)) {
        for (const Subject& subject : subjectsOf(occupancy, id)) {
            if (const auto found = bySubject.find(subject); found != bySubject.end()) {
                found->second->items.push_back(id);
            }
        }
    }
}

/// `forEach` calls what it is given with all ids and spellings.
template <typename ForEach>
std::optional<Subject> named(const QString& name, ForEach forEach)
{
    std::optional<Subject> exact;
    std::optional<Subject> similar;
    const QString wanted = searchForm(name);
    forEach([&](auto id, const QString& spelling) {
        if (!exact && spelling == name) {
            exact = id;
        }
        if (!similar && searchForm(spelling) == wanted) {
            similar = id;
        }
    });
    return exact ? exact : similar;
}

} // namespace

std::vector<Hit> whereabouts(const Occupancy& occupancy, const QString& text, const AskedWeek& week)
{
    if (searchForm(text).isEmpty()) {
        return {};
    }
    const timetable::Timetable& timetable = occupancy.timetable();
    Hits hits(text);
    forEachRoom(occupancy, [&](RoomId id, const QString& name) { hits.add(id, name, name); });
    hits.sortLatest();
    const auto addNames = [&hits](const auto& names) {
        forEachName(names, [&](auto id, const QString& spelling) {
            hits.add(id, spelling, names.text(id));
        });
        hits.sortLatest();
    };
    addNames(timetable.teachers());
    addNames(timetable.classes());
    addNames(timetable.subjects());
    std::vector<Hit> found = hits.take();
    addItems(occupancy, week, found);
    return found;
}

std::optional<Subject> roomNamed(const Occupancy& occupancy, const QString& name)
{
    return named(name, [&](auto visit) { forEachRoom(occupancy, visit); });
}

std::optional<Subject> teacherNamed(const Occupancy& occupancy, const QString& name)
{
    return named(name, [&](auto visit) { forEachName(occupancy.timetable().teachers(), visit); });
}

std::optional<Subject> classNamed(const Occupancy& occupancy, const QString& name)
{
    return named(name, [&](auto visit) { forEachName(occupancy.timetable().classes(), visit); });
}

std::optional<Subject> subjectNamed(const Occupancy& occupancy, const QString& name)
{
    return named(name, [&](auto visit) { forEachName(occupancy.timetable().subjects(), visit); });
}

} // namespace answers
