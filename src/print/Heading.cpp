#include "print/Heading.h"

namespace print
{

QString joined(const QStringList& parts)
{
    QStringList filled = parts;
    filled.removeAll(QString());
    return filled.join(QStringLiteral(" · "));
}

namespace
{

QString periodOf(const form::PlanForm& form)
{
    const QString examWeek = form.OpExam().isSelected() ? form.Combo10.text() : QString();
    return joined({form.CbTranche.text(), examWeek});
}

QString datesOf(const form::PlanForm& form)
{
    const auto& labels = form.Label4;
    return labels[1].caption.isEmpty() ? QString()
                                       : labels[0].caption + u' ' + labels[1].caption + u' ' +
                                             labels[2].caption + u' ' + labels[3].caption;
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

Heading headingOf(const form::PlanForm& form, const context::EstablishmentHeader& establishment)
{
    const QString year =
        establishment.AcademicYear != 0 ? QString::number(establishment.AcademicYear) : QString();
    return {form.title(),
            form.Label4[4].caption,
            joined({establishment.UniversityName, year}),
            form.DTPicker1.visible ? form.CbJour.text() : QString(),
            periodOf(form),
            datesOf(form),
            joined({weekOf(form), roomsOf(form), subjectOf(form)})};
}

} // namespace print
