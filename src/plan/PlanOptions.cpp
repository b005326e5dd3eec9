#include "plan/PlanOptions.h"

#include <utility>

namespace plan
{

PlanOptions::PlanOptions(form::PlanForm& form, context::Totals& totals, PlanRefresh& refresh,
                         std::function<void(const QString&, const QString&)> showMessage)
    : m_form(form), m_totals(totals), m_refresh(refresh), m_showMessage(std::move(showMessage))
{
}

void PlanOptions::Check3_Click()
{
    m_refresh.RefreshPlan();
}

/// Counting starts or stops with the next refresh.
void PlanOptions::Chk_Compt_Click()
{
    m_totals.CountingOn = m_form.Chk_Compt.isChecked();
}

void PlanOptions::Chk_Type_Click()
{
    m_refresh.RefreshPlan();
}

void PlanOptions::ChkGrille_Click()
{
    if (m_form.visible) {
        m_refresh.RefreshPlan();
    }
}

void PlanOptions::Colorer_Click()
{
    m_refresh.RefreshPlan();
}

void PlanOptions::OptA_Click()
{
    m_refresh.RefreshPlan();
}

void PlanOptions::OptB_Click()
{
    m_refresh.RefreshPlan();
}

void PlanOptions::OptFixe_Click()
{
    m_refresh.RefreshPlan();
}

void PlanOptions::Label2_Click(const GroupCounter& group)
{
    m_showMessage(QStringLiteral("Salles Occupées"), group.details);
}

} // namespace plan
