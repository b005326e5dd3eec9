#include "context/Periods.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "timetable/DateRules.h"
#include "timetable/SchoolColumns.h"

#include <algorithm>
#include <utility>

namespace context
{
namespace
{

namespace position = timetable::position;

QDate dateOrNone(const db::Value& date)
{
    return date.isNull() ? QDate() : date.toDate();
}

} // namespace

Periods::Periods(form::PlanForm& form, ViewedPeriod& viewed, db::Database& database, Totals& totals,
                 PlanActions& plan, std::function<QDate()> today)
    : m_form(form), m_viewed(viewed), m_database(database), m_totals(totals), m_plan(plan),
      m_today(std::move(today))
{
}

void Periods::chooseByIdent(std::int32_t ident)
{
    m_viewed.labelledIdent = ident;
    m_form.Label11.caption = QString::number(ident);
    const db::Recordset found = m_database.read(
        QStringLiteral("select * from tranche where ident=") + QString::number(ident));
    if (!found.isEmpty()) {
        m_form.CbTranche.showText(found.first().field(position::kPeriodName).toJoinedText());
    }
    readPeriodDates();
}

void Periods::showCurrentWeek()
{
    m_form.DTPicker1.setValue(timetable::MondayOnOrBefore(m_today()));
    m_viewed.CurrentDate = m_form.DTPicker1.value();
}

db::Recordset Periods::periodRow()
{
    const QString name = runtime::trimBlanks(m_form.CbTranche.text());
    return runtime::during(QStringLiteral("Lecture de la période « %1 »").arg(name), [&] {
        return m_database.read(QStringLiteral("select * from tranche where Tranche=") +
                               m_database.dialect().literal(name));
    });
}

void Periods::setTrancheIdent(const db::Value& ident)
{
    m_viewed.TrancheIdent = ident.toInt32();
    m_viewed.labelledIdent = m_viewed.TrancheIdent;
    m_form.Label11.caption = QString::number(m_viewed.labelledIdent);
}

void Periods::readPeriodDates()
{
    const db::Recordset found = periodRow();
    if (found.isEmpty()) {
        return;
    }
    const db::Row& period = found.first();
    runtime::during(
        QStringLiteral("Lecture des dates de la période « %1 »").arg(m_form.CbTranche.text()), [&] {
            m_viewed.tellDays(m_form, dateOrNone(period.field(position::kFirstDay)),
                              dateOrNone(period.field(position::kLastDay)));
            setTrancheIdent(period.field(position::kPeriodIdent));
        });
}

void Periods::readExamDates(const db::Row& weeks)
{
    int place = position::kFirstExamWeek;
    for (QDate& firstDay : m_viewed.examWeeks.firstDays) {
        firstDay = weeks.field(place++).toDate();
    }
    setTrancheIdent(weeks.field(position::kPeriodOfExams));
}

void Periods::reckonExamDates(const db::Row& row)
{
    timetable::Period period;
    period.lastDay = row.field(position::kLastDay).toDate();
    period.firstDay = row.field(position::kFirstDay).toDate();
    m_viewed.examWeeks = timetable::ExamWeeks::usualOf(period);
    setTrancheIdent(row.field(position::kPeriodIdent));
}

void Periods::LoadExamWeeks()
{
    // What the label shows, which is not always a period: without one the settings' number is asked
    // for, and a database may have exam weeks under it all the same.
    const QString ident = QString::number(m_viewed.labelledIdent);
    runtime::during(
        QStringLiteral("Lecture des semaines d’examen de la période « %1 »").arg(ident), [&] {
            const db::Recordset exams =
                m_database.read(QStringLiteral("select * from dat_exam where Tranche=") + ident);
            if (!exams.isEmpty()) {
                readExamDates(exams.first());
                return;
            }
            const db::Recordset found = periodRow();
            if (!found.isEmpty()) {
                reckonExamDates(found.first());
            }
        });
}

void Periods::Afficher_Dates()
{
    if (m_form.OpEns().isSelected()) {
        return;
    }
    const QDate weekStart = m_viewed.examWeekStart();
    if (!weekStart.isValid()) {
        return; // no period, so no exam week: the labels and the week stay as they are
    }
    m_viewed.tellDays(m_form, weekStart, timetable::PlusFiveDays(weekStart));
    m_viewed.CurrentDate = weekStart;
    if (m_form.visible && !m_PickerChangeBusy) {
        // One day further than the day list's own rule: an exam week opens on its second day.
        m_form.DTPicker1.setValue(weekStart.addDays(m_form.CbJour.listIndex() + 1));
    }
}

void Periods::yieldTo(const std::function<void()>& events)
{
    const bool dayChangeBusy = std::exchange(m_DayChangeBusy, false);
    const bool pickerChangeBusy = std::exchange(m_PickerChangeBusy, false);
    events();
    m_DayChangeBusy = dayChangeBusy;
    m_PickerChangeBusy = pickerChangeBusy;
}

void Periods::CbTranche_Click()
{
    readPeriodDates();
    if (m_form.visible && m_form.OpExam().isSelected()) {
        LoadExamWeeks();
        Afficher_Dates();
    }
    ResetTotals(m_form, m_totals);
    m_plan.RefreshPlan();
}

void Periods::CbJour_Click()
{
    m_DayChangeBusy = true;
    if (m_form.visible && !m_PickerChangeBusy) {
        m_form.DTPicker1.setValue(m_viewed.CurrentDate.addDays(m_form.CbJour.listIndex()));
    }
    ResetTotals(m_form, m_totals);
    m_plan.RefreshPlan();
    m_DayChangeBusy = false;
}

void Periods::chooseDayAgain()
{
    const int day = m_form.CbJour.listIndex();
    if (day < 0) { // the list's own rule leads to the Sunday before
        m_plan.RefreshPlan();
    } else {
        m_form.CbJour.setListIndex(day);
    }
}

void Periods::DTPicker1_Change()
{
    if (m_DayChangeBusy) {
        return;
    }
    // The week comes first: the day list's click redraws the plan, and whoever looks at the shown
    // date or chooses another day in the middle of that means the picked week.
    m_viewed.CurrentDate = timetable::MondayOnOrBefore(m_form.DTPicker1.value());
    m_PickerChangeBusy = true;
    if (m_form.DTPicker1.visible) {
        m_form.CbJour.setListIndex(dayListIndex(m_form.DTPicker1.value()));
    }
    m_PickerChangeBusy = false;
}

void Periods::Check2_Click()
{
    m_form.DTPicker1.visible = m_form.Check2.isChecked();
}

/// Today, unless that is a Sunday, which the list of days does not hold.
QDate Periods::dayToOpenOn() const
{
    const QDate today = m_today();
    return today.dayOfWeek() == Qt::Sunday ? today.addDays(1) : today;
}

void Periods::openOnToday()
{
    pickDate(m_form, dayToOpenOn());
}

void Periods::Today_Click()
{
    const QDate day = dayToOpenOn();
    if (m_form.OpExam().isSelected() && showExamsOf(day)) {
        return;
    }
    m_form.OpEns().select();
    if (m_form.visible) { // else it was closed in the middle of a redraw
        pickDate(m_form, day);
    }
}

/// False, with nothing changed, where no exam week of the period holds the day.
bool Periods::showExamsOf(QDate day)
{
    const auto& weeks = m_viewed.examWeeks.firstDays;
    const auto week = std::find_if(weeks.begin(), weeks.end(), [day](QDate first) {
        return first.isValid() &&
               timetable::MondayOnOrBefore(first) == timetable::MondayOnOrBefore(day);
    });
    if (week == weeks.end()) {
        return false;
    }
    m_form.Combo10.setListIndex(static_cast<int>(week - weeks.begin()));
    if (m_form.visible) {
        m_form.CbJour.setListIndex(dayListIndex(day));
    }
    return true;
}

QDate Periods::dayBeside(int step) const
{
    const QDate day = m_viewed.shownDate(m_form).addDays(step);
    return day.dayOfWeek() == Qt::Sunday ? day.addDays(step) : day;
}

bool Periods::hasDayBeside(int step) const
{
    if (m_form.OpEns().isSelected()) {
        return dayBeside(step).isValid();
    }
    const int index = m_form.CbJour.listIndex() + step;
    return index >= 0 && index < m_form.CbJour.items().size();
}

void Periods::step(int days)
{
    if (!hasDayBeside(days)) {
        return;
    }
    if (m_form.OpEns().isSelected()) {
        pickDate(m_form, dayBeside(days));
    } else { // an exam week has its own days
        m_form.CbJour.setListIndex(m_form.CbJour.listIndex() + days);
    }
}

void Periods::DayBefore_Click()
{
    step(-1);
}

void Periods::DayAfter_Click()
{
    step(1);
}

void Periods::Combo10_Click()
{
    if (!m_form.Combo10.visible) {
        return;
    }
    m_viewed.examWeek = m_form.Combo10.listIndex() + 1;
    m_form.Semn.caption = QString::number(m_viewed.examWeek);
    Afficher_Dates();
    m_plan.RefreshPlan();
}

void Periods::OpEns_Click()
{
    if (!m_form.OpEns().isSelected()) {
        return;
    }
    m_form.Combo10.visible = false;
    m_form.xOpExam.visible = false;
    m_form.XOpEns.caption = QStringLiteral("Enseignant");
    m_form.Chk_Type.visible = true;
    m_form.DTPicker1.setValue(timetable::MondayOnOrBefore(m_today()));
    if (!m_form.OpEns().isSelected()) {
        return; // the picker's redraw served a press of "Examen", whose dates are to stay
    }
    readPeriodDates();
    m_plan.RefreshPlan();
}

void Periods::OpExam_Click()
{
    if (!m_form.OpExam().isSelected()) {
        return;
    }
    m_form.Combo10.visible = true;
    m_form.xOpExam.visible = true;
    m_form.Chk_Type.visible = false;
    m_form.XOpEns.caption = QStringLiteral("Surveillant");
    LoadExamWeeks();
    Afficher_Dates();
    m_plan.RefreshPlan();
}

void pickDate(form::PlanForm& form, QDate date)
{
    const bool picks = form.DTPicker1.visible && form.DTPicker1.value() != date;
    form.DTPicker1.setValue(date);
    if (!picks) {
        form.CbJour.setListIndex(dayListIndex(date));
        form.DTPicker1.setValue(date); // the list does not hold Sunday
    }
}

} // namespace context
