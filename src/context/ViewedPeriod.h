#pragma once

#include "form/PlanForm.h"
#include "timetable/Period.h"

#include <QDate>
#include <cstdint>

namespace context
{

/// Which week of which period the plan shows. The captions of `Label11`, `Label4` and `Semn` are
/// written from it, never read back.
struct ViewedPeriod {
    /// First day (Monday) of the shown week; in exam mode the first day of the chosen exam week.
    QDate CurrentDate;
    /// Number of the chosen period, 0 for none.
    std::int32_t TrancheIdent = 0;
    /// The number that `Label11` shows: the chosen period's, or the one that the settings ask for
    /// where no period bears it.
    std::int32_t labelledIdent = 0;
    timetable::ExamWeeks examWeeks; ///< not known until they are asked for
    /// First and last day that the header tells: the period's, in exam mode the exam week's. No
    /// valid date where none was read, or a null.
    QDate firstToldDay;
    QDate lastToldDay;
    /// The chosen exam week: 1, 2, or 3 for the control week. `Semn` shows it.
    int examWeek = 1;

    /// Tells these days in the header, too.
    void tellDays(form::PlanForm& form, QDate first, QDate last);
    /// First day of the chosen exam week; invalid where it is not known.
    [[nodiscard]] QDate examWeekStart() const;
    /// The shown date: as many days after `CurrentDate` as the day list says. The list does not
    /// hold Sunday; then it is the picked date.
    [[nodiscard]] QDate shownDate(const form::PlanForm& form) const;
};

/// Index of the date in the day list: 0 for a Monday, 5 for a Saturday, -1 for a Sunday, which
/// the list does not hold.
[[nodiscard]] int dayListIndex(QDate date);

} // namespace context
