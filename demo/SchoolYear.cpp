#include "demo/SchoolYear.h"

#include <algorithm>

namespace demo
{
namespace
{

enum class Term { Autumn, Spring, Summer };

/// A term of the academic year that begins in September of `year`.
struct TermOfYear {
    int year;
    Term term;
};

QDate saturdayOnOrBefore(QDate date)
{
    return date.addDays(-((date.dayOfWeek() + 1) % 7));
}

TermOfYear termOf(QDate date)
{
    const int year = date.year();
    if (date >= QDate(year, 9, 1)) {
        return {year, Term::Autumn};
    }
    if (date >= QDate(year, 6, 24)) {
        return {year - 1, Term::Summer};
    }
    if (date >= QDate(year, 1, 26)) {
        return {year - 1, Term::Spring};
    }
    return {year - 1, Term::Autumn};
}

/// Exams follow the last day; the control week stands in the middle of the period.
void setLastDay(Period& period, QDate last)
{
    period.last = last;
    period.examWeek1 = mondayOf(last).addDays(7);
    period.examWeek2 = period.examWeek1.addDays(7);
    constexpr int week = 7;
    period.controlWeek = mondayOf(period.first.addDays(period.first.daysTo(last) / 2 + week));
}

/// The last days leave two weeks for exams before the next term begins.
Period regularPeriod(TermOfYear when)
{
    Period period;
    period.academicYear = when.year;
    period.semester = when.term == Term::Autumn ? 1 : 2;
    const int next = when.year + 1;
    const QString years = QString("%1-%2").arg(when.year).arg(next);
    switch (when.term) {
    case Term::Autumn:
        period.name = "Semestre 1 " + years;
        period.first = mondayOf(QDate(when.year, 9, 1));
        setLastDay(period, saturdayOnOrBefore(QDate(next, 1, 9)));
        break;
    case Term::Spring:
        period.name = "Semestre 2 " + years;
        period.first = mondayOf(QDate(next, 1, 26));
        setLastDay(period, saturdayOnOrBefore(QDate(next, 6, 6)));
        break;
    case Term::Summer:
        period.name = QString("Session d’été %1").arg(next);
        period.first = mondayOf(QDate(next, 6, 24));
        setLastDay(period, saturdayOnOrBefore(QDate(next, 8, 8)));
        break;
    }
    return period;
}

/// The semesters in a row, without the summer sessions: an even number is an autumn.
TermOfYear semester(int number)
{
    return {number / 2, number % 2 == 0 ? Term::Autumn : Term::Spring};
}

/// The first semester after the term.
int nextSemester(TermOfYear when)
{
    return 2 * when.year + (when.term == Term::Autumn ? 1 : 2);
}

} // namespace

QDate mondayOf(QDate date)
{
    return date.addDays(1 - date.dayOfWeek());
}

std::vector<Period> periodsAround(QDate reference, int count)
{
    const TermOfYear current = termOf(reference);
    std::vector<Period> periods = {regularPeriod(current)};
    // A date in the exam weeks or the holidays still belongs to a period that goes on.
    const QDate lastNeeded = mondayOf(reference).addDays(26);
    if (periods.front().last < lastNeeded) {
        setLastDay(periods.front(), lastNeeded);
    }
    const int next = nextSemester(current);
    if (count > 1) {
        Period following = regularPeriod(semester(next));
        following.first = std::max(following.first, periods.front().examWeek2.addDays(7));
        periods.push_back(following);
    }
    const int beforeCurrent = current.term == Term::Summer ? next - 1 : next - 2;
    for (int back = 0; back + 2 < count; ++back) {
        periods.push_back(regularPeriod(semester(beforeCurrent - back)));
    }
    int ident = 0;
    for (Period& period : periods) {
        period.ident = ++ident;
    }
    return periods;
}

} // namespace demo
