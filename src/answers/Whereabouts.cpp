#include "answers/Whereabouts.h"

#include "answers/SearchText.h"

#include <algorithm>
#include <array>
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
class Search
{
public:
    explicit Search(const QString& text) : m_wanted(searchForm(text)) {}

    template <typename Id>
    void add(Id id, const QString& spelling, const QString& name)
    {
        const QString form = searchForm(spelling);
        if (form.contains(m_wanted) && !spelling.isEmpty() && m_known.insert(id).second) {
            m_found.push_back({spelling == name ? form : searchForm(name), {id, name, {}}});
        }
    }
    /// Puts those that have come since the last call into the order of their names.
    void sortLatest()
    {
        std::stable_sort(
            m_found.begin() + m_sorted, m_found.end(),
            [](const Found& left, const Found& right) { return left.form < right.form; });
        m_sorted = static_cast<std::ptrdiff_t>(m_found.size());
    }
    [[nodiscard]] std::vector<Hit> take()
    {
        std::vector<Hit> hits;
        hits.reserve(m_found.size());
        for (Found& found : m_found) {
            hits.push_back(std::move(found.hit));
        }
        return hits;
    }

private:
    struct Found {
        QString form; ///< of the name
        Hit hit;
    };

    QString m_wanted;
    std::vector<Found> m_found;
    std::set<Subject> m_known; ///< theirs
    std::ptrdiff_t m_sorted = 0;
};

/// Finds the hit of a subject at once: a whole week is handed out while somebody types.
class HitTable
{
public:
    explicit HitTable(std::vector<Hit>& hits)
    {
        for (Hit& hit : hits) {
            const auto place = static_cast<std::size_t>(
                std::visit([](auto id) { return id.index(); }, hit.subject));
            std::vector<Hit*>& kind = m_hits.at(hit.subject.index());
            kind.resize(std::max(kind.size(), place + 1));
            kind[place] = &hit;
        }
    }

    /// Gives the subject a holding, unless nobody looks for it or it has the holding already. Those
    /// of one holding must follow each other.
    template <typename Id>
    void give(Id subject, timetable::HoldingId holding)
    {
        if (subject.isNone()) {
            return;
        }
        const std::vector<Hit*>& kind = m_hits.at(Subject(subject).index());
        const auto place = static_cast<std::size_t>(subject.index());
        if (place >= kind.size() || kind[place] == nullptr) {
            return;
        }
        std::vector<timetable::HoldingId>& items = kind[place]->items;
        if (items.empty() || items.back() != holding) {
            items.push_back(holding);
        }
    }

private:
    std::array<std::vector<Hit*>, std::variant_size_v<Subject>> m_hits; ///< by kind and id
};

/// Gives each hit its week, in one walk through all of it. Names are known by the first of their
/// spellings.
void addItems(const Occupancy& occupancy, const AskedWeek& week, std::vector<Hit>& hits)
{
    if (hits.empty()) {
        return;
    }
    HitTable table(hits);
    const timetable::Timetable& timetable = occupancy.timetable();
    for (const timetable::HoldingId id : weekOfAll(occupancy, week)) {
        const timetable::Holding& holding = occupancy.holding(id);
        const timetable::Meeting& meeting = occupancy.meetingOf(holding);
        const timetable::MeetingPart& part = meeting.part(holding.part);
        for (const timetable::RoomNameId name : holding.rooms) {
            if (!name.isNone()) {
                for (const RoomId room : timetable.roomName(name).rooms) {
                    table.give(room, id);
                }
            }
        }
        for (const timetable::TeacherId teacher : part.teachers) {
            table.give(timetable.teachers().group(teacher), id);
        }
        table.give(timetable.classes().group(meeting.className), id);
        table.give(timetable.subjects().group(part.subject), id);
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
    Search search(text);
    forEachRoom(occupancy, [&](RoomId id, const QString& name) { search.add(id, name, name); });
    search.sortLatest();
    const auto addNames = [&search](const auto& names) {
        forEachName(names, [&](auto id, const QString& spelling) {
            search.add(id, spelling, names.text(id));
        });
        search.sortLatest();
    };
    addNames(timetable.teachers());
    addNames(timetable.classes());
    addNames(timetable.subjects());
    std::vector<Hit> found = search.take();
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
