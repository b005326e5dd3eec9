#include "plan/RoomRows.h"

#include "context/PageRule.h"

#include <algorithm>

namespace plan
{
namespace
{

// Twips between the places and the window's right inner edge.
constexpr int kPlacesMargin = 250;

} // namespace

void PlaceRoomRows(form::PlanForm& form)
{
    const form::Place model = form.Salle.front().place;
    const int first = context::PageRule(form).firstRow();
    for (std::size_t row = 0; row < form.Salle.size(); ++row) {
        form::Place& room = form.Salle[row].place;
        const int above = std::max(static_cast<int>(row) - first, 0);
        room.top = model.top + above * (model.height + kRowGap);
        room.left = model.left;
        room.height = model.height;
        form::Place& places = form.Cap[row].place;
        places.top = room.top;
        places.left = form.scaleWidth - places.width - kPlacesMargin;
        places.height = room.height;
    }
}

bool isShown(const form::PlanForm& form, const PlanRow& row)
{
    return form.Salle.at(static_cast<std::size_t>(row.index)).visible;
}

std::optional<int> rowAtHeight(const form::PlanForm& form, double top)
{
    const auto row =
        std::find_if(form.Salle.begin(), form.Salle.end(), [top](const form::Label& label) {
            return label.visible && top >= label.place.top &&
                   top < label.place.top + label.place.height;
        });
    return row == form.Salle.end() ? std::nullopt
                                   : std::optional(static_cast<int>(row - form.Salle.begin()));
}

int widthWithPlaces(const form::PlanForm& form, int axisEnd)
{
    return axisEnd + kAfterAxis + form.Cap.front().place.width + kPlacesMargin;
}

} // namespace plan
