#include "context/RoomPage.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

namespace context
{

void RoomPage::setName(form::PlanForm& form, int row, const QString& name)
{
    const auto index = static_cast<std::size_t>(row);
    rooms.at(index).name = name;
    form.Salle.at(index).caption = name;
}

void RoomPage::setPlaces(form::PlanForm& form, int row, const QString& places)
{
    const auto index = static_cast<std::size_t>(row);
    rooms.at(index).places = places;
    form.Cap.at(index).caption = places;
}

const RoomPage::Room& RoomPage::room(int row) const
{
    if (row < 0 || row >= form::PlanForm::kRows) {
        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
    }
    return rooms[static_cast<std::size_t>(row)];
}

double linesPerPage(const form::PlanForm& form)
{
    return runtime::leadingNumber(form.Total_L_P.text());
}

} // namespace context
