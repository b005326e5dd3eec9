#include "lookup/RoomQuestion.h"

namespace lookup
{

// Texts are joined piece by piece, never by numbered places: a room name may hold a "%1".

QStringList RoomQuestion::roomColumns(Table table)
{
    if (table == Table::examen) {
        return {QStringLiteral("Salle")};
    }
    return {QStringLiteral("Salle"),  QStringLiteral("XSalle"),  QStringLiteral("YSalle"),
            QStringLiteral("SalleB"), QStringLiteral("XSalleB"), QStringLiteral("YSalleB")};
}

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

QString RoomQuestion::tableName() const
{
    switch (table) {
    case Table::examen:
        return QStringLiteral("examen");
    case Table::ratrap:
        return QStringLiteral("ratrap");
    case Table::emplois:
        break;
    }
    return QStringLiteral("emplois");
}

QString RoomQuestion::periodCondition(const db::SqlDialect& dialect) const
{
    QString period = QStringLiteral(" and Tranche =") + tranche;
    switch (table) {
    case Table::examen:
        return period + QStringLiteral(" and Semaine =") + examWeek;
    case Table::ratrap:
        return period + QStringLiteral(" and DateX =") + dialect.dateLiteral(date);
    case Table::emplois:
        break;
    }
    return period;
}

QString RoomQuestion::slotCondition(const db::SqlDialect& dialect) const
{
    return QStringLiteral(" Seance = '") + seanceKey + u'\'' + periodCondition(dialect);
}

QString RoomQuestion::condition(const db::SqlDialect& dialect) const
{
    return roomCondition() + QStringLiteral(" and") + slotCondition(dialect);
}

QString RoomQuestion::sql(const db::SqlDialect& dialect) const
{
    return QStringLiteral("Select * from ") + tableName() + QStringLiteral(" WHERE") +
           condition(dialect);
}

} // namespace lookup
