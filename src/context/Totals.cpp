#include "context/Totals.h"

namespace context
{

void Totals::clear(form::PlanForm& form)
{
    SlotSeats.fill(0);
    SlotTeacherCount.fill(0);
    for (form::Label& total : form.Tot) {
        total.caption = QStringLiteral("0000");
        total.visible = false;
    }
}

void ResetTotals(form::PlanForm& form, Totals& totals)
{
    totals.clear(form);
    if (form.Chk_Compt.isChecked()) {
        totals.CountingOn = true;
    }
}

} // namespace context
