#pragma once

namespace context
{

/// What the viewing context asks of the plan: the plan's own layer lies above this one.
class PlanActions
{
public:
    virtual ~PlanActions() = default;

    /// Redraws the whole plan.
    virtual void RefreshPlan() = 0;
    /// Puts the room rows back into their places.
    virtual void PlaceRoomRows() = 0;
    /// "Page Précédente" and "Page Suivante", run whether or not their buttons are enabled.
    virtual void Command2_Click() = 0;
    virtual void Command3_Click() = 0;
};

} // namespace context
