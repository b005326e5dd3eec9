#pragma once

#include "answers/Agenda.h"
#include "timetable/Occupancy.h"

#include <QString>
#include <map>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace files
{

/// Gives the entries of a calendar the names (UID) by which a calendar that has them already knows
/// them again: written anew, an entry takes the place of the old one.
///
/// A name stands for a row on a date: its table, period, slot key, class and part, and the exam
/// week or the make-up's date. What may be mended in a row (room, teachers, subject, time) is no
/// part of it, nor are other rows, nor whose calendar it is. Rows that all this does not tell apart
/// are counted, by what they say otherwise. An entry of several rows bears the least of their
/// names.
class IcsNames
{
public:
    /// The occupancy must outlive the names.
    explicit IcsNames(const timetable::Occupancy& occupancy);

    [[nodiscard]] QString of(const answers::AgendaEntry& entry);

private:
    /// Table, slot key, class, exam week, date.
    using Key =
        std::tuple<timetable::MeetingKind, timetable::TextId, timetable::ClassId, int, QDate>;

    [[nodiscard]] static Key keyOf(const timetable::Meeting& meeting);
    [[nodiscard]] QString rowName(timetable::HoldingId id);
    [[nodiscard]] int countOf(const timetable::Holding& holding) const;
    [[nodiscard]] QString contents(const timetable::Meeting& meeting) const;

    const timetable::Occupancy& m_occupancy;
    std::map<Key, std::vector<int>> m_rows; ///< positions of meetings, by their contents
    std::unordered_map<timetable::HoldingId, QString> m_names;
};

} // namespace files
