#pragma once

#include "context/PlanActions.h"
#include "context/Totals.h"
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
    /// `today` gives the current date.
    Periods(form::PlanForm& form, db::Database& database, Totals& totals, PlanActions& plan,
            std::function<QDate()> today);

    /// First day (Monday) of the shown week; in exam mode the first day of the chosen exam week.
    [[nodiscard]] QDate CurrentDate() const { return m_CurrentDate; }
    /// Number of the chosen period, 0 for none.
    [[nodiscard]] std::int32_t TrancheIdent() const { return m_TrancheIdent; }
    /// The shown date: as many days after `CurrentDate` as the day list says. The list does not
    /// hold Sunday; then it is the picked date.
    [[nodiscard]] QDate shownDate() const;

    /// At start-up: selects the period with this number and reads its dates. An unknown number
    /// leaves no period.
    void chooseByIdent(std::int32_t ident);
    /// At start-up: this week's Monday.
    void showCurrentWeek();

    /// Computes the first days of the three exam weeks of the chosen period.
    void LoadExamWeeks();
    /// Shows the chosen exam week; does nothing in teaching mode.
    void Afficher_Dates();

    [[nodiscard]] QDate ExamWeek1Start() const { return m_ExamWeek1Start; }
    [[nodiscard]] QDate ExamWeek2Start() const { return m_ExamWeek2Start; }
    [[nodiscard]] QDate ControlWeekStart() const { return m_ControlWeekStart; }

    /// Lets waiting events run in the middle of a redraw. Neither control is writing into the
    /// other at that moment, so an event that comes in then is not taken for an echo.
    void yieldTo(const std::function<void()>& events);

    void CbTranche_Click();
    void CbJour_Click();
    void DTPicker1_Change();
    void Check2_Click();
    void Combo10_Click();
    void OpEns_Click();
    void OpExam_Click();

private:
    void readPeriodDates();
    void setTrancheIdent(const db::Value& ident);
    [[nodiscard]] db::Recordset periodRow();

    form::PlanForm& m_form;
    db::Database& m_database;
    Totals& m_totals;
    PlanActions& m_plan;
    std::function<QDate()> m_today;

    QDate m_CurrentDate;
    std::int32_t m_TrancheIdent = 0;
    QDate m_ExamWeek1Start;
    QDate m_ExamWeek2Start;
    QDate m_ControlWeekStart;
    bool m_DayChangeBusy = false;    ///< the day list is writing into the date picker
    bool m_PickerChangeBusy = false; ///< the date picker is writing into the day list
};

} // namespace context
