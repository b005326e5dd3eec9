#pragma once

#include "context/Totals.h"
#include "form/PlanForm.h"
#include "plan/PlanContent.h"
#include "plan/PlanRefresh.h"

#include <functional>

namespace plan
{

/// Reactions to the options that change what the plan shows without changing its context.
class PlanOptions
{
public:
    /// `showMessage` shows a title and a text in a message box with an OK button.
    PlanOptions(form::PlanForm& form, context::Totals& totals, PlanRefresh& refresh,
                std::function<void(const QString& title, const QString& text)> showMessage);

    void Check3_Click();
    void Chk_Compt_Click();
    void Chk_Type_Click();
    void ChkGrille_Click();
    void Colorer_Click();
    void OptA_Click();
    void OptB_Click();
    void OptFixe_Click();
    /// A click on the group counter of a box: shows the classes behind it.
    void Label2_Click(const GroupCounter& group);

private:
    form::PlanForm& m_form;
    context::Totals& m_totals;
    PlanRefresh& m_refresh;
    std::function<void(const QString&, const QString&)> m_showMessage;
};

} // namespace plan
