#include "plan/StaleOptions.h"

#include "runtime/FrenchDate.h"
#include "timetable/DateRules.h"

#include <QStringList>
#include <algorithm>

namespace plan
{
namespace
{

bool hasBox(const PlanContent& content, bool (*isWanted)(const PlanBox&))
{
    return std::any_of(content.rows.begin(), content.rows.end(), [isWanted](const PlanRow& row) {
        return std::any_of(row.boxes.begin(), row.boxes.end(), isWanted);
    });
}

/// Exams have no make-ups.
bool asksForMakeUps(const lookup::ViewedDay& day)
{
    return day.makeUps && !day.exam;
}

/// First day of the exam week that is shown; nothing in teaching mode and where it is not known.
std::optional<QDate> examWeekOf(const PlanState& state)
{
    const QDate first = state.period.examWeekStart();
    return state.form.OpExam().isSelected() && first.isValid() ? std::optional(first)
                                                               : std::nullopt;
}

bool isOfDay(QDate date, int day)
{
    return date.dayOfWeek() - Qt::Monday == day;
}

bool isOfWeek(QDate date, const std::optional<QDate>& examWeek)
{
    return !examWeek || (date >= *examWeek && date <= timetable::PlusFiveDays(*examWeek));
}

std::optional<StaleOptions::DayGap> dayGapOf(const PlanState& state, const PlanContent& content)
{
    const form::PlanForm& form = state.form;
    const bool isTitled = form.DTPicker1.visible;
    const bool isOnView = isTitled || hasBox(content, [](const PlanBox&) { return true; });
    const int day = content.drawnFrom->day;
    if (!isOnView || day < 0) {
        return std::nullopt;
    }
    const QDate date = form.DTPicker1.value();
    const std::optional<QDate> week = examWeekOf(state);
    if (!isOfDay(date, day)) {
        return StaleOptions::DayGap{day, date, isTitled, std::nullopt};
    }
    return isOfWeek(date, week) ? std::nullopt
                                : std::optional(StaleOptions::DayGap{day, date, isTitled, week});
}

/// Choosing the day again makes the picked date that day of the shown week.
bool isGapMended(const PlanState& state)
{
    const int day = state.form.CbJour.listIndex();
    const QDate date = state.period.CurrentDate.addDays(day);
    return day >= 0 && isOfDay(date, day) && isOfWeek(date, examWeekOf(state));
}

/// What differs beside what has words of its own. Whatever is chosen redraws, so there is nothing;
/// but nothing may be missed.
bool differsOtherwise(PlanChoice drawn, const PlanChoice& chosen)
{
    drawn.view.day.makeUps = chosen.view.day.makeUps;
    if (asksForMakeUps(chosen.view.day)) {
        drawn.view.day.date = chosen.view.day.date;
    }
    if (!chosen.view.subject) {
        drawn.view.subject.reset();
    }
    return drawn != chosen;
}

QString gapWords(const StaleOptions::DayGap& gap)
{
    const QString shown =
        gap.examWeek
            ? QStringLiteral("les examens de la semaine du %1")
                  .arg(gap.examWeek->toString(QStringLiteral("dd/MM/yyyy")))
            : QStringLiteral("le ") +
                  runtime::frenchDayNames().at(static_cast<std::size_t>(gap.day)).toLower();
    const QString date = runtime::frenchDayAndDate(gap.date);
    return QStringLiteral("le plan montre %1, mais ").arg(shown) +
           (gap.isTitled ? QStringLiteral("la date affichée, celle des absences, est le %1")
                         : QStringLiteral("les absences iraient au %1"))
               .arg(date);
}

} // namespace

bool StaleOptions::isEmpty() const
{
    return *this == StaleOptions();
}

StaleOptions staleOptions(const PlanState& state, const PlanContent& content)
{
    StaleOptions stale;
    if (content.rows.empty() || !content.drawnFrom) {
        return stale;
    }
    const PlanChoice& drawn = *content.drawnFrom;
    const PlanChoice chosen = choiceOf(state);
    const lookup::ViewedDay& day = chosen.view.day;
    if (asksForMakeUps(day) && !(drawn.view.day.makeUps && drawn.view.day.date == day.date)) {
        stale.lacksMakeUps = day.date;
    }
    stale.keepsMakeUps =
        !day.makeUps && hasBox(content, [](const PlanBox& box) { return box.makeUp; });
    if (!chosen.view.subject) {
        stale.keepsSubject = drawn.view.subject;
    }
    stale.lacksTotals = state.form.Chk_Compt.isChecked() && state.totals.isOld;
    stale.isOtherwiseOld = differsOtherwise(drawn, chosen);
    stale.dayGap = dayGapOf(state, content);
    stale.isMended = !stale.dayGap || isGapMended(state);
    return stale;
}

QString staleSentence(const StaleOptions& stale)
{
    QStringList clauses;
    if (stale.dayGap) {
        clauses << gapWords(*stale.dayGap);
    }
    if (stale.lacksMakeUps) {
        clauses << QStringLiteral("les rattrapages du %1 n’ont pas encore été cherchés")
                       .arg(runtime::frenchDayAndDate(*stale.lacksMakeUps));
    }
    if (stale.keepsMakeUps) {
        clauses << QStringLiteral("« Date » n’est plus coché, mais des rattrapages sont encore "
                                  "affichés");
    }
    if (stale.keepsSubject) {
        clauses << QStringLiteral("« Selon la Matière » n’est plus coché, mais le plan reste "
                                  "filtré par « %1 »")
                       .arg(*stale.keepsSubject);
    }
    if (stale.lacksTotals) {
        clauses << QStringLiteral("« Comptage » est coché, mais les places occupées de ce plan ne "
                                  "sont pas comptées");
    }
    if (stale.isOtherwiseOld) {
        clauses << QStringLiteral("des options ont changé depuis que le plan a été dessiné");
    }
    if (clauses.isEmpty()) {
        return {};
    }
    QString sentence = clauses.join(QStringLiteral(" ; ")) + u'.';
    sentence[0] = sentence[0].toUpper();
    return sentence;
}

} // namespace plan
