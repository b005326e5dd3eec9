#include "shell/SlotColumns.h"

#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

#include <set>

namespace shell
{
namespace
{

constexpr int kSecondsPerMinute = 60;

} // namespace

std::vector<int>
slotColumns(const context::TimeSlots& slots,
            const std::vector<std::reference_wrapper<const plan::PlanContent>>& contents)
{
    std::set<int> columns;
    for (int number = 1; number <= form::PlanForm::kSlotLabels; ++number) {
        if (slots.slot(number)) {
            columns.insert(number);
        }
    }
    for (const plan::PlanContent& content : contents) {
        for (const plan::PlanRow& row : content.rows) {
            for (const plan::PlanBox& box : row.boxes) {
                columns.insert(box.slot);
            }
        }
    }
    return {columns.begin(), columns.end()};
}

const plan::PlanBox* boxAt(const plan::PlanRow& row, int slot)
{
    for (const plan::PlanBox& box : row.boxes) {
        if (box.slot == slot) {
            return &box;
        }
    }
    return nullptr;
}

std::size_t columnsOf(const context::TimeSlots& slots, const plan::PlanRow& row,
                      const plan::PlanBox& box, const std::vector<int>& columns, std::size_t column)
{
    std::size_t count = 1;
    runtime::skipOnError([&] {
        const int end = runtime::secondsOfDay(runtime::normaliseTimeText(box.cell.CellStart)) +
                        box.minutes * kSecondsPerMinute;
        while (column + count < columns.size()) {
            const int next = columns[column + count];
            const auto& slot = slots.slot(next);
            if (!slot || slot->startSeconds >= end || boxAt(row, next) != nullptr) {
                break;
            }
            ++count;
        }
    });
    return count;
}

} // namespace shell
