#include "demo/Rooms.h"

#include "demo/Words.h"

#include <array>

namespace demo
{
namespace
{

// Positions in departmentNames().
constexpr int civil = 1;
constexpr int electrical = 2;
constexpr int mechanical = 3;
constexpr int computing = 4;
constexpr int physics = 6;
constexpr int life = 7;

/// Rooms that are alike: so many of each 64.
struct Family {
    QString name;
    int share;
    RoomKind kind;
    Lab lab;
    int zone;
    int department;
    std::vector<int> places; ///< Taken in turn
};

std::vector<Family> families()
{
    return {
        {"Amphi",
         8,
         RoomKind::Amphi,
         Lab::None,
         1,
         nobody,
         {400, 300, 250, 200, 180, 160, 150, 120}},
        {"Salle",
         30,
         RoomKind::Classroom,
         Lab::None,
         2,
         nobody,
         {40, 36, 30, 48, 32, 60, 36, 30, 40, 24}},
        {"Salle TP Info", 6, RoomKind::Practical, Lab::Computers, 3, computing, {36, 32, 30, 24}},
        {"Labo Physique", 3, RoomKind::Practical, Lab::Physics, 3, physics, {32, 28, 36}},
        {"Labo Chimie", 2, RoomKind::Practical, Lab::Chemistry, 3, physics, {30, 36}},
        {"Labo Biologie", 3, RoomKind::Practical, Lab::Biology, 3, life, {36, 32, 30}},
        {"Labo Automatique", 2, RoomKind::Practical, Lab::Automation, 3, electrical, {32, 36}},
        {"Labo Machines", 1, RoomKind::Practical, Lab::Machines, 4, electrical, {30}},
        {"Labo Matériaux", 1, RoomKind::Practical, Lab::Materials, 4, civil, {36, 30}},
        {"Labo Mécanique", 1, RoomKind::Practical, Lab::Mechanics, 3, mechanical, {30, 36}},
        {"Atelier", 3, RoomKind::Practical, Lab::Workshop, 4, mechanical, {36, 30, 32}},
        {"Salle Séminaire", 2, RoomKind::Seminar, Lab::None, 1, nobody, {16, 12, 20}},
        {"Salle de Conférences", 1, RoomKind::Amphi, Lab::None, 1, nobody, {140}},
        {"Salle de Langues", 1, RoomKind::Classroom, Lab::None, 4, nobody, {30, 24}},
    };
}

constexpr int shareTotal = 64;

// Class rooms stand in buildings of three floors with ten rooms each. The first building's rooms
// have no letter; the third floor belongs to the departments.
constexpr int roomsPerFloor = 10;
constexpr int roomsPerBuilding = 30;

Room classroom(const Family& family, int index)
{
    const int building = index / roomsPerBuilding;
    const int onSite = index % roomsPerBuilding;
    const int floor = onSite / roomsPerFloor + 1;
    const int number = floor * 100 + onSite % roomsPerFloor + 1;
    const QString letter = building == 0 ? QString() : QString(QChar('A' + building));
    Room room;
    room.name = QString("%1 %2%3").arg(family.name, letter).arg(number);
    room.kind = family.kind;
    room.zone = building == 0 ? family.zone : 4 + building;
    room.department = floor == 3 ? onSite % departmentCount : nobody;
    return room;
}

Room namedRoom(const Family& family, int index, int count)
{
    Room room;
    const bool named = family.name == "Amphi" && index < amphiNames().size();
    // Numbers of equal length, so that the rooms stand in the order of their numbers.
    const int digits = count > 9 ? 2 : 1;
    room.name =
        family.name + " " +
        (named ? amphiNames().at(index) : QString("%1").arg(index + 1, digits, 10, QChar('0')));
    room.kind = family.kind;
    room.lab = family.lab;
    room.zone = family.zone;
    room.department = family.department;
    return room;
}

} // namespace

std::vector<Room> makeRooms(int count)
{
    std::vector<Room> rooms;
    int shares = 0;
    for (const Family& family : families()) {
        const int before = count * shares / shareTotal;
        shares += family.share;
        const int here = count * shares / shareTotal - before;
        for (int index = 0; index < here; ++index) {
            const bool numbered = family.name == "Salle";
            Room room = numbered ? classroom(family, index) : namedRoom(family, index, here);
            room.places = family.places.at(static_cast<std::size_t>(index) % family.places.size());
            rooms.push_back(room);
        }
    }
    return rooms;
}

} // namespace demo
