#include "lookup/RoomQuestion.h"

#include "timetable/MeetingColumns.h"

namespace lookup
{

namespace column = timetable::column;

// Texts are joined piece by piece, never by numbered places: a room name may hold a "%1".

QStringList RoomQuestion::roomColumns(Table table)
{
    return table == Table::examen
               ? QStringList(column::kExamRooms.begin(), column::kExamRooms.end())
               : QStringList(column::kRooms.begin(), column::kRooms.end());
}

QString RoomQuestion::roomCondition(const db::SqlDialect& dialect) const
{
    const QString asked = dialect.literal(room);
    QString condition = QStringLiteral(" ( ") + column::kSalle + QStringLiteral(" = ") + asked;
    if (table != Table::examen && !room.isEmpty()) {
        for (const QString& further : roomColumns(table).mid(1)) {
            condition += QStringLiteral(" or ") + further + QStringLiteral(" =") + asked;
        }
    }
    return condition + QStringLiteral(" )");
}

QString RoomQuestion::tableName() const
{
    switch (table) {
    case Table::examen:
        return timetable::table::kExamen;
    case Table::ratrap:
        return timetable::table::kRatrap;
    case Table::emplois:
        break;
    }
    return timetable::table::kEmplois;
}

QString RoomQuestion::periodCondition(const db::SqlDialect& dialect) const
{
    const auto is = [](const QString& name, const QString& value) {
        return QStringLiteral(" and ") + name + QStringLiteral(" =") + value;
    };
    QString period = is(column::kTranche, tranche);
    switch (table) {
    case Table::examen:
        return period + is(column::kSemaine, examWeek);
    case Table::ratrap:
        return period + is(column::kDateX, dialect.dateLiteral(date));
    case Table::emplois:
        break;
    }
    return period;
}

QString RoomQuestion::slotCondition(const db::SqlDialect& dialect) const
{
    return u' ' + QString(column::kSeance) + QStringLiteral(" = ") + dialect.literal(seanceKey) +
           periodCondition(dialect);
}

db::NarrowQuery RoomQuestion::narrowQuery(const db::SqlDialect& dialect) const
{
    return {roomCondition(dialect), slotCondition(dialect)};
}

QString RoomQuestion::condition(const db::SqlDialect& dialect) const
{
    return narrowQuery(dialect).condition();
}

QString RoomQuestion::sql(const db::SqlDialect& dialect) const
{
    return QStringLiteral("Select * from ") + tableName() + QStringLiteral(" WHERE") +
           condition(dialect);
}

} // namespace lookup
