#include "files/RoomUseTable.h"

#include "answers/Words.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace files
{
namespace
{

using answers::UseOfRoom;
using answers::UseOfSlot;
using timetable::Timetable;

TableCell shareCell(double share)
{
    return {answers::percentWords(share), share};
}

TableCell textCell(const QString& text)
{
    return {text, std::nullopt};
}

TableCell numberCell(double number)
{
    return textCell(answers::numberWords(number));
}

/// A slot that is reckoned with has a readable start.
timetable::MinuteOfDay startOf(const Timetable& timetable, const UseOfSlot& use)
{
    return timetable.slot(use.day, use.slot)->start.value();
}

QString timesOf(const Timetable& timetable, const UseOfSlot& use)
{
    const auto start = startOf(timetable, use);
    const auto end = timetable.slot(use.day, use.slot)->end;
    return end && *end > start ? answers::spanWords(timetable::between(start, *end))
                               : answers::clockWords(start);
}

/// Rooms taken together.
struct Together {
    std::size_t rooms = 0;
    int places = 0;
    double held = 0;
    int slots = 0;    ///< of all rooms
    double seats = 0; ///< taken, in all slots
    double allSeats = 0;

    void add(const UseOfRoom& room)
    {
        const double seatsOfRoom = static_cast<double>(room.places) * room.slots;
        ++rooms;
        places += room.places;
        held += room.held;
        slots += room.slots;
        seats += room.seatsShare * seatsOfRoom;
        allSeats += seatsOfRoom;
    }
};

TableCell seatsCell(bool areKnown, double share)
{
    return areKnown ? shareCell(share) : textCell(QStringLiteral("inconnu"));
}

/// The columns of rooms taken together.
std::vector<TableColumn> columnsOfTogether()
{
    return {{QStringLiteral("Salles"), ColumnLook::Number},
            {QStringLiteral("Places"), ColumnLook::Number},
            {QStringLiteral("Créneaux tenus"), ColumnLook::Number},
            {QStringLiteral("sur"), ColumnLook::Number},
            {QStringLiteral("Taux"), ColumnLook::Bar},
            {QStringLiteral("Taux des sièges"), ColumnLook::Bar}};
}

TableRow rowOf(const Together& rooms, TableCell share, TableCell seats)
{
    return {textCell(QString::number(rooms.rooms)),
            textCell(QString::number(rooms.places)),
            numberCell(rooms.held),
            textCell(QString::number(rooms.slots)),
            std::move(share),
            std::move(seats)};
}

TableSection wholeSection(const answers::RoomUse& use)
{
    Together all;
    for (const UseOfRoom& room : use.rooms) {
        all.add(room);
    }
    return {QStringLiteral("Ensemble"),
            QStringLiteral("ensemble"),
            {},
            columnsOfTogether(),
            {rowOf(all, shareCell(use.share), seatsCell(use.areSeatsKnown, use.seatsShare))}};
}

/// Rooms without a zone come first.
TableSection zoneSection(const Timetable& timetable, const answers::RoomUse& use)
{
    std::map<std::optional<int>, Together> zones;
    for (const UseOfRoom& room : use.rooms) {
        zones[timetable.room(room.room).zone].add(room);
    }
    TableSection section{
        QStringLiteral("Par zone"), QStringLiteral("zone"), {}, {{QStringLiteral("Zone")}}, {}};
    for (const TableColumn& column : columnsOfTogether()) {
        section.columns.push_back(column);
    }
    for (const auto& [zone, rooms] : zones) {
        const double share = rooms.slots > 0 ? rooms.held / rooms.slots : 0;
        const TableCell seats = rooms.allSeats > 0
                                    ? seatsCell(use.areSeatsKnown, rooms.seats / rooms.allSeats)
                                    : TableCell();
        TableRow row = rowOf(rooms, shareCell(share), seats);
        row.insert(row.begin(),
                   textCell(zone ? QString::number(*zone) : QStringLiteral("sans zone")));
        section.rows.push_back(std::move(row));
    }
    return section;
}

TableSection roomSection(const Timetable& timetable, const answers::RoomUse& use)
{
    TableSection section{QStringLiteral("Par salle"),
                         QStringLiteral("salle"),
                         QStringLiteral("Aucune salle."),
                         {{QStringLiteral("Salle")},
                          {QStringLiteral("Zone")},
                          {QStringLiteral("Places"), ColumnLook::Number},
                          {QStringLiteral("Créneaux tenus"), ColumnLook::Number},
                          {QStringLiteral("sur"), ColumnLook::Number},
                          {QStringLiteral("Taux"), ColumnLook::Bar},
                          {QStringLiteral("Taux des sièges"), ColumnLook::Bar}},
                         {}};
    for (const UseOfRoom& each : use.rooms) {
        const timetable::Room& room = timetable.room(each.room);
        const TableCell seats =
            each.places > 0 ? seatsCell(use.areSeatsKnown, each.seatsShare) : TableCell();
        section.rows.push_back(
            {textCell(room.name), textCell(room.zone ? QString::number(*room.zone) : QString()),
             textCell(each.places > 0 ? QString::number(each.places) : QString()),
             numberCell(each.held), textCell(QString::number(each.slots)), shareCell(each.share),
             seats});
    }
    return section;
}

TableSection slotList(const Timetable& timetable, const answers::RoomUse& use)
{
    TableSection section{QStringLiteral("Par créneau"),
                         QStringLiteral("créneau"),
                         QStringLiteral("Aucun créneau."),
                         {{QStringLiteral("Jour")},
                          {QStringLiteral("Créneau"), ColumnLook::Number},
                          {QStringLiteral("Heure")},
                          {QStringLiteral("Salles tenues"), ColumnLook::Number},
                          {QStringLiteral("Salles"), ColumnLook::Number},
                          {QStringLiteral("Taux"), ColumnLook::Bar}},
                         {}};
    for (const UseOfSlot& slot : use.slots) {
        section.rows.push_back({textCell(dayTitle(slot.day)), textCell(QString::number(slot.slot)),
                                textCell(timesOf(timetable, slot)), numberCell(slot.held),
                                textCell(QString::number(slot.rooms)), shareCell(slot.share)});
    }
    return section;
}

/// The times that most days give the slot of that number; of several those of the first day.
QString usualTimes(const Timetable& timetable, const std::vector<UseOfSlot>& slots, int number)
{
    std::vector<std::pair<QString, int>> counts;
    for (const UseOfSlot& slot : slots) {
        if (slot.slot == number) {
            const QString times = timesOf(timetable, slot);
            const auto known = std::find_if(counts.begin(), counts.end(),
                                            [&](const auto& each) { return each.first == times; });
            if (known == counts.end()) {
                counts.emplace_back(times, 1);
            } else {
                ++known->second;
            }
        }
    }
    const auto most =
        std::max_element(counts.begin(), counts.end(), [](const auto& left, const auto& right) {
            return left.second < right.second;
        });
    return most == counts.end() ? QString() : most->first;
}

/// A slot of the grid, with its start where its times are not the usual ones; nothing where the day
/// has none of that number.
TableCell slotCell(const Timetable& timetable, const std::vector<UseOfSlot>& slots, int day,
                   int number, const QString& usualTimes)
{
    const auto slot = std::find_if(slots.begin(), slots.end(), [&](const UseOfSlot& each) {
        return each.day == day && each.slot == number;
    });
    if (slot == slots.end()) {
        return {};
    }
    TableCell cell = shareCell(slot->share);
    if (timesOf(timetable, *slot) != usualTimes) {
        cell.text += QStringLiteral(" à ") + answers::clockWords(startOf(timetable, *slot));
    }
    return cell;
}

/// The mean of some slots, of which there is one at least.
template <typename Wanted>
TableCell meanCell(const std::vector<UseOfSlot>& slots, Wanted isWanted)
{
    double held = 0;
    int rooms = 0;
    for (const UseOfSlot& slot : slots) {
        if (isWanted(slot)) {
            held += slot.held;
            rooms += slot.rooms;
        }
    }
    return shareCell(rooms > 0 ? held / rooms : 0);
}

/// Days across, slots down; at its edges the means.
TableSection slotGrid(const Timetable& timetable, const answers::RoomUse& use)
{
    TableSection section{QStringLiteral("Par jour et créneau : part des salles tenues"),
                         QStringLiteral("créneau"),
                         QStringLiteral("Aucun créneau."),
                         {{QStringLiteral("Créneau")}},
                         {}};
    std::set<int> days;
    std::set<int> numbers;
    for (const UseOfSlot& slot : use.slots) {
        days.insert(slot.day);
        numbers.insert(slot.slot);
    }
    for (const int day : days) {
        section.columns.push_back({dayTitle(day), ColumnLook::Shade});
    }
    section.columns.push_back({QStringLiteral("Moyenne"), ColumnLook::Shade});
    for (const int number : numbers) {
        const QString times = usualTimes(timetable, use.slots, number);
        TableRow row{textCell(QStringLiteral("%1 : %2").arg(number).arg(times))};
        for (const int day : days) {
            row.push_back(slotCell(timetable, use.slots, day, number, times));
        }
        row.push_back(
            meanCell(use.slots, [number](const UseOfSlot& slot) { return slot.slot == number; }));
        section.rows.push_back(std::move(row));
    }
    if (!numbers.empty()) {
        TableRow row{textCell(QStringLiteral("Moyenne"))};
        for (const int day : days) {
            row.push_back(
                meanCell(use.slots, [day](const UseOfSlot& slot) { return slot.day == day; }));
        }
        row.push_back(meanCell(use.slots, [](const UseOfSlot&) { return true; }));
        section.rows.push_back(std::move(row));
    }
    return section;
}

QStringList notesOf(const answers::RoomUse& use)
{
    QStringList notes{
        QStringLiteral("Créneaux : ceux du lundi au samedi dont le début se lit ; un jour qui n’en "
                       "a pas a ceux du lundi."),
        QStringLiteral("Créneaux tenus : ceux où un cours est dans la salle, ne serait-ce qu’une "
                       "minute. Dans la moyenne des semaines A et B, un créneau tenu une semaine "
                       "sur deux compte pour un demi. Un cours dont l’heure est inconnue n’en "
                       "tient aucun."),
        QStringLiteral("Taux : les créneaux tenus sur tous ceux de la semaine ; par jour et "
                       "créneau, les salles tenues sur toutes les salles. Un créneau qui a une "
                       "autre heure ce jour-là la dit."),
        QStringLiteral("Taux des sièges : les étudiants inscrits dans les classes présentes, "
                       "chaque classe une fois et au plus les places de la salle, sur les places "
                       "de tous les créneaux, tenus ou non. Une salle sans places n’en a pas."),
        QStringLiteral("Seuls les cours de la période comptent : ni rattrapages, ni examens.")};
    if (!use.areSeatsKnown) {
        notes << QStringLiteral("Les étudiants inscrits ne se laissent pas lire : le taux des "
                                "sièges est inconnu.");
    }
    return notes;
}

} // namespace

void addRoomUse(AnswerTable& table, const Timetable& timetable, const answers::RoomUse& use,
                TableUse tableUse)
{
    table.labelTitle = QStringLiteral("Vue");
    if (tableUse == TableUse::Page) {
        table.sections = {wholeSection(use), slotGrid(timetable, use), zoneSection(timetable, use),
                          roomSection(timetable, use)};
    } else {
        table.sections = {roomSection(timetable, use), zoneSection(timetable, use),
                          slotList(timetable, use), wholeSection(use)};
    }
    table.notes << notesOf(use);
}

} // namespace files
