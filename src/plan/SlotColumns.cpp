#include "plan/SlotColumns.h"

#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

#include <algorithm>
#include <set>

namespace plan
{
std::vector<int> slotColumns(const context::DaySlots& slots,
                             const std::vector<std::reference_wrapper<const PlanContent>>& contents)
{
    std::set<int> columns;
    for (int number = 1; number <= form::PlanForm::kSlotLabels; ++number) {
        if (slots.slot(number)) {
            columns.insert(number);
        }
    }
    for (const PlanContent& content : contents) {
        for (const PlanRow& row : content.rows) {
            for (const PlanBox& box : row.boxes) {
                columns.insert(box.slot);
            }
            for (const UnknownCell& cell : row.unknown) {
                columns.insert(cell.slot);
            }
        }
    }
    return {columns.begin(), columns.end()};
}

const PlanBox* boxAt(const PlanRow& row, int slot)
{
    for (const PlanBox& box : row.boxes) {
        if (box.slot == slot) {
            return &box;
        }
    }
    return nullptr;
}

bool isUnknown(const PlanRow& row, int slot)
{
    return std::any_of(row.unknown.begin(), row.unknown.end(),
                       [slot](const UnknownCell& cell) { return cell.slot == slot; });
}

std::size_t columnsOf(const context::DaySlots& slots, const PlanRow& row, const PlanBox& box,
                      const std::vector<int>& columns, std::size_t column)
{
    std::size_t count = 1;
    runtime::skipOnError([&] {
        const int start = runtime::secondsOfDay(box.cell.CellStart);
        const auto isCovered = [&](int next) {
            return slots.reaches(next, start, box.minutes) && boxAt(row, next) == nullptr &&
                   !isUnknown(row, next);
        };
        while (column + count < columns.size() && isCovered(columns[column + count])) {
            ++count;
        }
    });
    return count;
}

} // namespace plan
