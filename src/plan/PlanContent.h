#pragma once

#include "form/Colour.h"
#include "plan/RoomCell.h"

#include <QString>
#include <optional>
#include <vector>

namespace plan
{

/// The small labels over a box that stands for several classes or is too full.
struct GroupCounter {
    QString counter;   ///< caption of `Label2`: timetable rows found
    QString sizeLabel; ///< caption of `Labelz`: students, or "Dépassement n/places"
    QString details;   ///< what a click on the counter shows
    bool overfull = false;
    bool atRight = false; ///< the counter stands in the box's right corner, else in its left one
};

/// One occupied slot of a room, ready to be drawn. Positions are in twips; the vertical one is
/// that of the row's label.
struct PlanBox {
    int slot = 0;        ///< slot number, 1 to 10
    int x = 0;           ///< left edge
    double width = 0.0;  ///< as long as the séance lasts, not yet rounded
    int minutes = 0;     ///< length of the drawn box
    bool makeUp = false; ///< found among the make-ups: hatched
    RoomCell cell;
    std::optional<GroupCounter> group;
    int marker = 0;           ///< index of the box's `Marqueur`, `XAbs`, `YAbs` and `ZAbs`, from 1
    bool classAbsent = false; ///< `XAbs` shows the picture of `Image5`
    bool studentAbsent = false; ///< `YAbs` shows the picture of `Image6`
    QString absentToolTip;      ///< tooltip of `YAbs`
};

struct PlanRow {
    int index = 0; ///< row of the page, 1 upward
    QString room;
    QString places;
    form::Colour color;
    std::vector<PlanBox> boxes;
};

/// What one refresh worked out: whatever shows the plan, on the screen, on paper or in a file,
/// reads these values.
struct PlanContent {
    std::vector<PlanRow> rows;
};

} // namespace plan
