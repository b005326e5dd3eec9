#include "plan/GroupCounter.h"

#include "runtime/Numbers.h"

namespace plan
{

std::optional<GroupCounter> groupCounterOf(const lookup::RoomCell& cell, const QString& places,
                                           bool atRight)
{
    const double seats = runtime::leadingNumber(places);
    const bool overfull = seats < cell.CellStudents || seats < cell.CellCapacity;
    if (cell.CellRowCount == 1 && !overfull) {
        return std::nullopt;
    }
    GroupCounter group;
    group.counter = QString::number(cell.CellRowCount);
    group.sizeLabel = QString::number(cell.CellStudents);
    group.details = cell.CellClasses;
    group.overfull = overfull;
    group.atRight = atRight;
    if (overfull) {
        const int size = cell.CellStudents != 0 ? cell.CellStudents : cell.CellCapacity;
        group.sizeLabel = QStringLiteral("Dépassement ") + QString::number(size) + u'/' + places;
    }
    return group;
}

} // namespace plan
