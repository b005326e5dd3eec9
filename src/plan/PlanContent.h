#pragma once

#include "form/Colour.h"
#include "lookup/ReadFault.h"
#include "lookup/RoomCell.h"
#include "plan/GroupCounter.h"
#include "plan/PlanChoice.h"

#include <QDateTime>
#include <QString>
#include <optional>
#include <vector>

namespace plan
{

/// One occupied slot of a room, ready to be drawn. Positions are in twips; the vertical one is
/// that of the row's label.
struct PlanBox {
    int slot = 0;        ///< slot number, 1 to 10
    int x = 0;           ///< left edge
    double width = 0.0;  ///< as long as the séance lasts, not yet rounded
    int minutes = 0;     ///< length of the drawn box
    bool makeUp = false; ///< found among the make-ups: hatched
    lookup::RoomCell cell;
    std::optional<GroupCounter> group;
    int marker = 0;           ///< index of the box's `Marqueur`, `XAbs`, `YAbs` and `ZAbs`, from 1
    bool classAbsent = false; ///< `XAbs` shows the picture of `Image5`
    bool studentAbsent = false; ///< `YAbs` shows the picture of `Image6`
    QString absentToolTip;      ///< tooltip of `YAbs`
    /// Where the window draws it: boxes of a row that overlap share its height, from above.
    int lane = 0;
    int lanes = 1; ///< how many share it

    friend bool operator==(const PlanBox&, const PlanBox&) = default;
};

/// A slot of a room of which it is not known what is in it. Positions are in twips.
struct UnknownCell {
    int slot = 0;       ///< slot number, 1 to 10
    QString start;      ///< start of the slot, for example 8h30
    int minutes = 0;    ///< length of the slot
    int x = 0;          ///< left edge
    double width = 0.0; ///< as long as the slot lasts

    friend bool operator==(const UnknownCell&, const UnknownCell&) = default;
};

/// A row of the timetable that no box tells of, because of what boxes show, of the chosen week or
/// of the subject, or that is there at another time than the box of its group.
struct UntoldCell {
    QString start;   ///< empty where it is not known
    int minutes = 0; ///< length

    friend bool operator==(const UntoldCell&, const UntoldCell&) = default;
};

/// What was asked about a row that shows nothing.
enum class Asked {
    Courses,
    CoursesAndMakeUps,
    Exams,
};

/// Slots of the day that a refresh asks about; the totals line has room for one more.
constexpr int kAskedSlots = 10;

struct PlanRow {
    int index = 0; ///< row of the page, 1 upward
    QString room;
    QString places;
    form::Colour color;
    std::vector<PlanBox> boxes;
    std::vector<UnknownCell> unknown;
    std::vector<UntoldCell> untold = {};
    Asked asked = Asked::Courses;

    friend bool operator==(const PlanRow&, const PlanRow&) = default;
};

/// What one refresh worked out: whatever shows the plan, on the screen, on paper or in a file,
/// reads these values.
struct PlanContent {
    std::vector<PlanRow> rows;
    /// What got no answer, each once. A box can lack a size or an absence because of it.
    std::vector<lookup::ReadFault> faults;
    /// Since when answers that the database should give have been missing; nothing while none is.
    std::optional<QDateTime> failingSince;
    /// What was chosen when the refresh began; nothing before the first one.
    std::optional<PlanChoice> drawnFrom;

    /// The box of a marker; null when none was drawn with this number.
    [[nodiscard]] const PlanBox* box(int marker) const;
    [[nodiscard]] PlanBox* box(int marker);
};

} // namespace plan
