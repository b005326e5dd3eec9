#include "context/Totals.h"

#include <algorithm>

namespace context
{

void Totals::clear(form::PlanForm& form)
{
    SlotSeats.fill(0);
    SlotTeacherCount.fill(0);
    sums.fill(0);
    lacks.fill(false);
    isOld = false;
    line.fill({});
    show(form);
}

void Totals::addRoom(form::PlanForm& form, bool teachers)
{
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        sums.at(slot) += SlotSeats.at(slot);
        Entry& entry = line.at(slot);
        entry.text = QString::number(sums.at(slot));
        if (teachers) {
            entry.text += u'/' + QString::number(SlotTeacherCount.at(slot));
        }
        if (lacks.at(slot)) {
            entry.text += QStringLiteral(" ?");
        }
        entry.isShown = sums.at(slot) != 0 || lacks.at(slot);
    }
    show(form);
}

void Totals::show(form::PlanForm& form) const
{
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        form::Label& total = form.Tot.at(slot);
        total.visible = line.at(slot).isShown;
        total.caption = line.at(slot).text;
    }
}

bool Totals::isShown() const
{
    return std::any_of(line.begin(), line.end(), [](const Entry& entry) { return entry.isShown; });
}

void ResetTotals(form::PlanForm& form, Totals& totals)
{
    totals.clear(form);
    if (form.Chk_Compt.isChecked()) {
        totals.CountingOn = true;
    }
}

} // namespace context
