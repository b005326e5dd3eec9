#pragma once

#include "form/PlanForm.h"

#include <QString>
#include <array>
#include <cstdint>

namespace context
{

/// Which rooms the page holds and where it stands in the list of rooms. The captions of `Salle` and
/// `Cap` are written from it, never read back.
struct RoomPage {
    /// A room as a row shows it.
    struct Room {
        QString name;
        QString places; ///< as the table has it: number of places as text
    };

    /// The rooms of the rows, row 0 included. Rows beyond `RowsShown` keep what they held.
    std::array<Room, form::PlanForm::kRows> rooms;
    /// Highest row that holds a room: the plan draws rows 1 to `RowsShown`; -1 without any room.
    std::int16_t RowsShown = 0;
    /// Position in the list of rooms that the current page starts from, 0 on the first page.
    std::int32_t PageOffset = 0;
    /// The page buttons' copy of the page start.
    std::int32_t PageStart = 0;
    /// Rooms counted at start-up: the paging bound. Not recounted when the room filter changes.
    std::int32_t RoomTotal = 0;
    /// Rooms of the list that the page is of, as it was read for the page.
    int listed = 0;

    /// Puts a room's name, or its places, into a row and its label.
    void setName(form::PlanForm& form, int row, const QString& name);
    void setPlaces(form::PlanForm& form, int row, const QString& places);
    /// The row's room. Error: SubscriptOutOfRange beyond the last row that a page can hold.
    [[nodiscard]] const Room& room(int row) const;
};

/// Lines per page: the number that the text of `Total_L_P` begins with.
[[nodiscard]] double linesPerPage(const form::PlanForm& form);

} // namespace context
