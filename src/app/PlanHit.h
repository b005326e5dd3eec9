#pragma once

#include "paint/DrawingTarget.h"
#include "plan/PlanContent.h"

#include <QPointF>

namespace form
{
class PlanForm;
}

namespace app
{

/// What lies under a point of the plan.
struct PlanHit {
    enum class Part {
        Nothing,
        Box,     ///< the click band `ZAbs`
        XAbs,    ///< the class-absence picture
        YAbs,    ///< the student-absence picture
        Counter, ///< the group counter `Label2`
        Size,    ///< the label `Labelz`
    };

    Part part = Part::Nothing;
    const plan::PlanRow* row = nullptr;
    const plan::PlanBox* box = nullptr;
};

/// `point` is in device pixels of the target, unscrolled. The labels lie over the pictures, the
/// pictures over the band.
[[nodiscard]] PlanHit hitPlan(const form::PlanForm& form, const plan::PlanContent& content,
                              const paint::DrawingTarget& target, QPointF point);

} // namespace app
