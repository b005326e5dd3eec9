#pragma once

#include "lookup/RoomCell.h"
#include "plan/Marqueur.h"

#include <QDate>
#include <cstdint>
#include <vector>

namespace plan
{

/// The records behind the boxes of the plan, numbered from 1 in the order of the boxes. They grow
/// and never shrink: a click that comes late still finds the séance that its box stood for.
class MarkerRecords
{
public:
    /// The next refresh numbers its boxes from 1 again; the records stay until they are filled.
    void startAgain() { m_MarkerCount = 0; }
    /// Fills the next record from a box's cell. What the last toggle noted in it stays.
    /// Returns its number. Error: Overflow for a number in the cell beyond the 16-bit range.
    int fill(const lookup::RoomCell& cell, std::int32_t tranche, QDate day);

    /// Number of boxes drawn.
    [[nodiscard]] int MarkerCount() const { return m_MarkerCount; }
    /// The record of a box. Error: SubscriptOutOfRange for a number that was never given.
    [[nodiscard]] Marqueur& at(int marker);
    [[nodiscard]] const Marqueur& at(int marker) const;

private:
    [[nodiscard]] std::size_t position(int marker) const;

    std::vector<Marqueur> m_records;
    int m_MarkerCount = 0;
};

} // namespace plan
