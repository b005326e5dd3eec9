#pragma once

#include "plan/RowColors.h"

#include <QPixmap>
#include <QSize>

namespace app
{

/// Size of a sample in device-independent pixels.
inline constexpr QSize kSampleSize(330, 132);

/// A piece of a plan whose rows have these colours, drawn as the plan is drawn. `ratio` is the
/// screen's device pixel ratio.
[[nodiscard]] QPixmap paletteSample(const plan::RowColors& colors, double ratio);

} // namespace app
