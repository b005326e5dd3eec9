#include "print/Sheet.h"

#include "context/PageRule.h"
#include "context/TimeAxis.h"
#include "plan/RoomRows.h"
#include "runtime/Numbers.h"
#include "runtime/TimeOfDay.h"

#include <algorithm>
#include <utility>

namespace print
{
namespace
{

using context::TimeAxis;

// Twips between the rows and the totals.
constexpr int kAboveTotals = 60;
// Twips of A4 lying across, within its margins; what header, totals and footer take of its height;
// what keeps a sheet off the paper's sides.
constexpr double kPaperWidth = 16120;
constexpr double kPaperHeight = 11180;
constexpr int kAroundRows = 1580;
constexpr int kBesideSheet = 600;
constexpr double kMostRows = form::PlanForm::kRows;

/// Calls `visit` with the start and the length of every slot of the day and of every box.
template <typename Visit>
void forEachStretch(const plan::PlanContent& content, const context::DaySlots& slots, Visit visit)
{
    for (int number = 1; number <= form::PlanForm::kSlotLabels; ++number) {
        if (const auto& slot = slots.slot(number)) {
            visit(slot->start, slot->minutes);
        }
    }
    for (const plan::PlanRow& row : content.rows) {
        for (const plan::PlanBox& box : row.boxes) {
            visit(box.cell.CellStart, box.minutes);
        }
    }
}

/// The printer's axis. What begins before the first hour moves the hours to the right: on paper
/// the room names would lie under it.
TimeAxis paperAxis(const plan::PlanPage& page, const context::DaySlots& slots)
{
    TimeAxis axis{form::PlanForm::tickTime(0), page.state.form.Label1.front().place.left,
                  TimeAxis::kPrinterSlotWidth};
    int first = axis.originLeft;
    forEachStretch(page.content, slots, [&](const QString& start, int) {
        first = std::min(first, axis.TimeToX(start));
    });
    axis.originLeft += axis.originLeft - first;
    return axis;
}

int axisEnd(const plan::PlanPage& page, const context::DaySlots& slots, const TimeAxis& axis)
{
    int end = axis.TimeToX(form::PlanForm::tickTime(form::PlanForm::kTicks - 1));
    forEachStretch(page.content, slots, [&](const QString& start, int minutes) {
        end = std::max(end, axis.TimeToX(start) + runtime::nearestInteger(axis.widthOf(minutes)));
    });
    // A box of an absurd length must not shrink the rest: the day ends at midnight.
    const int midnight = axis.TimeToX(QStringLiteral("0h00")) +
                         runtime::nearestInteger(axis.widthOf(runtime::kMinutesOfDay));
    return std::min(end, midnight);
}

void placeTicks(form::PlanForm& form, const TimeAxis& axis)
{
    for (int tick = 0; tick < form::PlanForm::kTicks; ++tick) {
        form.Label1.at(static_cast<std::size_t>(tick)).place.left =
            axis.TimeToX(form::PlanForm::tickTime(tick));
    }
}

void placeBoxes(plan::PlanContent& content, const TimeAxis& axis)
{
    for (plan::PlanRow& row : content.rows) {
        for (plan::PlanBox& box : row.boxes) {
            box.x = axis.TimeToX(box.cell.CellStart);
            box.width = axis.widthOf(runtime::leadingNumber(box.cell.CellDuration));
        }
        for (plan::UnknownCell& cell : row.unknown) {
            cell.x = axis.TimeToX(cell.start);
            cell.width = axis.widthOf(cell.minutes);
        }
    }
}

/// Twips that a sheet of this width leaves for its rows: one that is wider than the paper is scaled
/// down as a whole, which gives it more room downwards.
int roomForRows(int width)
{
    const double scaledDown = std::max(1.0, (width + kBesideSheet) / kPaperWidth);
    return runtime::nearestInteger(kPaperHeight * scaledDown) - kAroundRows;
}

/// Height of the rows on paper: low rows grow to make use of the page, as far as half again, so
/// that a page of many rooms can be read. A last page of few rooms has the rows of the others.
int rowHeight(const form::PlanForm& form, int rowsShown, int width)
{
    const form::Place& model = form.Salle.front().place;
    const double wanted = context::linesPerPage(form);
    const int rows = std::max({1, rowsShown, static_cast<int>(std::min(wanted, kMostRows))});
    const int room = (roomForRows(width) - model.top) / rows - plan::kRowGap;
    return std::clamp(room, model.height, model.height * 3 / 2);
}

/// `width` is that of the whole sheet.
void placeRows(form::PlanForm& form, int rowsShown, int end, int width)
{
    form::Place& model = form.Salle.front().place;
    model.height = rowHeight(form, rowsShown, width);
    if (context::PageRule(form).firstRow() == 0) {
        model.top -= model.height + plan::kRowGap;
    }
    form.scaleWidth = 0;
    plan::PlaceRoomRows(form);
    // The places stand at the window's edge; paper is as wide as its axis needs.
    form.scaleWidth = end + plan::kAfterAxis - form.Cap.front().place.left;
    plan::PlaceRoomRows(form);
}

int rowsBottom(const form::PlanForm& form, int rowsShown)
{
    const int last = std::clamp(rowsShown, 0, form::PlanForm::kRows - 1);
    const form::Place& place = form.Salle[static_cast<std::size_t>(last)].place;
    return place.top + place.height;
}

int headerRight(const form::PlanForm& form)
{
    int right = form.XSalle.place.left + form.XSalle.place.width;
    for (const form::Label& label : form.Label4) {
        right = std::max(right, label.place.left + label.place.width);
    }
    return right;
}

/// Returns the bottom of the totals, or of the rows while no total is shown.
int placeTotals(form::PlanForm& form, const context::DaySlots& slots, const TimeAxis& axis,
                int rows)
{
    int bottom = rows;
    for (int number = 1; number <= form::PlanForm::kSlotLabels; ++number) {
        form::Label& total = form.Tot.at(static_cast<std::size_t>(number - 1));
        const auto& slot = slots.slot(number);
        if (!slot) {
            total.visible = false;
        }
        if (total.visible) {
            total.place.left = axis.TimeToX(slot->start);
            total.place.width = runtime::nearestInteger(axis.widthOf(slot->minutes));
            total.place.top = rows + kAboveTotals;
            bottom = total.place.top + total.place.height;
        }
    }
    return bottom;
}

} // namespace

Sheet makeSheet(plan::PlanPage page)
{
    Sheet sheet;
    sheet.page = std::move(page);
    const context::DaySlots& slots = sheet.page.state.slots;
    form::PlanForm& form = sheet.page.state.form;
    sheet.heading = headingOf(sheet.page.state);
    const TimeAxis axis = paperAxis(sheet.page, slots);
    sheet.axisEnd = axisEnd(sheet.page, slots, axis);
    placeTicks(form, axis);
    placeBoxes(sheet.page.content, axis);
    sheet.right = sheet.axisEnd + plan::kAfterAxis + form.Cap.front().place.width;
    sheet.width = std::max(sheet.right, headerRight(form));
    placeRows(form, sheet.page.state.page.RowsShown, sheet.axisEnd, sheet.width);
    sheet.bottom =
        placeTotals(form, slots, axis, rowsBottom(form, sheet.page.state.page.RowsShown));
    return sheet;
}

std::vector<Sheet> makeSheets(std::vector<plan::PlanPage> pages)
{
    std::vector<Sheet> sheets;
    sheets.reserve(pages.size());
    for (plan::PlanPage& page : pages) {
        sheets.push_back(makeSheet(std::move(page)));
    }
    return sheets;
}

} // namespace print
