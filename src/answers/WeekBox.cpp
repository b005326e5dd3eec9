#include "answers/WeekBox.h"

#include "answers/Words.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace answers
{
namespace
{

using timetable::Holding;
using timetable::HoldingId;
using timetable::Meeting;
using timetable::Occupancy;
using timetable::RoomId;
using timetable::TimeSpan;
using timetable::Week;

/// What rows of one common course have in common. Names are the first of their equal spellings.
using CourseKey =
    std::tuple<int, TimeSpan, timetable::MeetingKind, QDate, Week, std::vector<RoomId>,
               std::vector<timetable::TeacherId>, timetable::SubjectId>;

CourseKey keyOf(const Occupancy& occupancy, const Holding& holding)
{
    const timetable::Timetable& timetable = occupancy.timetable();
    const Meeting& meeting = occupancy.meetingOf(holding);
    const timetable::MeetingPart& part = meeting.part(holding.part);
    std::vector<RoomId> rooms = occupancy.roomsOf(holding);
    std::sort(rooms.begin(), rooms.end());
    std::vector<timetable::TeacherId> teachers;
    for (const timetable::TeacherId teacher : part.teachers) {
        if (!teacher.isNone()) {
            teachers.push_back(timetable.teachers().group(teacher));
        }
    }
    std::sort(teachers.begin(), teachers.end());
    return {holding.day,         *holding.time,
            meeting.kind,        holding.date,
            holding.weeks,       std::move(rooms),
            std::move(teachers), timetable.subjects().group(part.subject)};
}

/// Writes down what is in a box, but for whose week it is.
class BoxLines
{
public:
    BoxLines(const Occupancy& occupancy, const std::optional<Subject>& subject)
        : m_occupancy(occupancy), m_timetable(occupancy.timetable()), m_subject(subject)
    {
    }

    [[nodiscard]] QStringList of(const std::vector<HoldingId>& holdings) const
    {
        const Holding& first = m_occupancy.holding(holdings.front());
        const timetable::MeetingPart& part = m_occupancy.meetingOf(first).part(first.part);
        QStringList lines{listed(classesOf(holdings)), nameOf(m_timetable.subjects(), part.subject),
                          teachersOf(part), roomsOf(first)};
        lines.removeAll(QString());
        return lines;
    }

    [[nodiscard]] QString shortOf(const std::vector<HoldingId>& holdings) const
    {
        const QStringList classes = classesOf(holdings);
        if (classes.isEmpty()) {
            return of(holdings).value(0);
        }
        return classes.size() == 1
                   ? classes.front()
                   : QStringLiteral("%1 +%2").arg(classes.front()).arg(classes.size() - 1);
    }

private:
    template <typename NameId>
    [[nodiscard]] bool isSubject(const timetable::Names<NameId>& names, NameId id) const
    {
        const NameId* whose = m_subject ? std::get_if<NameId>(&*m_subject) : nullptr;
        return whose != nullptr && names.areEqual(*whose, id);
    }
    template <typename NameId>
    [[nodiscard]] QString nameOf(const timetable::Names<NameId>& names, NameId id) const
    {
        return isSubject(names, id) ? QString() : names.text(id).trimmed();
    }
    [[nodiscard]] static QStringList told(QStringList names)
    {
        names.removeAll(QString());
        names.removeDuplicates();
        return names;
    }
    [[nodiscard]] static QString listed(const QStringList& names)
    {
        return told(names).join(QStringLiteral(", "));
    }
    [[nodiscard]] QStringList classesOf(const std::vector<HoldingId>& holdings) const
    {
        std::vector<timetable::ClassId> known;
        QStringList names;
        for (const HoldingId id : holdings) {
            const timetable::ClassId name =
                m_occupancy.meetingOf(m_occupancy.holding(id)).className;
            const timetable::ClassId group = m_timetable.classes().group(name);
            if (std::find(known.begin(), known.end(), group) == known.end()) {
                known.push_back(group);
                names << nameOf(m_timetable.classes(), name);
            }
        }
        return told(names);
    }
    [[nodiscard]] QString teachersOf(const timetable::MeetingPart& part) const
    {
        QStringList names;
        for (const timetable::TeacherId teacher : part.teachers) {
            names << nameOf(m_timetable.teachers(), teacher);
        }
        return listed(names);
    }
    [[nodiscard]] QString roomsOf(const Holding& holding) const
    {
        const RoomId* whose = m_subject ? std::get_if<RoomId>(&*m_subject) : nullptr;
        QStringList names;
        for (const timetable::RoomNameId name : holding.rooms) {
            if (name.isNone()) {
                continue;
            }
            const timetable::RoomName& room = m_timetable.roomName(name);
            const bool isWhose = whose != nullptr && std::find(room.rooms.begin(), room.rooms.end(),
                                                               *whose) != room.rooms.end();
            names << (isWhose ? QString() : room.text.trimmed());
        }
        return listed(names);
    }

    const Occupancy& m_occupancy;
    const timetable::Timetable& m_timetable;
    const std::optional<Subject>& m_subject;
};

QString cornerOf(Week weeks)
{
    return weeks == Week::A   ? QStringLiteral("A")
           : weeks == Week::B ? QStringLiteral("B")
                              : QString();
}

/// A before what is held every week before B.
int rankOf(const WeekBox& box)
{
    return box.corner.isEmpty() ? 1 : box.corner == u"A" ? 0 : 2;
}

using BoxIterator = std::vector<WeekBox>::iterator;

/// Whether all boxes are of week A or B, and those of one week leave each other room.
bool takeTurns(BoxIterator first, BoxIterator last)
{
    for (BoxIterator box = first; box != last; ++box) {
        const bool clashes = std::any_of(std::next(box), last, [&box](const WeekBox& other) {
            return other.corner == box->corner && other.time.meets(box->time);
        });
        if (box->corner.isEmpty() || clashes) {
            return false;
        }
    }
    return true;
}

/// Gives lanes to boxes that overlap, one with another.
void layLanes(BoxIterator first, BoxIterator last)
{
    const bool byWeek = last - first > 1 && takeTurns(first, last);
    std::vector<timetable::MinuteOfDay> ends; ///< of what is in each lane so far
    for (BoxIterator box = first; box != last; ++box) {
        auto lane = std::find_if(ends.begin(), ends.end(), [&box](timetable::MinuteOfDay end) {
            return end <= box->time.start;
        });
        if (lane == ends.end()) {
            lane = ends.insert(lane, box->time.end());
        }
        *lane = box->time.end();
        box->lane = byWeek ? rankOf(*box) / 2 : static_cast<int>(lane - ends.begin());
    }
    const int lanes = byWeek ? 2 : static_cast<int>(ends.size());
    std::for_each(first, last, [lanes](WeekBox& box) { box.lanes = lanes; });
}

void layAllLanes(std::vector<WeekBox>& boxes)
{
    for (BoxIterator first = boxes.begin(); first != boxes.end();) {
        timetable::MinuteOfDay end = first->time.end();
        BoxIterator last = std::next(first);
        for (; last != boxes.end() && last->day == first->day && last->time.start < end; ++last) {
            end = std::max(end, last->time.end());
        }
        layLanes(first, last);
        first = last;
    }
}

} // namespace

std::vector<WeekBox> weekBoxes(const Occupancy& occupancy, const std::optional<Subject>& subject,
                               const std::vector<HoldingId>& items)
{
    std::vector<WeekBox> boxes;
    std::map<CourseKey, std::size_t> known;
    const RoomId* whose = subject ? std::get_if<RoomId>(&*subject) : nullptr;
    for (const HoldingId id : items) {
        const Holding& holding = occupancy.holding(id);
        if (!holding.time) {
            continue;
        }
        const auto [place, isNew] = known.try_emplace(keyOf(occupancy, holding), boxes.size());
        if (isNew) {
            WeekBox& box = boxes.emplace_back();
            box.day = holding.day;
            box.time = *holding.time;
            box.corner = cornerOf(holding.weeks);
            box.kind = occupancy.meetingOf(holding).kind;
            const std::vector<RoomId> rooms = occupancy.roomsOf(holding);
            box.room = whose != nullptr ? *whose : rooms.empty() ? RoomId() : rooms.front();
        }
        boxes[place->second].holdings.push_back(id);
    }
    const BoxLines lines(occupancy, subject);
    for (WeekBox& box : boxes) {
        box.lines = lines.of(box.holdings);
        box.shortText = lines.shortOf(box.holdings);
    }
    std::stable_sort(boxes.begin(), boxes.end(), [](const WeekBox& left, const WeekBox& right) {
        return std::tuple(left.day, left.time.start, rankOf(left)) <
               std::tuple(right.day, right.time.start, rankOf(right));
    });
    layAllLanes(boxes);
    return boxes;
}

QString boxWords(const WeekBox& box, const QString& dayTitle)
{
    QStringList when{dayTitle + u' ' + spanWords(box.time)};
    if (!box.corner.isEmpty()) {
        when << QStringLiteral("semaine ") + box.corner;
    }
    when << kindWords(box.kind);
    when.removeAll(QString());
    const QString separator = QStringLiteral(", ");
    return when.join(separator) +
           (box.lines.isEmpty() ? QString() : QStringLiteral(" : ") + box.lines.join(separator));
}

} // namespace answers
