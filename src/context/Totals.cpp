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
    line.fill(std::nullopt);
    show(form);
}

void Totals::addRoom(form::PlanForm& form, bool teachers)
{
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        sums.at(slot) += SlotSeats.at(slot);
        line.at(slot).reset();
        if (sums.at(slot) != 0 || lacks.at(slot)) {
            QString& text = line.at(slot).emplace(QString::number(sums.at(slot)));
            if (teachers) {
                text += u'/' + QString::number(SlotTeacherCount.at(slot));
            }
            if (lacks.at(slot)) {
                text += QStringLiteral(" ?");
            }
        }
    }
    show(form);
}

void Totals::show(form::PlanForm& form) const
{
    for (std::size_t slot = 0; slot < kSlots; ++slot) {
        form::Label& total = form.Tot.at(slot);
        total.visible = line.at(slot).has_value();
        total.caption = line.at(slot).value_or(QStringLiteral("0000"));
    }
}

bool Totals::isShown() const
{
    return std::any_of(line.begin(), line.end(),
                       [](const std::optional<QString>& text) { return text.has_value(); });
}

void ResetTotals(form::PlanForm& form, Totals& totals)
{
    totals.clear(form);
    if (form.Chk_Compt.isChecked()) {
        totals.CountingOn = true;
    }
}

} // namespace context
