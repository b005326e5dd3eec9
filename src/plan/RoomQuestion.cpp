#include "plan/RoomQuestion.h"

namespace plan
{

// Texts are joined piece by piece, never by numbered places: a room name may hold a "%1".

QString RoomQuestion::roomCondition() const
{
    if (table == Table::examen || room.isEmpty()) {
        return QStringLiteral(" ( Salle = '") + room + QStringLiteral("' )");
    }
    return QStringLiteral(" ( Salle = '") + room + QStringLiteral("' or XSalle ='") + room +
           QStringLiteral("' or YSalle ='") + room + QStringLiteral("' or SalleB ='") + room +
           QStringLiteral("' or XSalleB ='") + room + QStringLiteral("' or YSalleB ='") + room +
           QStringLiteral("' )");
}

QString RoomQuestion::sql(const db::SqlDialect& dialect) const
{
    const QString slot = roomCondition() + QStringLiteral(" and Seance = '") + seanceKey +
                         QStringLiteral("' and Tranche =") + tranche;
    switch (table) {
    case Table::examen:
        return QStringLiteral("Select * from examen WHERE") + slot +
               QStringLiteral(" and Semaine =") + examWeek;
    case Table::ratrap:
        return QStringLiteral("Select * from ratrap WHERE") + slot +
               QStringLiteral(" and DateX =") + dialect.dateLiteral(date);
    case Table::emplois:
        break;
    }
    return QStringLiteral("Select * from emplois WHERE") + slot;
}

} // namespace plan
