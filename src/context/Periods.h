#pragma once

#include "context/PlanActions.h"
#include "context/Totals.h"
#include "context/ViewedPeriod.h"
#include "db/Database.h"
#include "form/PlanForm.h"

#include <QDate>
#include <cstdint>
#include <functional>

namespace context
{

/// Which day of which week of which period the plan shows, in teaching or in exam mode. Keeps the
/// period, the day list, the date picker and the date labels in agreement; every change ends with
/// a redraw of the plan.
class Periods
{
public:
    /// `today` gives the current date. All references outlive this.
    Periods(form::PlanForm& form, ViewedPeriod& viewed, db::Database& database, Totals& totals,
            PlanActions& plan, std::function<QDate()> today);

    /// At start-up: selects the period with this number and reads its dates. An unknown number
    /// leaves no period.
    void chooseByIdent(std::int32_t ident);
    /// At start-up: this week's Monday.
    void showCurrentWeek();
    /// At start-up, behind that: today; the Monday to come on a Sunday, which has no plan.
    void openOnToday();
    /// Whether there is a day before (-1) or behind (1) to be shown: an exam week ends with its
    /// Saturday.
    [[nodiscard]] bool hasDayBeside(int step) const;

    /// Finds the first days of the three exam weeks of the period whose number the label shows; of
    /// the chosen one where the database names none. Without either they stay as they are.
    void LoadExamWeeks();
    /// Shows the chosen exam week; does nothing in teaching mode.
    void Afficher_Dates();

    /// Chooses the shown day again: date, absences, totals and boxes become that day's. A Sunday,
    /// which the list does not hold, is drawn again as it is.
    void chooseDayAgain();

    /// Lets waiting events run in the middle of a redraw. Neither control is writing into the
    /// other at that moment, so an event that comes in then is not taken for an echo.
    void yieldTo(const std::function<void()>& events);

    void CbTranche_Click();
    void CbJour_Click();
    void DTPicker1_Change();
    void Check2_Click();
    /// Shows today, or on a Sunday the Monday to come. In exam mode it chooses the exam week that
    /// holds the day; where none does, the plan returns to teaching.
    void Today_Click();
    void DayBefore_Click();
    void DayAfter_Click();
    void Combo10_Click();
    void OpEns_Click();
    void OpExam_Click();

private:
    void readPeriodDates();
    void readExamDates(const db::Row& weeks);
    void reckonExamDates(const db::Row& row);
    void setTrancheIdent(const db::Value& ident);
    [[nodiscard]] db::Recordset periodRow();
    [[nodiscard]] QDate dayToOpenOn() const;
    [[nodiscard]] bool showExamsOf(QDate day);
    [[nodiscard]] QDate dayBeside(int step) const;
    void step(int days);

    form::PlanForm& m_form;
    ViewedPeriod& m_viewed;
    db::Database& m_database;
    Totals& m_totals;
    PlanActions& m_plan;
    std::function<QDate()> m_today;

    bool m_DayChangeBusy = false;    ///< the day list is writing into the date picker
    bool m_PickerChangeBusy = false; ///< the date picker is writing into the day list
};

/// Chooses a date as the user picks it. The picker changes the week and the day; while it is
/// hidden, or shows the date already and so has no change to tell, the day is chosen from the list.
void pickDate(form::PlanForm& form, QDate date);

} // namespace context
