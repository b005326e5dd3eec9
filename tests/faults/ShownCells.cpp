#include "faults/ShownCells.h"

#include "plan/FaultWords.h"

#include <gtest/gtest.h>

namespace test
{

ShownCells shownCells(const plan::PlanContent& content)
{
    ShownCells cells;
    for (const plan::PlanRow& row : content.rows) {
        for (const plan::PlanBox& box : row.boxes) {
            cells[row.room + QString(", %1").arg(box.slot)] = box.cell.CellText;
        }
        for (const plan::UnknownCell& cell : row.unknown) {
            cells[row.room + QString(", %1").arg(cell.slot)] = "?";
        }
    }
    return cells;
}

qsizetype unknownCells(const ShownCells& cells)
{
    return cells.values().count("?");
}

void expectNothingFreed(const ShownCells& whole, const plan::PlanContent& now, const QString& fault)
{
    const ShownCells cells = shownCells(now);
    for (const QString& cell : whole.keys()) {
        EXPECT_TRUE(cells.contains(cell))
            << cell.toStdString() << " looks free: " << fault.toStdString();
    }
    if (unknownCells(cells) > 0) {
        const QString sentence = plan::faultSentence(now);
        EXPECT_FALSE(now.faults.empty()) << fault.toStdString();
        EXPECT_TRUE(sentence.startsWith("Plan incomplet") || sentence.startsWith("Nom"))
            << fault.toStdString() << ": " << sentence.toStdString();
        EXPECT_TRUE(sentence.endsWith("Les cases « ? » sont inconnues, et non libres."))
            << fault.toStdString() << ": " << sentence.toStdString();
        EXPECT_FALSE(plan::faultDetails(now).isEmpty()) << fault.toStdString();
    }
}

} // namespace test
