#include "print/Heading.h"

#include "runtime/FrenchDate.h"

namespace print
{

QString joined(const QStringList& parts, const QString& separator)
{
    QStringList filled = parts;
    filled.removeAll(QString());
    return filled.join(separator);
}

namespace
{

QString datesOf(const plan::PlanState& state)
{
    const context::ViewedPeriod& period = state.period;
    const auto& words = state.form.Label4; // "Du" and "au"
    return period.firstToldDay.isValid()
               ? words[0].caption + u' ' + runtime::frenchLongDate(period.firstToldDay) + u' ' +
                     words[2].caption + u' ' + runtime::frenchLongDate(period.lastToldDay)
               : QString();
}

/// Exams have no week A or B.
QString weekOf(const form::PlanForm& form)
{
    if (form.OpExam().isSelected() || form.OptFixe().isSelected()) {
        return {};
    }
    return form.OptA().isSelected() ? form.OptA().caption() : form.OptB().caption();
}

QString roomsOf(const form::PlanForm& form)
{
    QString zone =
        form.cb_Locaux.text() == u"0" ? QString() : QStringLiteral("Zone ") + form.cb_Locaux.text();
    if (!form.ElemDep.isChecked()) {
        return zone;
    }
    QString department = QStringLiteral("Département ") + form.Combo1.text();
    if (form.Chk_Neutre.isChecked()) {
        department += u' ' + form.Chk_Neutre.caption;
    }
    return joined({zone, department});
}

QString subjectOf(const form::PlanForm& form)
{
    return form.Check1.isChecked() ? QStringLiteral("Matière : ") + form.Cb_Mat.text() : QString();
}

} // namespace

Heading headingOf(const plan::PlanState& state)
{
    const form::PlanForm& form = state.form;
    const context::EstablishmentHeader& establishment = state.establishment;
    Heading heading;
    heading.title = form.title();
    heading.establishment = establishment.EstablishmentName;
    heading.university = establishment.UniversityName;
    if (establishment.AcademicYear != 0) {
        heading.year = QString::number(establishment.AcademicYear);
    }
    if (form.DTPicker1.visible) {
        heading.day = form.CbJour.text();
    }
    heading.period = form.CbTranche.text();
    if (form.OpExam().isSelected()) {
        heading.examWeek = form.Combo10.text();
    }
    heading.dates = datesOf(state);
    heading.choice = joined({weekOf(form), roomsOf(form), subjectOf(form)});
    return heading;
}

} // namespace print
