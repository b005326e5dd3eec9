#include "context/Totals.h"

namespace context
{

void Totals::clear(form::PlanForm& form)
{
    SlotSeats.fill(0);
    SlotTeacherCount.fill(0);
    sums.fill(0);
    lacks.fill(false);
    isOld = false;
    for (form::Label& total : form.Tot) {
        total.caption = QStringLiteral("0000");
        total.visible = false;
    }
}

void Totals::addRoom(form::PlanForm& form, bool teachers)
{
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        sums.at(slot) += SlotSeats.at(slot);
        form::Label& total = form.Tot.at(slot);
        total.caption = QString::number(sums.at(slot));
        if (teachers) {
            total.caption += u'/' + QString::number(SlotTeacherCount.at(slot));
        }
        if (lacks.at(slot)) {
            total.caption += QStringLiteral(" ?");
        }
        total.visible = sums.at(slot) != 0 || lacks.at(slot);
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
