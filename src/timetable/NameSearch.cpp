#include "timetable/NameSearch.h"

#include "timetable/EqualNames.h"
#include "timetable/NameInquiry.h"
#include "timetable/SchoolColumns.h"

namespace timetable
{
namespace
{

/// The question with that text added to it, answered.
NameInquiry asked(db::Connection& connection, NameQuestion question, const QString& text)
{
    question.texts.add(text);
    NameInquiry inquiry;
    inquiry.add(std::move(question));
    inquiry.ask([&connection](const std::vector<NameQuestion>& questions) {
        return askEqualNames(connection, questions);
    });
    return inquiry;
}

/// The rooms for which `textOf` gives an equal text; it may give none.
template <typename TextOf>
std::vector<RoomId> roomsWith(db::Connection& connection, const Timetable& timetable,
                              SqlName column, const QString& text, TextOf textOf)
{
    NameQuestion question{table::kSalle, column, {}};
    for (int index = 0; index < timetable.roomCount(); ++index) {
        if (const std::optional<QString> own = textOf(timetable.room(RoomId(index)))) {
            question.texts.add(*own);
        }
    }
    const NameInquiry inquiry = asked(connection, std::move(question), text);
    std::vector<RoomId> found;
    for (int index = 0; index < timetable.roomCount(); ++index) {
        const std::optional<QString> own = textOf(timetable.room(RoomId(index)));
        if (own && inquiry.groupOf(0, *own) == inquiry.groupOf(0, text)) {
            found.emplace_back(index);
        }
    }
    return found;
}

template <typename NameId>
NameId groupOf(db::Connection& connection, const Names<NameId>& names, const QString& text)
{
    const NameId exact = names.find(text);
    if (!exact.isNone() || names.question() == nullptr) {
        return names.group(exact);
    }
    // The names come before the text: a group that holds a name begins with one.
    const NameInquiry inquiry = asked(connection, *names.question(), text);
    const int first = inquiry.groupOf(0, text);
    return first < names.count() ? names.group(NameId(first)) : NameId();
}

} // namespace

std::vector<RoomId> findRooms(db::Connection& connection, const Timetable& timetable,
                              const QString& name)
{
    return roomsWith(connection, timetable, column::kNom, name,
                     [](const Room& room) { return std::optional(room.name); });
}

std::vector<RoomId> findRoomsOf(db::Connection& connection, const Timetable& timetable,
                                const QString& department)
{
    return roomsWith(connection, timetable, column::kDepartement, department,
                     [](const Room& room) { return room.department; });
}

TeacherId findTeacher(db::Connection& connection, const Timetable& timetable, const QString& name)
{
    return groupOf(connection, timetable.teachers(), name);
}

ClassId findClass(db::Connection& connection, const Timetable& timetable, const QString& name)
{
    return groupOf(connection, timetable.classes(), name);
}

SubjectId findSubject(db::Connection& connection, const Timetable& timetable, const QString& name)
{
    return groupOf(connection, timetable.subjects(), name);
}

} // namespace timetable
