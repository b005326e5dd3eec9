#pragma once

#include "answers/HoldingFacts.h"

#include <QDate>
#include <vector>

namespace answers
{

/// What a room, teacher or class has on one day, each list by start.
struct DiaryDay {
    int day = timetable::kNoDay;               ///< 0 to 6; a date's own
    QDate date;                                ///< no valid date for a day of the teaching weeks
    std::vector<timetable::HoldingId> courses; ///< on a date only where it has make-ups as well
    std::vector<timetable::HoldingId> makeUps;
    std::vector<timetable::HoldingId> exams;
};

/// All holdings whose time is known, in the order of a diary. Sorted once for all diaries: whoever
/// deals them out one by one gets lists that have this order.
[[nodiscard]] std::vector<timetable::HoldingId> inDiaryOrder(const timetable::Occupancy& occupancy);

/// Puts holdings into days: those of the teaching weeks, then the dates of make-ups and exams. Days
/// without anything are left out. Requires: some of `inDiaryOrder`, in this order, each once.
/// `facts` are those of the occupancy.
[[nodiscard]] std::vector<DiaryDay> diaryOf(const timetable::Occupancy& occupancy,
                                            const std::vector<HoldingFacts>& facts,
                                            const std::vector<timetable::HoldingId>& holdings);

/// The order of a diary: the teaching weeks by day, then dates; by start; as they were read.
[[nodiscard]] bool comesBefore(const timetable::Occupancy& occupancy, timetable::HoldingId left,
                               timetable::HoldingId right);

} // namespace answers
