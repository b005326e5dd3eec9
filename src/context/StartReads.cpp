#include "context/StartReads.h"

#include "db/DatabaseError.h"
#include "db/MatchMasks.h"
#include "timetable/MeetingColumns.h"

#include <utility>

namespace context
{

int StartReads::roomCount(const QString& zone)
{
    if (!m_plain) {
        m_rooms.reset();
        m_rooms = roomsByName(zone);
        m_zone = zone;
        return m_rooms->recordCount();
    }
    return m_database.count(zone != u"0"
                                ? QStringLiteral("select * from salle where Zone=%1").arg(zone)
                                : QStringLiteral("select * from salle  "));
}

db::Recordset StartReads::roomsByName(const QString& zone)
{
    if (m_rooms && m_zone == zone) {
        return *m_rooms;
    }
    return m_database.read(
        zone != u"0" ? QStringLiteral("select * from salle where Zone=%1  order by Nom ").arg(zone)
                     : QStringLiteral("select * from salle order by Nom "));
}

std::optional<db::Recordset> StartReads::takeAllRooms()
{
    return m_zone == u"0" ? std::exchange(m_rooms, std::nullopt) : std::nullopt;
}

db::Recordset StartReads::slotWithKey(const QString& key)
{
    return m_database.read(QStringLiteral("select * from seances  where Seance=") +
                           m_database.dialect().literal(key));
}

std::vector<std::optional<db::Recordset>> StartReads::slotsAtOnce(const QStringList& keys)
{
    std::vector<std::optional<db::Recordset>> found(static_cast<std::size_t>(keys.size()));
    db::skipWhenRefused([&] {
        const db::MatchMasks masks(timetable::column::kSeance, keys, m_database.dialect());
        const db::Recordset all = m_database.read(
            QStringLiteral("select ") + masks.selectList(QStringLiteral("tempora_k")) +
            QStringLiteral(", seances.* from seances where ") + masks.anyOf());
        std::vector<std::vector<db::Row>> rowsOf(found.size());
        for (const db::Row& row : all.rows()) {
            for (const int key : masks.matches(row, 0)) {
                rowsOf.at(static_cast<std::size_t>(key)).push_back(row);
            }
        }
        for (std::size_t key = 0; key < found.size(); ++key) {
            // Of several rows the first counts, and their order is the plain statement's.
            if (rowsOf[key].size() <= 1) {
                found[key] = db::Recordset(all.columns(), std::move(rowsOf[key]));
            }
        }
    });
    return found;
}

std::vector<db::Recordset> StartReads::slotsWithKeys(const QStringList& keys)
{
    std::vector<std::optional<db::Recordset>> known(static_cast<std::size_t>(keys.size()));
    if (!m_plain) {
        known = slotsAtOnce(keys);
    }
    std::vector<db::Recordset> slots;
    slots.reserve(known.size());
    for (std::size_t key = 0; key < known.size(); ++key) {
        slots.push_back(known[key] ? *known[key] : slotWithKey(keys[static_cast<qsizetype>(key)]));
    }
    return slots;
}

} // namespace context
