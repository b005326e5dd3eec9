#pragma once

#include "form/PlanForm.h"

#include <memory>

namespace form
{

/// A form of its own with the values of another one's controls and with no events: whatever is
/// done with it, the window does not notice. Paper is laid out on such a copy.
[[nodiscard]] std::unique_ptr<PlanForm> copyOf(const PlanForm& form);

} // namespace form
