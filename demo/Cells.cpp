#include "demo/Cells.h"

#include "demo/WeekTime.h"

#include <array>

namespace demo
{
namespace
{

// How many of a hundred rooms are occupied in a slot.
using Percents = std::array<int, slotCount>;
constexpr Percents weekday = {76, 90, 84, 68, 80, 70, 44, 18};
constexpr Percents friday = {76, 92, 84, 62, 76, 58, 30, 8};
constexpr Percents saturday = {46, 52, 40, 14, 8, 0, 0, 0};

int percentOf(RoomKind kind, int day, int slot)
{
    constexpr int fridayIndex = 4;
    constexpr int lastLabSlot = 6;
    if (kind == RoomKind::Practical && slot > lastLabSlot) {
        return 0; // nobody looks after the equipment in the evening
    }
    const Percents& percents = day < fridayIndex ? weekday : day == fridayIndex ? friday : saturday;
    const int percent = percents.at(static_cast<std::size_t>(slot));
    // Séances of two slots fill the cells behind them, and laboratories have many.
    return kind == RoomKind::Practical ? percent * 8 / 10 : percent;
}

std::vector<int> roomsOfKind(const Faculty& faculty, RoomKind kind)
{
    std::vector<int> rooms;
    for (int index = 0; index < static_cast<int>(faculty.rooms.size()); ++index) {
        if (faculty.room(index).kind == kind) {
            rooms.push_back(index);
        }
    }
    return rooms;
}

std::vector<Cell> cellsOfKind(const Faculty& faculty, RoomKind kind, Draw& draw)
{
    std::vector<int> rooms = roomsOfKind(faculty, kind);
    std::vector<Cell> cells;
    for (int day = 0; day < dayCount; ++day) {
        for (int slot = 0; slot < slotCount; ++slot) {
            draw.shuffle(rooms);
            const int hundredths =
                static_cast<int>(rooms.size()) * percentOf(kind, day, slot) + draw.below(100);
            for (int index = 0; index < hundredths / 100; ++index) {
                cells.push_back({rooms.at(static_cast<std::size_t>(index)), day, slot});
            }
        }
    }
    draw.shuffle(cells);
    return cells;
}

} // namespace

std::vector<Cell> chooseCells(const Faculty& faculty, Draw& draw)
{
    std::vector<Cell> cells;
    for (const RoomKind kind :
         {RoomKind::Amphi, RoomKind::Practical, RoomKind::Classroom, RoomKind::Seminar}) {
        const std::vector<Cell> some = cellsOfKind(faculty, kind, draw);
        cells.insert(cells.end(), some.begin(), some.end());
    }
    return cells;
}

} // namespace demo
