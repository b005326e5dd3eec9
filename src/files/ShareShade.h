#pragma once

#include "form/Colour.h"

namespace files
{

/// The ground of a share from 0 to 1: from white to a blue on which black still reads well.
[[nodiscard]] form::Colour shadeOf(double share);

} // namespace files
