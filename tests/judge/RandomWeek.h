#pragma once

#include "judge/RandomTimetable.h"

#include <QDate>
#include <QString>
#include <vector>

namespace test
{

/// A random timetable whose rows are held at odd times, too: on every day of the week, in slots
/// that the day does not have, from texts that are no time, for lengths that are none, in exam
/// weeks within the period, as make-ups of a date that their key does not name. Rooms are of
/// several zones, departments and sizes; some rows are gone, so that there are free rooms. The same
/// seed makes the same rows.
class RandomWeek
{
public:
    RandomWeek(TestDatabase& database, unsigned seed);

    [[nodiscard]] RandomTimetable& random() { return m_random; }
    /// A date near those of the make-ups and exams.
    [[nodiscard]] QDate anyDate();
    [[nodiscard]] static const std::vector<QString>& departments();
    /// Whether the program starts on it: not where a time of Monday's slots is none.
    [[nodiscard]] bool isReadAtStart() const { return m_isReadAtStart; }

private:
    [[nodiscard]] QString anyOf(const std::vector<QString>& literals);
    [[nodiscard]] QString anyKey();
    [[nodiscard]] QString times();
    void addCalendar(TestDatabase& database);
    void addRooms(TestDatabase& database);
    void addSlots(TestDatabase& database);
    void moveRows(TestDatabase& database);

    RandomTimetable m_random;
    bool m_isReadAtStart = true;
};

} // namespace test
