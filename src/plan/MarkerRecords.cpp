#include "plan/MarkerRecords.h"

#include "plan/CellNumbers.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

namespace plan
{

int MarkerRecords::fill(const lookup::RoomCell& cell, std::int32_t tranche, QDate day)
{
    ++m_MarkerCount;
    if (m_records.size() < static_cast<std::size_t>(m_MarkerCount)) {
        m_records.resize(static_cast<std::size_t>(m_MarkerCount));
    }
    Marqueur& record = at(m_MarkerCount);
    record.Classes = cell.CellClassList;
    record.Seance = cell.CellSeance;
    record.Tranche =
        cellNumber("du numéro de période", QString::number(tranche), runtime::nearestInt16);
    record.Matiere = cell.CellSubject;
    record.Salle = cell.CellRoom;
    record.Enseignant1 = cell.CellTeacher;
    record.TypeS1 = cellNumber("du type de séance", cell.CellTypeA, runtime::nearestInt16);
    record.TypeS3B = cellNumber("du type de séance", cell.CellTypeB, runtime::nearestInt16);
    record.Duree = cellNumber("de la durée", cell.CellDuration, runtime::nearestInt16);
    record.Commune = cell.CellCommon;
    record.Debut = cell.CellStart;
    record.Jour = day;
    record.Choix = 1;
    record.newnature = cell.CellWeekNature;
    return m_MarkerCount;
}

std::size_t MarkerRecords::position(int marker) const
{
    if (marker < 1 || marker > static_cast<int>(m_records.size())) {
        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(marker - 1);
}

Marqueur& MarkerRecords::at(int marker)
{
    return m_records[position(marker)];
}

const Marqueur& MarkerRecords::at(int marker) const
{
    return m_records[position(marker)];
}

} // namespace plan
