#include "app/asking/SubjectChoice.h"

#include "answers/Whereabouts.h"

namespace app
{
namespace
{

/// The spellings of a list of names, each name once, by their order.
template <typename NameId>
QStringList namesOf(const timetable::Names<NameId>& names)
{
    QStringList all;
    for (int index = 0; index < names.count(); ++index) {
        const NameId id(index);
        if (names.group(id) == id && !names.text(id).isEmpty()) {
            all << names.text(id);
        }
    }
    all.sort(Qt::CaseInsensitive);
    return all;
}

QStringList roomsOf(const timetable::Timetable& timetable)
{
    QStringList all;
    for (int index = 0; index < timetable.roomCount(); ++index) {
        all << timetable.room(timetable::RoomId(index)).name;
    }
    return all;
}

} // namespace

QStringList subjectKinds()
{
    return {QStringLiteral("Salle"), QStringLiteral("Enseignant"), QStringLiteral("Classe"),
            QStringLiteral("Matière"), QStringLiteral("Toutes les salles")};
}

QStringList subjectNames(const timetable::Timetable& timetable, int kind)
{
    switch (kind) {
    case 1:
        return namesOf(timetable.teachers());
    case 2:
        return namesOf(timetable.classes());
    case 3:
        return namesOf(timetable.subjects());
    default:
        return roomsOf(timetable);
    }
}

std::optional<answers::Subject> chosenSubject(const timetable::Occupancy& occupancy, int kind,
                                              const QString& name)
{
    switch (kind) {
    case 1:
        return answers::teacherNamed(occupancy, name);
    case 2:
        return answers::classNamed(occupancy, name);
    case 3:
        return answers::subjectNamed(occupancy, name);
    default:
        return answers::roomNamed(occupancy, name);
    }
}

} // namespace app
