#pragma once

#include "form/PlanForm.h"
#include "plan/CellLayout.h"
#include "plan/Paging.h"
#include "plan/PlanRefresh.h"

namespace appearance
{

/// Fits the boxes to what they show and to how many rooms a page holds: the row height (in twips),
/// the separator between the parts of a box text and how that text is set. Pages hold 29 rooms at
/// most: a larger number in `Total_L_P` becomes 29.
void Adapter_Cellules(form::PlanForm& form, plan::CellLayout& layout);

/// Reactions to the options that choose what a box shows.
class CellOptions
{
public:
    CellOptions(form::PlanForm& form, plan::CellLayout& layout, plan::Paging& paging,
                plan::PlanRefresh& refresh);

    /// Error: any database error of filling the page.
    void Appliquer_Options();
    void XOpCl_Click();
    void XOpEns_Click();
    void XpMat_Click();

private:
    void applyAndRefresh();

    form::PlanForm& m_form;
    plan::CellLayout& m_layout;
    plan::Paging& m_paging;
    plan::PlanRefresh& m_refresh;
};

} // namespace appearance
