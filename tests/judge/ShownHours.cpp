#include "judge/ShownHours.h"

#include "lookup/OccupancyLookup.h"
#include "runtime/FrenchDate.h"

namespace test
{
namespace
{

using Table = lookup::RoomQuestion::Table;

constexpr int kSlots = 6; ///< the last ones are in no day's list

lookup::View viewOf(Table table, const AskedDay& day, int examWeek)
{
    lookup::View view;
    view.day.exam = view.options.exam = table == Table::examen;
    view.day.examWeek = examWeek;
    view.day.date = day.date;
    view.options.showClass = view.options.showTeachers = view.options.showSubject = true;
    // An empty text would pass for a free room.
    view.options.separator = QStringLiteral("|");
    view.options.everyWeek = day.week == '*';
    view.options.showsWeekA = day.week == 'A';
    view.options.showsWeekB = day.week == 'B';
    return view;
}

} // namespace

ShownHours::ShownHours(const TestDatabase& tables, int period, const MinuteBook& book)
    : m_database(tables.usesMySql()), m_rows(m_database), m_period(QString::number(period)),
      m_book(book)
{
    m_database.open(tables.connectString());
}

void ShownHours::add(Boxes& boxes, Table table, const QString& room, const AskedDay& day, int slot,
                     int examWeek)
{
    const QString key =
        runtime::frenchDayNames().at(static_cast<std::size_t>(day.day)) + QString::number(slot);
    lookup::OccupancyLookup lookup(m_rows, viewOf(table, day, examWeek));
    const auto cell = lookup.RoomOccupancy(room, key, m_period, table == Table::ratrap);
    if (cell && !cell->CellText.isEmpty()) {
        const auto own = MinuteBook::timeOf(cell->CellStart);
        boxes.push_back({cell->CellText, own ? own : m_book.slotStart(day.day, slot),
                         MinuteBook::lengthOf(cell->CellDuration)});
        ++m_count;
    }
}

void ShownHours::addExams(Boxes& boxes, const QString& room, const AskedDay& day, int slot)
{
    for (int week = 1; week <= 3; ++week) {
        if (m_book.examMonday(week).addDays(day.day) == day.date) {
            add(boxes, Table::examen, room, day, slot, week);
        }
    }
}

const ShownHours::Boxes& ShownHours::boxes(const QString& room, const AskedDay& day)
{
    const QString about = room + QStringLiteral("|") + QString::number(day.day) +
                          day.date.toString(Qt::ISODate) + QLatin1Char(day.week);
    auto found = m_boxes.find(about);
    if (found == m_boxes.end()) {
        Boxes boxes;
        const bool isTaught = !day.date.isValid() || m_book.teaches(day.date);
        for (int slot = 1; slot <= kSlots; ++slot) {
            if (isTaught) {
                add(boxes, Table::emplois, room, day, slot, 0);
            }
            if (day.date.isValid()) {
                add(boxes, Table::ratrap, room, day, slot, 0);
                addExams(boxes, room, day, slot);
            }
        }
        found = m_boxes.insert(about, boxes);
    }
    return *found;
}

QString ShownHours::textAt(const QString& room, const AskedDay& day, int from, int to)
{
    constexpr int sunday = 6; // the plan's list of days ends before it
    if (day.day == sunday || !m_database.dialect().holds(room)) {
        return {};
    }
    for (const Box& box : boxes(room, day)) {
        if (!box.start || (*box.start < to && from < *box.start + box.minutes)) {
            return box.text;
        }
    }
    return {};
}

} // namespace test
