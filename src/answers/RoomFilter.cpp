#include "answers/RoomFilter.h"

namespace answers
{

bool RoomFilter::holds(const timetable::Room& room) const
{
    return (!zone || room.zone == zone) && (!department || room.department == department);
}

} // namespace answers
