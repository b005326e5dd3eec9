#include "plan/PlanChoice.h"

#include "plan/PlanState.h"

namespace plan
{

PlanChoice choiceOf(const PlanState& state)
{
    return {viewOf(state), state.form.CbJour.listIndex(), state.period.TrancheIdent};
}

} // namespace plan
