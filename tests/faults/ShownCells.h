#pragma once

#include "plan/PlanContent.h"

#include <QMap>
#include <QString>

namespace test
{

/// What a plan shows, by room and slot ("A2, 1"): the text of a box, "?" for a cell that is not
/// known. Free cells are left out.
using ShownCells = QMap<QString, QString>;

[[nodiscard]] ShownCells shownCells(const plan::PlanContent& content);
/// How many of them are unknown.
[[nodiscard]] qsizetype unknownCells(const ShownCells& cells);

/// The rule that every fault keeps: what is held (`whole`, read without a fault) is never shown as
/// free, and a plan with an unknown cell says in French that it is incomplete, with the cause.
/// Fails the test otherwise; `fault` names it there.
void expectNothingFreed(const ShownCells& whole, const plan::PlanContent& now,
                        const QString& fault);

} // namespace test
