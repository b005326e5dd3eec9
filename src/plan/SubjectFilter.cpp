#include "plan/SubjectFilter.h"

#include "runtime/RunTimeError.h"

namespace plan
{

SubjectFilter::SubjectFilter(form::PlanForm& form, db::Database& database,
                             context::PlanActions& plan)
    : m_form(form), m_database(database), m_plan(plan)
{
}

void SubjectFilter::Check1_Click()
{
    const bool on = m_form.Check1.isChecked();
    m_form.Frame1.visible = !on;
    m_form.Cb_Mat.visible = on;
    if (!on) {
        return; // the boxes keep the filtered state until the next redraw
    }
    m_form.Cb_Mat.clear();
    runtime::during(QStringLiteral("Lecture des matières (table « matière »)"), [&] {
        const db::Recordset subjects =
            m_database.read(QStringLiteral("select * from matière order by Nom "));
        for (const db::Row& subject : subjects.rows()) {
            m_form.Cb_Mat.addItem(subject.field(QStringLiteral("Nom")).toJoinedText());
        }
    });
    if (!m_form.Cb_Mat.items().isEmpty()) {
        m_form.Cb_Mat.setListIndex(0);
    }
    m_plan.RefreshPlan();
}

void SubjectFilter::Cb_Mat_Click()
{
    m_plan.RefreshPlan();
}

} // namespace plan
