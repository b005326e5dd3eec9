#include "context/RoomPlaces.h"

#include "runtime/RunTimeError.h"
#include "timetable/SchoolColumns.h"

#include <algorithm>

namespace context
{
namespace
{

void refuseTooMany(qsizetype rooms)
{
    if (rooms > RoomPlaces::kMaxRooms) {
        runtime::RunTimeError error(runtime::ErrorNumber::SubscriptOutOfRange);
        error.addActivity(QStringLiteral("Lecture des places de %1 salles (%2 au plus)")
                              .arg(rooms)
                              .arg(RoomPlaces::kMaxRooms));
        throw error;
    }
}

std::int16_t placesOf(const db::Row& room)
{
    const db::Value places = room.field(timetable::column::kPlaces);
    if (places.isNull()) {
        return 0;
    }
    return runtime::during(
        QStringLiteral("Lecture des places de la salle « %1 » (valeur « %2 »)")
            .arg(room.field(timetable::column::kNom).toJoinedText(), places.toJoinedText()),
        [&] { return places.toInt16(); });
}

} // namespace

void RoomPlaces::read(const db::Recordset& rooms)
{
    refuseTooMany(rooms.recordCount());
    std::transform(rooms.rows().begin(), rooms.rows().end(), m_places.begin(), placesOf);
}

std::int16_t RoomPlaces::at(int index) const
{
    if (index < 0 || index >= kMaxRooms) {
        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
    }
    return m_places.at(static_cast<std::size_t>(index));
}

} // namespace context
