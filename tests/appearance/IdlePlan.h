#pragma once

#include "context/PlanActions.h"

namespace test
{

/// A plan that does nothing of what it is asked to: for what only needs one to be there.
class IdlePlan : public context::PlanActions
{
public:
    void RefreshPlan() override {}
    void PlaceRoomRows() override {}
    void Command2_Click() override {}
    void Command3_Click() override {}
};

} // namespace test
