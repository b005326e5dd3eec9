#pragma once

#include "db/RowOrder.h"
#include "db/SqlDialect.h"

#include <QDate>
#include <QString>
#include <QStringList>

namespace lookup
{

/// "What occupies this room in this slot?", as one query on one of the three timetable tables.
struct RoomQuestion {
    enum class Table {
        emplois, ///< the weekly timetable
        ratrap,  ///< make-up classes of a date
        examen,  ///< exams of an exam week
    };

    Table table = Table::emplois;
    QString room;
    QString seanceKey;
    QString tranche;  ///< period number
    QString examWeek; ///< number of the exam week, exams only
    QDate date;       ///< make-ups only

    /// The columns in which `table` can name the room. A course can hold six rooms, an exam one.
    [[nodiscard]] static QStringList roomColumns(Table table);
    /// The condition on the room. A course can hold six rooms, an exam only `Salle`; without a
    /// room name the short form serves everywhere.
    [[nodiscard]] QString roomCondition(const db::SqlDialect& dialect) const;
    [[nodiscard]] QString tableName() const;
    /// The conditions that all questions of a page share; starts with " and".
    [[nodiscard]] QString periodCondition(const db::SqlDialect& dialect) const;
    /// The conditions on slot and period; starts with a blank.
    [[nodiscard]] QString slotCondition(const db::SqlDialect& dialect) const;
    /// All conditions: the room is the choice, slot and period are the point.
    [[nodiscard]] db::NarrowQuery narrowQuery(const db::SqlDialect& dialect) const;
    /// All conditions, as they stand after "WHERE".
    [[nodiscard]] QString condition(const db::SqlDialect& dialect) const;
    /// The whole statement. No order is asked for: the database's first row decides the box.
    [[nodiscard]] QString sql(const db::SqlDialect& dialect) const;

    friend bool operator==(const RoomQuestion&, const RoomQuestion&) = default;
};

} // namespace lookup
