#pragma once

#include "support/TestDatabase.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <random>

namespace test
{

class Timetable;

/// A timetable database of odd rows: rooms and classes that differ only by case, accent or
/// trailing blank, quotes in names, nulls, empty texts, several rows in one cell, sometimes a
/// column or a whole table missing, some index or other, more rooms or classes than a mask column
/// holds. The same seed makes the same rows.
class RandomTimetable
{
public:
    RandomTimetable(TestDatabase& database, unsigned seed);

    /// The date that make-ups and absences are about.
    [[nodiscard]] static QDate date() { return {2026, 11, 16}; }
    /// Names as they are asked for.
    [[nodiscard]] const QStringList& rooms() const { return m_rooms; }

    /// A number from 0 to `count` - 1.
    [[nodiscard]] int pick(int count)
    {
        return static_cast<int>(m_engine() % static_cast<unsigned>(count));
    }
    [[nodiscard]] bool chance(int percent) { return pick(100) < percent; }

private:
    void addSchool(Timetable& tables) const;
    [[nodiscard]] QString anyOf(const QStringList& texts);
    [[nodiscard]] QStringList randomIndexes();
    [[nodiscard]] QString randomLoss(const QStringList& indexes);

    std::mt19937 m_engine;
    QStringList m_rooms;
    QStringList m_classes;
};

} // namespace test
