#include "plan/WalkCheck.h"

#include "plan/JoinedQueries.h"
#include "runtime/RunTimeError.h"

#include <QSet>
#include <algorithm>

namespace plan
{
namespace
{

/// How the database would walk for each of the conditions on the table. A column that all of them
/// name but those of a slot is selected: an index of slots must not seem to hold all that is asked.
db::AccessPaths pathsOf(db::Connection& connection, const RoomQuestion& page,
                        const QStringList& conditions)
{
    const QString select =
        QStringLiteral("Select Salle from ") + page.tableName() + QStringLiteral(" WHERE");
    db::AccessPaths paths;
    runtime::skipOnError([&] {
        paths = connection.accessPaths(select +
                                       conditions.join(QStringLiteral(" union all ") + select));
    });
    const bool complete = paths && static_cast<qsizetype>(paths->size()) == conditions.size();
    return complete ? paths : std::nullopt;
}

bool areOneWalk(const std::vector<db::AccessPath>& paths)
{
    return std::all_of(paths.begin(), paths.end(), [&paths](const db::AccessPath& path) {
        return path.walk == paths.front().walk;
    });
}

/// Rooms that are alike in this differ in plain letters only: their questions are of one form, and
/// what the table's character set lacks of one name it lacks of the other.
QString kindOf(const QString& room)
{
    if (room.isEmpty()) {
        return QStringLiteral("-");
    }
    constexpr char16_t firstBeyondAscii = 0x80;
    std::set<QChar> special;
    for (const QChar character : room) {
        if (character >= firstBeyondAscii) {
            special.insert(character);
        }
    }
    QString kind;
    for (const QChar character : special) {
        kind += character;
    }
    return kind;
}

} // namespace

bool WalkCheck::isSameWalk(db::Database& database, const QString& pageCondition,
                           const std::vector<RoomQuestion>& cells)
{
    // The embedded database does not tell whether there is another way.
    if (database.Db().isEmbedded() || m_severalWays.contains(cells.front().table)) {
        return isSameForEach(database, pageCondition, cells);
    }
    return isSameForSamples(database, pageCondition, cells);
}

bool WalkCheck::isSameForEach(db::Database& database, const QString& pageCondition,
                              const std::vector<RoomQuestion>& cells) const
{
    if (static_cast<qsizetype>(cells.size()) >= kMostJoined) {
        return false;
    }
    QStringList conditions{pageCondition};
    for (const RoomQuestion& cell : cells) {
        conditions << cell.condition(database.dialect());
    }
    const db::AccessPaths paths = pathsOf(database.Db(), cells.front(), conditions);
    return paths && areOneWalk(*paths);
}

/// Explaining a hundred questions takes a server as long as answering them. Where it knows one way
/// only, and walks it for a slot without asking for the room, then the room cannot change the way:
/// it is enough to ask about each slot, and about one room of each kind.
bool WalkCheck::isSameForSamples(db::Database& database, const QString& pageCondition,
                                 const std::vector<RoomQuestion>& cells)
{
    QStringList conditions{pageCondition};
    QSet<QString> slotsAsked;
    QSet<QString> kindsAsked;
    for (const RoomQuestion& cell : cells) {
        if (!slotsAsked.contains(cell.seanceKey)) {
            slotsAsked.insert(cell.seanceKey);
            conditions << cell.slotCondition(database.dialect());
        }
        const QString kind = kindOf(cell.room);
        if (!kindsAsked.contains(kind)) {
            kindsAsked.insert(kind);
            conditions << cell.condition(database.dialect());
        }
    }
    const db::AccessPaths paths = pathsOf(database.Db(), cells.front(), conditions);
    if (!paths) {
        return false;
    }
    const bool oneWay = std::all_of(paths->begin(), paths->end(),
                                    [](const db::AccessPath& path) { return path.isOnlyWay; });
    if (!oneWay) {
        m_severalWays.insert(cells.front().table); // from the next page on each cell is asked about
    }
    return oneWay && areOneWalk(*paths);
}

} // namespace plan
