#pragma once

#include "answers/WeekOf.h"
#include "timetable/Occupancy.h"
#include "timetable/WeekRhythm.h"

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

namespace answers
{

/// One appointment: a course on one of its dates, a make-up or an exam.
struct AgendaEntry {
    QDate date;
    std::optional<timetable::TimeSpan> time; ///< nothing where the start is not known
    /// Several where one course is held for several classes: by class, and by id where a class is
    /// there twice. Never empty.
    std::vector<timetable::HoldingId> holdings;

    friend bool operator==(const AgendaEntry&, const AgendaEntry&) = default;
};

/// Why nobody can tell the dates.
enum class NoAgenda {
    PeriodUnread,  ///< the period's first or last day cannot be read
    PeriodTooLong, ///< it lasts more than ten years: one of its days is mistyped
    WeeksUnknown,  ///< it takes the weeks A and B, and nobody knows which is which
};

/// What somebody or something has on the dates of a period.
struct Agenda {
    std::optional<NoAgenda> reason;   ///< nothing where the dates are known
    std::vector<AgendaEntry> entries; ///< none where there is a reason
};

/// All real dates of the period: courses on their day of the week from its first to its last day,
/// both included, in the weeks in which they are held; make-ups and exams on their dates, wherever
/// these lie. By date, start (the unknown ones first), room and class.
///
/// With a date only the days of its week, Monday to Saturday; it lies in the week asked for, or
/// else the one that the rhythm tells. Without a date, week A or B means the dates in such weeks.
/// What nobody needs to know is not asked for: the rhythm only where something takes place in A or
/// B alone, the period's days only without a date.
///
/// Rows are one entry when they begin together on a date and share kind, week, rooms, first teacher
/// and subject; it lasts as long as the longest of them. What has no known start stays alone.
[[nodiscard]] Agenda agendaOf(const timetable::Occupancy& occupancy, const Subject& subject,
                              const AskedWeek& week, const timetable::WeekRhythm& rhythm);

/// The reason as a sentence in French, with what would mend it.
[[nodiscard]] QString agendaSentence(const timetable::Timetable& timetable, NoAgenda reason);

} // namespace answers
