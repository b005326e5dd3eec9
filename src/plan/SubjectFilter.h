#pragma once

#include "context/PlanActions.h"
#include "db/Database.h"
#include "form/PlanForm.h"

namespace plan
{

/// Restricts the plan to one subject. The list of subjects takes the place of the palette frame
/// while the filter is on.
class SubjectFilter
{
public:
    SubjectFilter(form::PlanForm& form, db::Database& database, context::PlanActions& plan);

    /// Error: any database error of reading the subjects.
    void Check1_Click();
    void Cb_Mat_Click();

private:
    form::PlanForm& m_form;
    db::Database& m_database;
    context::PlanActions& m_plan;
};

} // namespace plan
